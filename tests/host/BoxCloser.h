#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace orvane::host {

/// Answers the message boxes that this thread shows while the object lives, as Enter would, and
/// keeps their titles and texts.
class BoxCloser {
 public:
  BoxCloser();
  ~BoxCloser();
  BoxCloser(const BoxCloser&) = delete;
  BoxCloser& operator=(const BoxCloser&) = delete;

  /// "title: text" of each box, in order.
  std::vector<std::wstring> boxes;

 private:
  static LRESULT CALLBACK OnWindow(int code, WPARAM wParam, LPARAM lParam);
  static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR timer, DWORD time);

  HHOOK m_hook;
};

}  // namespace orvane::host
