#include "designerapp/WindowPicker.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "designer/WindowTest.h"
#include "designerapp/ChoiceMenu.h"
#include "designerapp/Window.h"
#include "win32/NativeHandles.h"

namespace orvane::designerapp {
namespace {

/// Whether the top window is the dialog or one that it belongs to.
bool IsOurs(HWND top, HWND dialog) {
  for (; dialog; dialog = GetWindow(dialog, GW_OWNER)) {
    if (dialog == top) return true;
  }
  return false;
}

}  // namespace

std::vector<HWND> OpenWindows(HWND dialog) {
  std::vector<HWND> windows;
  const auto add = [](HWND window, LPARAM list) -> BOOL {
    if (IsWindowVisible(window) && GetWindowTextLengthW(window) > 0)
      reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
  };
  EnumWindows(add, reinterpret_cast<LPARAM>(&windows));
  std::erase_if(windows, [&](HWND window) { return IsOurs(window, dialog); });
  return windows;
}

void WindowPicker::Attach(HWND button) {
  m_button = button;
  SetWindowSubclass(button, Procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

void WindowPicker::Choose() {
  const std::vector<HWND> windows = OpenWindows(GetAncestor(m_button, GA_ROOT));
  ActionServices& services = m_program.globals.actionServices;
  std::vector<std::wstring> texts;
  for (const HWND window : windows)
    texts.push_back(designer::DescribeWindow(services.windows, services.process,
                                             win32::FromNative<WindowHandle>(window)));
  const auto chosen = ChooseText(m_button, texts);
  if (chosen) onPick(windows[*chosen]);
}

bool WindowPicker::Cancel() {
  return GetCapture() == m_button && ReleaseCapture();
}

/// The window below where the pointer was for a message of the button, null when it is one of ours.
HWND WindowPicker::Below(LPARAM place) const {
  POINT at{GET_X_LPARAM(place), GET_Y_LPARAM(place)};
  ClientToScreen(m_button, &at);
  const HWND window = WindowFromPoint(at);
  const HWND top = GetAncestor(window, GA_ROOT);
  return top && top != GetDesktopWindow() && !IsOurs(top, GetAncestor(m_button, GA_ROOT)) ? window
                                                                                          : nullptr;
}

/// The button has the mouse from being pressed until it is let go of, wherever that is.
LRESULT WindowPicker::Message(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool dragging = GetCapture() == m_button;
  const bool isMouse = message == WM_MOUSEMOVE || message == WM_LBUTTONUP;
  const HWND below = dragging && isMouse ? Below(lParam) : nullptr;
  if (dragging && message == WM_MOUSEMOVE) {
    SetCursor(LoadCursorW(nullptr, below ? IDC_CROSS : IDC_NO));
    onMove(below);
  }
  const LRESULT result = DefSubclassProc(m_button, message, wParam, lParam);
  if (message == WM_LBUTTONUP && below) onPick(below);
  if (message == WM_CAPTURECHANGED) onMove(nullptr);
  return result;
}

LRESULT CALLBACK WindowPicker::Procedure(HWND button, UINT message, WPARAM wParam, LPARAM lParam,
                                         UINT_PTR, DWORD_PTR self) noexcept {
  try {
    return reinterpret_cast<WindowPicker*>(self)->Message(message, wParam, lParam);
  } catch (...) {
    TellFailure(button);
    return 0;
  }
}

}  // namespace orvane::designerapp
