#pragma once

#include <windows.h>

#include <deque>
#include <vector>

#include "platform/Keyboard.h"

namespace orvane::win32 {

/// Keys of the calling thread that wait for a pause to pass. They are typed by a timer, and so from
/// whichever message loop the thread is in then: the window's own, a dialog's, a menu's.
class KeyScore {
 public:
  /// The thread's; null when nothing waits.
  static KeyScore* Current();
  static void AddPause(DWORD milliseconds);
  void AddKeys(std::vector<KeyEvent> events);

 private:
  /// Keys behind a pause.
  struct Step {
    DWORD pause = 0;
    std::vector<KeyEvent> events;
  };

  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR timer, DWORD) noexcept;
  void Wait(DWORD milliseconds);
  void GoOn();

  std::deque<Step> m_steps;
  UINT_PTR m_timer = 0;
  bool m_pausing = false;  // else the keys before the pause are still to be taken
};

}  // namespace orvane::win32
