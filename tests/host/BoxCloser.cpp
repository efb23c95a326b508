#include "host/BoxCloser.h"

namespace orvane::host {
namespace {

thread_local BoxCloser* t_closer = nullptr;

constexpr int TextOfBox = 0xFFFF;  // the identifier of a message box's text

std::wstring TextOf(HWND window) {
  wchar_t text[1024];
  return std::wstring(text, static_cast<std::size_t>(GetWindowTextW(window, text, 1024)));
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
  const HWND text = code == HCBT_ACTIVATE ? GetDlgItem(window, TextOfBox) : nullptr;
  if (t_closer && text) {
    t_closer->boxes.push_back(TextOf(window) + L": " + TextOf(text));
    PostMessageW(window, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace orvane::host
