#pragma once

#include "platform/Dialogs.h"
#include "windowing/DialogWindow.h"

namespace orvane::server {

/// The window of the selection list's progress.
class ProgressDialog : private windowing::DialogWindow, private ProgressView {
 public:
  ProgressDialog(HINSTANCE module, ProgressModel& model);

  /// True when the model's work was done behind the window; false when it has not begun.
  bool Run(HWND owner);

 private:
  enum class State { Waiting, Running, Done };

  void Opened() override;
  void Command(int control, int notification) override;
  INT_PTR Other(UINT message, WPARAM wParam, LPARAM lParam) override;
  void ShowFolder(const std::wstring& folder) override;
  void ShowCount(std::size_t names) override;

  void Work();
  void Cancel();
  void Refresh();
  void ShowTexts();
  void RunMessages();

  ProgressModel& m_model;
  State m_state = State::Waiting;
  std::wstring m_folder;
  bool m_folderChanged = false;
  std::size_t m_names = 0;
  DWORD m_refreshed = 0;  // GetTickCount
  bool m_quitting = false;
};

}  // namespace orvane::server
