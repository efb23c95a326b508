#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include <memory>

#include "designerapp/MainWindow.h"
#include "designerapp/OneInstance.h"

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

std::wstring FullPath(const std::wstring& path) {
  std::wstring full(32768, L'\0');
  const DWORD length =
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr);
  full.resize(length < full.size() ? length : 0);
  return full.empty() ? path : full;
}

/// The file that the command line names; empty without one.
std::wstring FileOfCommandLine() {
  int count = 0;
  LPWSTR* arguments = CommandLineToArgvW(GetCommandLineW(), &count);
  std::wstring file = arguments && count > 1 ? arguments[1] : L"";
  LocalFree(arguments);
  return file.empty() ? file : FullPath(file);
}

int Run(HINSTANCE instance, int show) {
  const Apartment apartment;
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES |
                                                           ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES |
                                                           ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&controls);
  Program program(instance);
  const std::wstring file = FileOfCommandLine();
  OneInstance instances;
  if (!instances.IsFirst() && !program.globals.options.m_bGeneralAllowMultipleInstances &&
      OneInstance::HandOver(file))
    return 0;
  MainWindow window(program);
  window.Open(file, show);
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
