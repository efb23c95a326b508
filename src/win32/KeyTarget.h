#pragma once

#include <windows.h>

namespace orvane::win32 {

/// Who has the keyboard.
struct KeyTarget {
  HWND window = nullptr;  // with the focus; else the one in front; null: nobody
  DWORD thread = 0;

  bool IsOwn() const { return window && thread == GetCurrentThreadId(); }
};

/// Waits for a window for a while, since the foreground may just be changing hands.
KeyTarget FindKeyTarget();

/// Lets other threads' messages to windows of this thread through, without running what is posted.
void AnswerSentMessages();

/// Waits, answering sent messages meanwhile: the window that is typed into may need an answer.
void WaitAnswering(DWORD milliseconds);

}  // namespace orvane::win32
