#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace orvane::host {

std::wstring TextOf(HWND window);

/// The thread's open dialog whose template comes from that module (null: this program), or null.
HWND OpenDialog(const wchar_t* module = nullptr);

/// Presses a button.
void Click(HWND dialog, int control);

/// The user in front of a dialog: does one step after the other in the one that is open, with its
/// messages running in between. Waits while the dialog itself waits, for a message box.
class DialogScript {
 public:
  using Step = std::function<void(HWND)>;

  explicit DialogScript(std::vector<Step> steps, const wchar_t* module = nullptr);
  ~DialogScript();
  DialogScript(const DialogScript&) = delete;
  DialogScript& operator=(const DialogScript&) = delete;

  bool IsDone() const { return m_next == m_steps.size(); }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);

  std::vector<Step> m_steps;
  const wchar_t* m_module;
  std::size_t m_next = 0;
  UINT_PTR m_timer;
};

}  // namespace orvane::host
