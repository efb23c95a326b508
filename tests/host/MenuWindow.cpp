#include <windows.h>

#include <windowsx.h>

#include <cstdio>

#include "host/Com.h"
#include "host/MenuText.h"
#include "host/Modes.h"
#include "host/Scene.h"

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

void AddOwnEntries(HMENU menu) {
  UINT id = OwnCommands;
  AppendMenuW(menu, MF_STRING, id++, L"&Open");
  AppendMenuW(menu, MF_STRING, id++, L"Cu&t");
  AppendMenuW(menu, MF_STRING, id++, L"&Copy");
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(menu, MF_STRING, id, L"P&roperties");
}

void Print(const std::wstring& text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, bytes.data(), size, nullptr, nullptr);
  std::fputs(bytes.c_str(), stdout);
  std::fflush(stdout);
}

void MenuWindow::RightClicked(HWND window, POINT at) {
  RightClick click(folder, selection.Get());
  AddOwnEntries(click.menu);
  const HRESULT result = click.handler->QueryContextMenu(click.menu, 1, 1, OwnCommands - 1, 0);
  std::printf("initialized 0x%08lX, identifiers %ld\n",
              static_cast<unsigned long>(click.initialized), static_cast<long>(result));
  open = click.handler.Get();
  const int chosen = TrackPopupMenu(click.menu, TPM_RETURNCMD, at.x, at.y, 0, window, nullptr);
  open = nullptr;
  Print(MenuText(click.menu));  // with the dynamic folders that were opened
  std::printf("chosen %d\n", chosen);
  if (chosen > 0 && chosen < static_cast<int>(OwnCommands)) {
    CMINVOKECOMMANDINFO record{};
    record.cbSize = sizeof record;
    record.hwnd = window;
    record.lpVerb = MAKEINTRESOURCEA(chosen - 1);
    record.nShow = SW_SHOWNORMAL;
    click.handler->InvokeCommand(&record);
  }
  PostQuitMessage(0);
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

int ShowMenu(const std::wstring& folder, const std::vector<std::wstring>& names) {
  const Apartment apartment;
  MenuWindow self{.folder = folder, .selection = names.empty() ? nullptr : Select(folder, names)};
  const HWND window = CreateHostWindow(self);
  ShowWindow(window, SW_SHOWNORMAL);
  SetForegroundWindow(window);
  UpdateWindow(window);
  std::printf("ready\n");
  std::fflush(stdout);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  DestroyWindow(window);
  return 0;
}

}  // namespace orvane::host
