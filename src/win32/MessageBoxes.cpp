#include "win32/MessageBoxes.h"

#include <windows.h>

#include <cstddef>

namespace orvane::win32 {
namespace {

// In the order of the enumerations.
constexpr UINT Icons[] = {0, MB_ICONSTOP, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONINFORMATION};
constexpr UINT ButtonRows[] = {MB_OK, MB_OKCANCEL, MB_YESNO};

}  // namespace

MessageBoxes::Answer MessageBoxes::Show(const std::wstring& text, const std::wstring& title,
                                        Icon icon, Buttons buttons) {
  // Without an owner, yet modal: the thread's other windows wait.
  const UINT style = MB_TASKMODAL | Icons[static_cast<std::size_t>(icon)] |
                     ButtonRows[static_cast<std::size_t>(buttons)] | MB_SETFOREGROUND;
  switch (MessageBoxW(nullptr, text.c_str(), title.c_str(), style)) {
    case IDOK:
      return Answer::Ok;
    case IDYES:
      return Answer::Yes;
    case IDNO:
      return Answer::No;
    default:
      return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
  }
}

}  // namespace orvane::win32
