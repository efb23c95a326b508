#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include <atomic>
#include <thread>
#endif

namespace orvane {
namespace {

/// Message boxes and browse dialogs, with somebody to press their buttons.
class DialogsContract : public AnyDesktop {
 protected:
  DialogsContract() { m_memory.files.AddFolder(L"C:\\Backup"); }

  /// In the next dialog the user presses "ok", "cancel", "yes" or "no".
  void WillPress(const std::wstring& button) {
    if (!IsReal()) m_memory.answers.Add(button);
#ifdef _WIN32
    if (IsReal()) m_user = std::jthread([this, button] { Press(button); });
#endif
  }

  Dialogs& dialogs = m_platform.dialogs;
  Shell& shell = m_platform.shell;
  const ItemIdList m_desktop = shell.SpecialFolder(WindowHandle::None, 0);

#ifdef _WIN32
  ~DialogsContract() override {
    m_user = {};
    DestroyWindow(m_beside);
  }

  void Press(const std::wstring& button) {
    const WPARAM id = button == L"ok"    ? IDOK
                      : button == L"yes" ? IDYES
                      : button == L"no"  ? IDNO
                                         : IDCANCEL;
    for (int i = 0; i < 500; ++i, Sleep(20)) {
      const HWND dialog = FindWindowW(L"#32770", nullptr);
      if (!dialog || !IsWindowVisible(dialog)) continue;
      Sleep(300);  // lets the tree of a browse dialog follow the selection
      m_besideWasEnabled = IsWindowEnabled(m_beside) != 0;
      if (PostMessageW(dialog, WM_COMMAND, id, 0)) return;
    }
  }

  HWND m_beside = CreateWindowExW(0, L"Static", L"beside", WS_POPUP | WS_VISIBLE, 0, 0, 9, 9,
                                  nullptr, nullptr, nullptr, nullptr);
  std::atomic<bool> m_besideWasEnabled = false;
  std::jthread m_user;
#endif
};

INSTANTIATE_TEST_SUITE_P(, DialogsContract, EveryDesktop(), NameOfDesktop);

TEST_P(DialogsContract, MessageBoxAnswersWithTheButtonThatWasPressed) {
  using Answer = MessageBoxes::Answer;
  using Buttons = MessageBoxes::Buttons;
  const struct {
    Buttons buttons;
    const wchar_t* pressed;
    Answer answer;
  } rows[] = {{Buttons::Ok, L"ok", Answer::Ok},
              {Buttons::OkCancel, L"ok", Answer::Ok},
              {Buttons::OkCancel, L"cancel", Answer::Cancel},
              {Buttons::YesNo, L"yes", Answer::Yes},
              {Buttons::YesNo, L"no", Answer::No}};
  for (const auto& row : rows) {
    WillPress(row.pressed);
    EXPECT_EQ(m_platform.boxes.Show(L"text", L"title", MessageBoxes::Icon::Question, row.buttons),
              row.answer)
        << row.pressed;
#ifdef _WIN32
    EXPECT_FALSE(m_besideWasEnabled) << "the thread's other windows wait";
#endif
  }
}

/// A browse model that starts in a folder and writes down what it is told.
struct Browser : BrowseModel {
  std::wstring start;
  int opened = 0;
  ItemIdList selected;

  void Opened(BrowseWindow& window) override {
    ++opened;
    window.Select(start);
    window.Expand(start);
  }
  void Selected(BrowseWindow& window, const ItemIdList& item) override {
    selected = item;
    window.SetStatus(L"status");
  }
  bool InvalidEntry() override { return true; }
};

constexpr std::uint32_t FoldersWithValidation = 0x75;

TEST_P(DialogsContract, BrowsingPicksWhatTheModelSelected) {
  const std::wstring folder = IsReal() ? L"C:\\windows\\system32" : L"C:\\Backup";
  Browser browser;
  browser.start = folder;
  WillPress(L"ok");
  const Dialogs::Picked picked =
      dialogs.Browse(WindowHandle::None, m_desktop, L"Pick:", FoldersWithValidation, browser);
  EXPECT_EQ(shell.Path(picked.item), folder);
  // Wine hands out the whole path when the dialog has an edit field
  EXPECT_TRUE(picked.displayName.ends_with(folder.substr(folder.rfind(L'\\') + 1)));
  EXPECT_EQ(browser.opened, 1);
  EXPECT_EQ(shell.Path(browser.selected), folder);
}

TEST_P(DialogsContract, BrowsingCanBeGivenUp) {
  Browser browser;
  WillPress(L"cancel");
  EXPECT_FALSE(
      dialogs.Browse(WindowHandle::None, m_desktop, L"Pick:", FoldersWithValidation, browser).item);
  EXPECT_EQ(browser.opened, 1);
}

}  // namespace
}  // namespace orvane
