#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

// An empty window of the designer's kind, to compare its start with: the same libraries, a tree, a
// list and a status bar with nothing in them, and files may be dropped on it.

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
  OleInitialize(nullptr);
  const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TREEVIEW_CLASSES |
                                                           ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES};
  InitCommonControlsEx(&controls);
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = [](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcW(window, message, w, l);
  };
  windowClass.hInstance = instance;
  windowClass.lpszClassName = L"OrvaneEmptyWindow";
  RegisterClassW(&windowClass);
  const HWND window =
      CreateWindowW(windowClass.lpszClassName, L"Empty", WS_OVERLAPPEDWINDOW, CW_USEDEFAULT, 0, 900,
                    620, nullptr, nullptr, instance, nullptr);
  const auto add = [&](const wchar_t* name, int x, int y, int width, int height) {
    CreateWindowW(name, L"", WS_CHILD | WS_VISIBLE, x, y, width, height, window, nullptr, instance,
                  nullptr);
  };
  add(WC_TREEVIEWW, 0, 0, 360, 460);
  add(WC_LISTVIEWW, 0, 460, 900, 120);
  add(STATUSCLASSNAMEW, 0, 0, 0, 0);
  DragAcceptFiles(window, TRUE);
  ShowWindow(window, show);
  UpdateWindow(window);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  OleUninitialize();
  return 0;
}
