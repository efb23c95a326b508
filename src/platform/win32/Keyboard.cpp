#include "platform/win32/Keyboard.h"

#include <windows.h>

#include <algorithm>
#include <span>

#include "platform/win32/Windows.h"

namespace orvane::win32 {
namespace {

constexpr std::size_t Batch = 2;  // events sent before the window is waited for: one key

/// Keys of the block between letters and number pad, which share their scan codes with the latter.
constexpr WORD ExtendedKeys[] = {VK_PRIOR, VK_NEXT,   VK_END,     VK_HOME,    VK_LEFT, VK_UP,
                                 VK_RIGHT, VK_DOWN,   VK_INSERT,  VK_DELETE,  VK_LWIN, VK_RWIN,
                                 VK_APPS,  VK_DIVIDE, VK_NUMLOCK, VK_SNAPSHOT};

INPUT InputOf(const KeyEvent& event) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  KEYBDINPUT& key = input.ki;
  if (event.kind == KeyEvent::Kind::Character) {
    key.wScan = event.code;
    key.dwFlags = KEYEVENTF_UNICODE;
  } else {
    key.wVk = event.code;
    key.wScan = static_cast<WORD>(MapVirtualKeyW(event.code, MAPVK_VK_TO_VSC));
    if (std::ranges::find(ExtendedKeys, event.code) != std::end(ExtendedKeys)) {
      key.dwFlags = KEYEVENTF_EXTENDEDKEY;
    }
  }
  if (event.up) key.dwFlags |= KEYEVENTF_KEYUP;
  return input;
}

bool Send(std::span<const KeyEvent> events) {
  INPUT inputs[Batch];
  std::ranges::transform(events, inputs, InputOf);
  const auto count = static_cast<UINT>(events.size());
  return SendInput(count, inputs, sizeof(INPUT)) == count;
}

/// The foreground window; waits for one while the foreground is changing hands.
HWND Foreground() {
  const ULONGLONG end = GetTickCount64() + Keyboard::Patience;
  for (;;) {
    if (const HWND window = GetForegroundWindow()) return window;
    if (GetTickCount64() >= end) return nullptr;
    Windows().RunMessages(10);
    Sleep(1);
  }
}

/// Waits until the foreground window's thread asks for its next message `rounds` times. A sent
/// message is answered only when a thread does that, and keys come to it one at a time in between.
bool WaitForForeground(int rounds) {
  const HWND window = Foreground();
  if (!window) return false;
  if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) {
    Windows().RunMessages(Keyboard::Patience);
    return true;
  }
  for (int i = 0; i < rounds; ++i) {
    DWORD_PTR result = 0;
    if (!SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, Keyboard::Patience,
                             &result) &&
        IsWindow(window)) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool Keyboard::IsDown(std::uint16_t virtualKey) {
  return GetAsyncKeyState(virtualKey) < 0;
}

void Keyboard::Press(std::uint16_t virtualKey, bool up) {
  keybd_event(static_cast<BYTE>(virtualKey),
              static_cast<BYTE>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)),
              up ? KEYEVENTF_KEYUP : 0, 0);
}

bool Keyboard::Type(const std::wstring&, const std::vector<KeyEvent>& events) {
  constexpr int Settling = 5;
  for (std::span<const KeyEvent> rest = events; !rest.empty();) {
    const auto batch = rest.first(std::min(rest.size(), Batch));
    if (!Foreground() || !Send(batch) || !WaitForForeground(static_cast<int>(Batch))) return false;
    rest = rest.subspan(batch.size());
  }
  // the last key may still be on its way from the queue to the window
  for (int i = 0; i < Settling; ++i) {
    if (!WaitForForeground(1)) return false;
    Sleep(1);
  }
  return true;
}

}  // namespace orvane::win32
