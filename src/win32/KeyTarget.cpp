#include "win32/KeyTarget.h"

#include "platform/Keyboard.h"

namespace orvane::win32 {
namespace {

/// The focus may lie in a child that belongs to another thread than the window in front.
KeyTarget Present() {
  GUITHREADINFO front{};
  front.cbSize = sizeof front;
  KeyTarget target{.window = GetForegroundWindow()};
  if (target.window && GetGUIThreadInfo(0, &front) && front.hwndFocus)
    target.window = front.hwndFocus;
  if (target.window) target.thread = GetWindowThreadProcessId(target.window, nullptr);
  return target;
}

}  // namespace

KeyTarget FindKeyTarget() {
  const ULONGLONG end = GetTickCount64() + Keyboard::Patience;
  for (;;) {
    const KeyTarget target = Present();
    if (target.thread != 0 || GetTickCount64() >= end) return target;
    WaitAnswering(1);
  }
}

void AnswerSentMessages() {
  MSG message;
  PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
}

void WaitAnswering(DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  AnswerSentMessages();
  for (ULONGLONG now; (now = GetTickCount64()) < end; AnswerSentMessages())
    MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_SENDMESSAGE, 0);
}

}  // namespace orvane::win32
