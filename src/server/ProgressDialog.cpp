#include "server/ProgressDialog.h"

#include <commctrl.h>

#include "server/DialogIds.h"

namespace orvane::server {
namespace {

using Layout = windowing::DialogLayout;

constexpr Layout::Anchor Placing[] = {
    {IDC_AREA, Layout::Right | Layout::Bottom},
    {IDC_FOLDER, Layout::Right},
    {IDC_COUNT, Layout::Right},
    {IDC_BAR, Layout::Right},
    {IDCANCEL, Layout::Left | Layout::Right | Layout::Top | Layout::Bottom},
};

constexpr UINT Begin = WM_APP;

// In milliseconds: how often the window's messages run and for how long at most, and how often the
// bar moves. Together well under the tenth of a second in which Cancel is to answer.
constexpr DWORD RefreshInterval = 25;
constexpr DWORD MessagesLimit = 50;
constexpr WPARAM BarInterval = 30;

// Longer paths are shown by their ends: fitting one into the window takes a while.
constexpr std::size_t LongestShown = 1000;

/// A key that was down when the dialog came repeats itself: the Enter that chose the menu's entry
/// would press Cancel.
bool IsHeldSinceBefore(const MSG& message) {
  return message.message == WM_KEYDOWN && (HIWORD(message.lParam) & KF_REPEAT) != 0 &&
         (message.wParam == VK_RETURN || message.wParam == VK_SPACE || message.wParam == VK_ESCAPE);
}

}  // namespace

ProgressDialog::ProgressDialog(HINSTANCE module, ProgressModel& model)
    : DialogWindow(module, IDD_PROGRESS, Placing), m_model(model) {}

bool ProgressDialog::Run(HWND owner) {
  Show(owner);
  return m_state != State::Waiting;
}

void ProgressDialog::Opened() {
  SetWindowTextW(Window(), m_model.Title().c_str());
  SetWindowTextW(Control(IDC_AREA), m_model.Caption().c_str());
  SendMessageW(Control(IDC_BAR), PBM_SETMARQUEE, TRUE, BarInterval);
  PostMessageW(Window(), Begin, 0, 0);
}

void ProgressDialog::Command(int control, int) {
  if (control == IDCANCEL) Cancel();  // the button, Esc, the close box
}

INT_PTR ProgressDialog::Other(UINT message, WPARAM, LPARAM) {
  if (message == Begin && m_state == State::Waiting) {
    Work();
    return TRUE;
  }
  // With its owner, before the work is done: nobody can cancel it any more.
  if (message == WM_DESTROY && m_state != State::Done) m_model.Cancel();
  return FALSE;
}

void ProgressDialog::Work() {
  ShowWindow(Window(), SW_SHOW);
  UpdateWindow(Window());
  m_state = State::Running;
  m_model.Run(*this);
  m_state = State::Done;
  if (Window()) End(TRUE);
}

void ProgressDialog::Cancel() {
  EnableWindow(Control(IDCANCEL), FALSE);
  m_model.Cancel();
}

void ProgressDialog::ShowFolder(const std::wstring& folder) {
  m_folder = folder;
  m_folderChanged = true;
  Refresh();
}

void ProgressDialog::ShowCount(std::size_t names) {
  m_names = names;
  Refresh();
}

void ProgressDialog::Refresh() {
  if (GetTickCount() - m_refreshed < RefreshInterval || !Window() || m_quitting) return;
  ShowTexts();
  RunMessages();
  m_refreshed = GetTickCount();
}

void ProgressDialog::ShowTexts() {
  SetWindowTextW(Control(IDC_COUNT), std::to_wstring(m_names).c_str());
  if (!m_folderChanged) return;
  m_folderChanged = false;
  const bool whole = m_folder.size() <= LongestShown;
  SetWindowTextW(Control(IDC_FOLDER),
                 whole ? m_folder.c_str()
                       : (L"..." + m_folder.substr(m_folder.size() - LongestShown)).c_str());
}

void ProgressDialog::RunMessages() {
  const DWORD start = GetTickCount();
  MSG message;
  while (Window() && GetTickCount() - start < MessagesLimit &&
         PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // For the host's own loop: the work ends, and nobody else takes the message.
      m_quitting = true;
      m_model.Cancel();
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (IsHeldSinceBefore(message) || IsDialogMessageW(Window(), &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

}  // namespace orvane::server
