#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace orvane::host {

std::wstring TextOf(HWND window);
std::wstring TextOf(HWND dialog, int control);

/// The thread's open dialog whose template comes from that module (null: this program), or null.
HWND OpenDialog(const wchar_t* module = nullptr);

/// Presses a button.
void Click(HWND dialog, int control);

/// The user in front of the thread's dialogs: does one step after the other in the module's dialog
/// that is open, with its messages running in between, and answers message boxes as Enter would.
class DialogScript {
 public:
  using Step = std::function<void(HWND)>;

  explicit DialogScript(std::vector<Step> steps, const wchar_t* module = nullptr);
  ~DialogScript();
  DialogScript(const DialogScript&) = delete;
  DialogScript& operator=(const DialogScript&) = delete;

  void Continue(std::vector<Step> steps);
  bool IsDone() const { return m_next == m_steps.size(); }

  /// "title: text" of each message box, in order.
  std::vector<std::wstring> boxes;

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Close(HWND box);

  std::vector<Step> m_steps;
  const wchar_t* m_module;
  std::size_t m_next = 0;
  HWND m_closed = nullptr;  // the box that was answered last
  UINT_PTR m_timer;
};

}  // namespace orvane::host
