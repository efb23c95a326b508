#pragma once

#include "win32/KeyTarget.h"

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// Shares the input state of another thread (AttachThreadInput), where that is allowed: GetKeyState
/// then tells which keys that thread has taken from its queue.
class SharedInput {
 public:
  SharedInput() = default;
  SharedInput(const SharedInput&) = delete;
  SharedInput& operator=(const SharedInput&) = delete;
  ~SharedInput() { Detach(); }

  void Share(const KeyTarget& target);
  bool IsShared() const { return m_shared; }

 private:
  void Detach();

  DWORD m_thread = 0;
  bool m_shared = false;
  bool m_attached = false;
};

/// Sends keys to a window of another thread one at a time, each when the one before has been taken,
/// so that a key finds the window that the one before brought to the front.
class Typist {
 public:
  /// False when the key was not let through, or when nobody takes keys any more.
  bool Type(const KeyTarget& target, const KeyEvent& event);

 private:
  static constexpr ULONGLONG SwallowedAfter = 100;  // milliseconds

  bool WaitUntilTaken(const KeyEvent& event);
  bool IsWaitingForInput() const;

  SharedInput m_input;
  HWND m_window = nullptr;
  ULONGLONG m_idle = 0;  // milliseconds spent on keys that nobody took, one after the other
};

}  // namespace orvane::win32
