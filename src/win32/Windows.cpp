#include "win32/Windows.h"

#include "win32/NativeHandles.h"

namespace orvane::win32 {
namespace {

constexpr int TextSize = 4096;

HWND Native(WindowHandle window) {
  return ToNative<HWND>(window);
}

}  // namespace

WindowHandle Windows::Parent(WindowHandle window) {
  return FromNative<WindowHandle>(GetParent(Native(window)));
}

std::wstring Windows::ClassName(WindowHandle window) {
  wchar_t text[TextSize];
  const int length = GetClassNameW(Native(window), text, TextSize);
  return {text, static_cast<std::size_t>(length)};
}

std::wstring Windows::Caption(WindowHandle window) {
  // GetWindowText sends WM_GETTEXT to windows of this process, and waits for them
  wchar_t text[TextSize];
  const int length = InternalGetWindowText(Native(window), text, TextSize);
  return {text, static_cast<std::size_t>(length)};
}

WindowHandle Windows::Active() {
  return FromNative<WindowHandle>(GetActiveWindow());
}

WindowHandle Windows::Find(const std::wstring& className) {
  return FromNative<WindowHandle>(FindWindowW(className.c_str(), nullptr));
}

bool Windows::Post(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                   std::intptr_t lParam) {
  // without a window the message would go to this thread
  return window != WindowHandle::None &&
         PostMessageW(Native(window), message, static_cast<WPARAM>(wParam), lParam);
}

std::optional<std::intptr_t> Windows::Send(WindowHandle window, std::uint32_t message,
                                           std::intptr_t wParam, std::intptr_t lParam,
                                           std::uint32_t timeout) {
  DWORD_PTR result = 0;
  if (!SendMessageTimeoutW(Native(window), message, static_cast<WPARAM>(wParam), lParam,
                           SMTO_ABORTIFHUNG, timeout, &result)) {
    return std::nullopt;
  }
  return static_cast<std::intptr_t>(result);
}

void Windows::RunMessages(std::uint32_t milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));  // the loop it is meant for is further out
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (GetTickCount64() >= end) return;
  }
}

}  // namespace orvane::win32
