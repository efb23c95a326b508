#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include <memory>

#include "designerapp/MainWindow.h"

namespace {

using namespace orvane::designerapp;

/// The thread's stay in its own apartment.
class Apartment {
 public:
  Apartment() { OleInitialize(nullptr); }
  ~Apartment() { OleUninitialize(); }
  Apartment(const Apartment&) = delete;
  Apartment& operator=(const Apartment&) = delete;
};

/// The file that the command line names; empty without one.
std::wstring FileOfCommandLine() {
  int count = 0;
  LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::wstring file = arguments && count > 1 ? arguments[1] : L"";
  LocalFree(arguments);
  return file;
}

int Run(HINSTANCE instance, int show) {
  const Apartment apartment;
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES |
                                                           ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                                                           ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&controls);
  Program program(instance);
  program.globals.g_Options.Reset(program.platform.system);
  MainWindow window(program);
  window.Open(FileOfCommandLine(), show);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (window.Translate(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
  try {
    return Run(instance, show);
  } catch (...) {
    TellFailure(nullptr);
    return 1;
  }
}
