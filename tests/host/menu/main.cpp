// The right-click of ./run alone: a folder's files in a real window. orvane_menu FOLDER NAME...

#include "host/Modes.h"

int wmain(int count, wchar_t** arguments) {
  if (count < 2) return 2;
  return orvane::host::ShowMenu(arguments[1], {arguments + 2, arguments + count});
}
