#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace orvane::test {

/// Somebody at the keyboard: keys go through the system's queue to the window in front.
class User {
 public:
  /// Types text and keys: "{F2}", "{DOWN}", "^", "%" and "+" before a key hold Ctrl, Alt and Shift.
  User& Type(const std::wstring& keys);
  /// The same in a second, for a dialog that the next keys open and that takes a while.
  User& Later(const std::wstring& keys);
  /// Draws what is at one point of the screen to another with the mouse.
  static void Drag(POINT from, POINT to);
  /// Lets the thread's windows do their work until nothing has happened for a while.
  static void Wait(DWORD milliseconds = 250);

 private:
  void Send(const std::wstring& keys);
  void Key(WORD key, bool up);
  void Letter(wchar_t letter);

  std::vector<INPUT> m_events;
};

}  // namespace orvane::test
