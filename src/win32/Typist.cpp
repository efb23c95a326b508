#include "win32/Typist.h"

#include "win32/KeyInput.h"

namespace orvane::win32 {

void SharedInput::Share(const KeyTarget& target) {
  if (target.thread == m_thread) return;
  Detach();
  m_thread = target.thread;
  // Threads whose windows are parent and child share it already; detaching would part them.
  const bool sharesAlready = GetFocus() == target.window;
  m_attached = !sharesAlready && AttachThreadInput(GetCurrentThreadId(), m_thread, TRUE);
  m_shared = sharesAlready || m_attached;
}

void SharedInput::Detach() {
  if (m_attached) AttachThreadInput(GetCurrentThreadId(), m_thread, FALSE);
  m_attached = false;
}

bool Typist::Type(const KeyTarget& target, const KeyEvent& event) {
  m_window = target.window;
  m_input.Share(target);
  return SendTogether({&event, 1}) && WaitUntilTaken(event);
}

bool Typist::WaitUntilTaken(const KeyEvent& event) {
  constexpr int FirstSleep = 10;
  constexpr int Answers = 3;
  const bool isCharacter = event.kind == KeyEvent::Kind::Character;
  const int key = isCharacter ? VK_PACKET : event.code;
  const ULONGLONG sent = GetTickCount64();
  for (int turn = 0; m_input.IsShared() && GetTickCount64() - sent < SwallowedAfter; ++turn) {
    AnswerSentMessages();
    if ((GetKeyState(key) < 0) != event.up) {
      if (!event.up) m_idle = 0;  // a key that never went down looks released at once
      return true;
    }
    // Not every window's thread knows the state of a character; that it answers is as good.
    if (isCharacter && turn >= FirstSleep && !IsWaitingForInput()) return false;
    if (isCharacter && turn >= FirstSleep + Answers) return true;
    Sleep(turn < FirstSleep ? 0 : 1);
  }
  if (!IsWaitingForInput()) return false;
  const ULONGLONG waited = GetTickCount64() - sent;
  if (waited >= SwallowedAfter) m_idle += waited;
  return m_idle < Keyboard::Patience;
}

/// A window that answers has gone on without the key: it was meant for another one, which it
/// brought to the front, or for a hot key. Busy windows are waited for.
bool Typist::IsWaitingForInput() const {
  DWORD_PTR result = 0;
  return !IsWindow(m_window) || SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG,
                                                    Keyboard::Patience, &result) != 0;
}

}  // namespace orvane::win32
