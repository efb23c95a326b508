#include "windowing/DialogScale.h"

namespace orvane::windowing {
namespace {

/// Of what only newer systems have, in a library that is loaded anyway; null on the others.
template <class Function>
Function* OfNewerSystems(const char* name) {
  const HMODULE library = GetModuleHandleW(L"user32.dll");
  return reinterpret_cast<Function*>(
      reinterpret_cast<void*>(library ? GetProcAddress(library, name) : nullptr));
}

int DpiOf(HWND window) {
  const auto dpiOfWindow = OfNewerSystems<UINT WINAPI(HWND)>("GetDpiForWindow");
  const int dpi = dpiOfWindow ? static_cast<int>(dpiOfWindow(window)) : 0;
  return dpi > 0 ? dpi : USER_DEFAULT_SCREEN_DPI;
}

/// The system's own scaling of dialogs knows nothing of controls that were moved.
void LeaveScalingToUs(HWND dialog) {
  constexpr int DisableAll = 1;  // DDC_DISABLE_ALL
  using SetBehaviour = BOOL WINAPI(HWND, int, int);
  if (const auto set = OfNewerSystems<SetBehaviour>("SetDialogDpiChangeBehavior"))
    set(dialog, DisableAll, DisableAll);
}

}  // namespace

void DialogScale::Start(HWND dialog) {
  m_dialog = dialog;
  m_startDpi = m_dpi = DpiOf(dialog);
  const LRESULT font = SendMessageW(dialog, WM_GETFONT, 0, 0);
  GetObjectW(reinterpret_cast<HFONT>(font), sizeof m_startFont, &m_startFont);
  LeaveScalingToUs(dialog);
}

void DialogScale::Change(int dpi) {
  m_dpi = dpi;
  LOGFONTW font = m_startFont;
  font.lfHeight = MulDiv(font.lfHeight, dpi, m_startDpi);
  UniqueFont made(font.lfHeight != 0 ? CreateFontIndirectW(&font) : nullptr);
  if (!made) return;
  for (HWND control = GetWindow(m_dialog, GW_CHILD); control;
       control = GetWindow(control, GW_HWNDNEXT))
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(made.get()), FALSE);
  m_font = std::move(made);
}

}  // namespace orvane::windowing
