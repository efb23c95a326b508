#include "win32/Keyboard.h"

#include <windows.h>

#include <algorithm>
#include <span>
#include <vector>

#include "win32/Windows.h"

namespace orvane::win32 {
namespace {

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

/// Shares the input state of another thread (AttachThreadInput), where that is allowed: GetKeyState
/// then tells which keys that thread has taken from its queue.
class SharedInput {
 public:
  SharedInput() = default;
  SharedInput(const SharedInput&) = delete;
  SharedInput& operator=(const SharedInput&) = delete;
  ~SharedInput() { Detach(); }

  void Share(DWORD thread) {
    if (thread == m_thread) return;
    Detach();
    m_thread = thread;
    m_shared =
        thread == GetCurrentThreadId() || AttachThreadInput(GetCurrentThreadId(), thread, TRUE);
  }
  bool IsShared() const { return m_shared; }

 private:
  void Detach() {
    if (m_shared && m_thread != GetCurrentThreadId()) {
      AttachThreadInput(GetCurrentThreadId(), m_thread, FALSE);
    }
  }

  DWORD m_thread = 0;
  bool m_shared = false;
};

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

/// Sends events to the foreground window one at a time, each when the one before has been taken.
class Typist {
 public:
  bool Type(const KeyEvent& event) {
    m_window = Foreground();
    if (!m_window) return false;
    const DWORD thread = GetWindowThreadProcessId(m_window, nullptr);
    m_own = thread == GetCurrentThreadId();
    m_input.Share(thread);
    INPUT input = InputOf(event);
    return SendInput(1, &input, sizeof input) == 1 && WaitUntilTaken(event);
  }

 private:
  static constexpr ULONGLONG SwallowedAfter = 100;  // milliseconds

  bool WaitUntilTaken(const KeyEvent& event) {
    const int key = event.kind == KeyEvent::Kind::Character ? VK_PACKET : event.code;
    const ULONGLONG sent = GetTickCount64();
    for (int turn = 0; m_input.IsShared() && GetTickCount64() - sent < SwallowedAfter; ++turn) {
      if (IsTaken(key, event.up)) {
        if (!event.up) m_idle = 0;  // a key that never went down looks released at once
        return true;
      }
      Sleep(turn < 10 ? 0 : 1);
    }
    if (!IsWaitingForInput()) return false;
    const ULONGLONG waited = GetTickCount64() - sent;
    if (waited >= SwallowedAfter) m_idle += waited;
    return m_idle < Keyboard::Patience;
  }

  bool IsTaken(int key, bool up) {
    if (m_own) Windows().RunMessages(Keyboard::Patience);
    return (GetKeyState(key) < 0) != up;
  }

  /// A window that answers has gone on without the key: it was meant for another one, which it
  /// brought to the front, or for a hot key. Busy windows are waited for.
  bool IsWaitingForInput() {
    DWORD_PTR result = 0;
    return m_own || !IsWindow(m_window) ||
           SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, Keyboard::Patience,
                               &result) != 0;
  }

  SharedInput m_input;
  HWND m_window = nullptr;
  bool m_own = false;
  ULONGLONG m_idle = 0;  // milliseconds spent on keys that nobody took, one after the other
};

/// Lets go of the keys that a text broken off after `sent` holds: they would stay down for the
/// user.
void Release(std::span<const KeyEvent> sent) {
  std::vector<KeyEvent> held;
  for (const KeyEvent& event : sent) {
    if (event.up) {
      std::erase_if(held, [&](const KeyEvent& key) { return key.code == event.code; });
    } else if (event.kind == KeyEvent::Kind::VirtualKey) {
      held.push_back(event);
    }
  }
  for (KeyEvent& event : held) {
    event.up = true;
    INPUT input = InputOf(event);
    SendInput(1, &input, sizeof input);
  }
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
  Typist typist;
  const auto refused =
      std::ranges::find_if_not(events, [&](const KeyEvent& event) { return typist.Type(event); });
  if (refused == events.end()) return true;
  Release({events.begin(), refused + 1});
  return false;
}

}  // namespace orvane::win32
