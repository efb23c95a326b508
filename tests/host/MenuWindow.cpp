#include <windows.h>

#include <windowsx.h>

#include <cstdio>

#include "host/Com.h"
#include "host/Modes.h"
#include "host/Scene.h"
#include "support/Utf8.h"

namespace orvane::host {
namespace {

constexpr UINT OwnCommands = 30000;  // the window's own entries, above those lent to the handler

/// The window that is right-clicked, in the place of the shell's folder window.
struct MenuWindow {
  std::wstring folder;
  ComPtr<IDataObject> selection;
  IContextMenu3* open = nullptr;  // the handler whose menu is shown

  void RightClicked(HWND window, POINT at);
};

void Print(const std::wstring& text) {
  std::fputs(ToUtf8(text).c_str(), stdout);
  std::fflush(stdout);
}

void MenuWindow::RightClicked(HWND window, POINT at) {
  RightClick click(folder, selection.Get());
  for (UINT i = 0; const wchar_t* entry : {L"&Open", L"Cu&t", L"&Copy", L"P&roperties"}) {
    AppendMenuW(click.menu, MF_STRING, OwnCommands + i++, entry);
  }
  const HRESULT result = click.handler->QueryContextMenu(click.menu, 1, 1, OwnCommands - 1, 0);
  std::printf("initialized 0x%08lX, identifiers %ld\n",
              static_cast<unsigned long>(click.initialized), static_cast<long>(result));
  open = click.handler.Get();
  const int chosen = TrackPopupMenu(click.menu, TPM_RETURNCMD, at.x, at.y, 0, window, nullptr);
  open = nullptr;
  Print(click.Text());  // with the dynamic folders that were opened
  std::printf("chosen %d\n", chosen);
  if (chosen > 0 && chosen < static_cast<int>(OwnCommands)) {
    click.Invoke(static_cast<UINT>(chosen), window);
  }
  SetTimer(window, 1, 1000, nullptr);  // for keys that are still on their way
}

LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = reinterpret_cast<MenuWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  LRESULT result = 0;
  switch (message) {
    case WM_ENTERMENULOOP:
      Print(L"open\n");
      return 0;
    case WM_INITMENUPOPUP:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_MENUCHAR:
      if (self && self->open &&
          SUCCEEDED(self->open->HandleMenuMsg2(message, wParam, lParam, &result))) {
        return result;
      }
      break;
    case WM_CONTEXTMENU:
      self->RightClicked(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_CHAR:
      Print(L"typed " + std::wstring(1, static_cast<wchar_t>(wParam)) + L'\n');
      return 0;
    case WM_TIMER:
    case WM_CLOSE:
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

HWND CreateHostWindow(MenuWindow& self) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProcedure;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  windowClass.lpszClassName = L"OrvaneHost";
  RegisterClassW(&windowClass);
  const HWND window = CreateWindowW(L"OrvaneHost", self.folder.c_str(), WS_OVERLAPPEDWINDOW, 20, 20,
                                    760, 680, nullptr, nullptr, windowClass.hInstance, nullptr);
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&self));
  return window;
}

}  // namespace

int RunMessages() {
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}

int ShowMenu(const std::wstring& folder, const std::vector<std::wstring>& names) {
  const Apartment apartment;
  MenuWindow self{.folder = folder, .selection = names.empty() ? nullptr : Select(folder, names)};
  const HWND window = CreateHostWindow(self);
  ShowWindow(window, SW_SHOWNORMAL);
  SetForegroundWindow(window);
  UpdateWindow(window);
  Print(L"ready\n");
  RunMessages();
  DestroyWindow(window);
  return 0;
}

}  // namespace orvane::host
