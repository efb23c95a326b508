#include "host/BoxCloser.h"

#include "host/DialogScript.h"

namespace orvane::host {
namespace {

thread_local BoxCloser* t_closer = nullptr;

constexpr int TextOfBox = 0xFFFF;  // the identifier of a message box's text
constexpr UINT_PTR CloserTimer = 0x0C;

/// The labels of the product's own dialogs have the same identifier.
bool IsOurs(HWND window) {
  const auto module = reinterpret_cast<HMODULE>(GetWindowLongPtrW(window, GWLP_HINSTANCE));
  return module == GetModuleHandleW(L"orvane.dll");
}

}  // namespace

BoxCloser::BoxCloser()
    : m_hook(SetWindowsHookExW(WH_CBT, OnWindow, nullptr, GetCurrentThreadId())) {
  t_closer = this;
}

BoxCloser::~BoxCloser() {
  t_closer = nullptr;
  UnhookWindowsHookEx(m_hook);
}

LRESULT CALLBACK BoxCloser::OnWindow(int code, WPARAM wParam, LPARAM lParam) {
  const HWND window = reinterpret_cast<HWND>(wParam);
  const HWND text =
      code == HCBT_ACTIVATE && !IsOurs(window) ? GetDlgItem(window, TextOfBox) : nullptr;
  if (t_closer && text) SetTimer(window, CloserTimer, 0, &BoxCloser::OnTimer);
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

// By now the box, which may be activated while it is being made, has its texts.
void CALLBACK BoxCloser::OnTimer(HWND window, UINT, UINT_PTR timer, DWORD) {
  KillTimer(window, timer);
  if (!t_closer) return;
  t_closer->boxes.push_back(TextOf(window) + L": " + TextOf(GetDlgItem(window, TextOfBox)));
  PostMessageW(window, WM_COMMAND, IDOK, 0);
}

}  // namespace orvane::host
