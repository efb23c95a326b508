// The dialogs' windows, driven as a user's mouse and keyboard would, through posted messages. The
// disabled tests leave each dialog open for a look at it.

#include "server/Dialogs.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <functional>
#include <stdexcept>

#include "host/DialogScript.h"
#include "platform/win32/NativeHandles.h"
#include "server/DialogIds.h"

namespace orvane {
namespace {

using host::Click;
using host::OpenDialog;
using host::TextOf;
using Script = host::DialogScript;

void Press(UINT message, WPARAM key) {
  PostMessageW(GetFocus(), message, key, message == WM_SYSCHAR ? 1 << 29 : 0);
}
std::wstring Destination(HWND dialog) {
  return TextOf(GetDlgItem(dialog, IDC_DESTINATION));
}

class Folders : public CopyToModel {
 public:
  std::wstring Title() override { return L"Orvane - Copy To"; }
  std::wstring InitialDestination() override { return L"C:\\Backup"; }
  std::vector<Slot> Slots() override {
    return {
        {L"1. C:\\Backup", true},
        {L"2. D:\\R&D", true},
        {L"3. Z:\\archive\\projects\\a long way down\\where nobody has looked since the autumn of "
         L"the year before last\\photographs",
         true},
        {L"4.", false},
        {L"5.", false},
        {L"6.", false},
        {L"7.", false}};
  }
  bool HasBackground() override { return m_background; }
  std::wstring Choose(std::size_t slot) override { return Slots().at(slot).caption.substr(3); }
  std::wstring Browse(WindowHandle dialog, const std::wstring& destination) override {
    m_browseOwner = dialog;
    return destination + L"\\picked";
  }
  bool Accept(const std::wstring& destination) override {
    if (m_throws) throw std::runtime_error("the list cannot be saved");
    m_offered.push_back(destination);
    return destination == L"D:\\R&D";
  }

  bool m_background = true;
  bool m_throws = false;
  WindowHandle m_browseOwner{};
  std::vector<std::wstring> m_offered;
};

server::Dialogs MakeDialogs() {
  return server::Dialogs(GetModuleHandleW(nullptr));
}

TEST(CopyToDialog, ShowsItsModelAndEndsWithWhatItAccepts) {
  Folders model;
  const Script script({[&](HWND dialog) {
                         EXPECT_EQ(TextOf(dialog), L"Orvane - Copy To");
                         EXPECT_EQ(Destination(dialog), L"C:\\Backup");
                         EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_DESTINATION));
                         EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_SLOT + 1)), L"&2. D:\\R&&D");
                         for (int i = 0; i < SLOT_COUNT; ++i)
                           EXPECT_EQ(IsWindowEnabled(GetDlgItem(dialog, IDC_SLOT + i)), i < 3) << i;
                         Click(dialog, IDC_BROWSE);
                       },
                       [&](HWND dialog) {
                         EXPECT_EQ(model.m_browseOwner, win32::FromNative<WindowHandle>(dialog));
                         EXPECT_EQ(Destination(dialog), L"C:\\Backup\\picked");
                         Click(dialog, IDOK);
                       },
                       [](HWND dialog) { Click(dialog, IDC_SLOT + 1); },
                       [](HWND dialog) {
                         EXPECT_EQ(Destination(dialog), L"D:\\R&D");
                         Click(dialog, IDOK);
                       }});
  EXPECT_TRUE(MakeDialogs().ShowCopyTo({}, model));
  EXPECT_TRUE(script.IsDone());
  EXPECT_EQ(model.m_offered, (std::vector<std::wstring>{L"C:\\Backup\\picked", L"D:\\R&D"}));
  EXPECT_FALSE(OpenDialog());
}

TEST(CopyToDialog, TheKeyboardIsEnough) {
  Folders model;
  const Script script({[](HWND) { Press(WM_KEYDOWN, VK_TAB); },
                       [](HWND dialog) {
                         EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_BROWSE));
                         Press(WM_KEYDOWN, VK_TAB);
                       },
                       [](HWND dialog) {
                         EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_SLOT));
                         Press(WM_KEYDOWN, VK_DOWN);
                       },
                       [](HWND dialog) {
                         EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_SLOT + 1));
                         EXPECT_EQ(Destination(dialog), L"C:\\Backup")
                             << "chosen by walking over it";
                         Press(WM_SYSCHAR, L'd');
                       },
                       [](HWND dialog) {
                         EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_DESTINATION));
                         Press(WM_SYSCHAR, L'2');
                       },
                       [](HWND dialog) {
                         EXPECT_EQ(Destination(dialog), L"D:\\R&D");
                         Press(WM_KEYDOWN, VK_RETURN);
                       }});
  EXPECT_TRUE(MakeDialogs().ShowCopyTo({}, model));
  EXPECT_TRUE(script.IsDone());
}

TEST(CopyToDialog, EndsWithoutADestination) {
  const Script::Step ends[] = {[](HWND) { Press(WM_KEYDOWN, VK_ESCAPE); },
                               [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); },
                               [](HWND dialog) { Click(dialog, IDCANCEL); },
                               [](HWND dialog) { DestroyWindow(dialog); }};
  for (const Script::Step& end : ends) {
    Folders model;
    const Script script({end});
    EXPECT_FALSE(MakeDialogs().ShowCopyTo({}, model));
    EXPECT_TRUE(model.m_offered.empty());
  }
}

TEST(CopyToDialog, WhatTheModelThrowsEndsItAndComesOut) {
  Folders model;
  model.m_throws = true;
  const Script script({[](HWND dialog) { Click(dialog, IDOK); }});
  EXPECT_THROW(MakeDialogs().ShowCopyTo({}, model), std::runtime_error);
  EXPECT_FALSE(OpenDialog());
}

TEST(CopyToDialog, GrowsWithItsControlsAndDoesNotShrink) {
  Folders model;
  const auto width = [](HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect.right - rect.left;
  };
  LONG dialogWidth = 0;
  LONG fieldWidth = 0;
  const auto widen = [&](HWND dialog, LONG by) {
    SetWindowPos(dialog, nullptr, 0, 0, width(dialog) + by, 500, SWP_NOMOVE | SWP_NOZORDER);
  };
  const Script script({[&](HWND dialog) {
                         dialogWidth = width(dialog);
                         fieldWidth = width(GetDlgItem(dialog, IDC_DESTINATION));
                         widen(dialog, 100);
                       },
                       [&](HWND dialog) {
                         EXPECT_EQ(width(GetDlgItem(dialog, IDC_DESTINATION)), fieldWidth + 100);
                         EXPECT_EQ(width(GetDlgItem(dialog, IDOK)),
                                   width(GetDlgItem(dialog, IDCANCEL)));
                         widen(dialog, -300);
                       },
                       [&](HWND dialog) {
                         EXPECT_EQ(width(dialog), dialogWidth);
                         Click(dialog, IDCANCEL);
                       }});
  MakeDialogs().ShowCopyTo({}, model);
  EXPECT_TRUE(script.IsDone());
}

class Walk : public ProgressModel {
 public:
  using Work = std::function<void(Walk&, ProgressView&)>;

  explicit Walk(Work work) : m_work(std::move(work)) {}

  std::wstring Title() override { return L"Orvane - Copy to Clipboard Progress"; }
  std::wstring Caption() override { return L"Copy to Clipboard Progress"; }
  void Run(ProgressView& view) noexcept override {
    ++m_runs;
    m_work(*this, view);
  }
  void Cancel() override {
    if (!m_cancelled) m_cancelledAt = GetTickCount();
    m_cancelled = true;
  }

  /// Counts until it is cancelled, five seconds at most.
  void CountOn(ProgressView& view) {
    const DWORD start = GetTickCount();
    for (std::size_t i = 0; !m_cancelled && GetTickCount() - start < 5000; ++i) view.ShowCount(i);
  }

  bool m_cancelled = false;
  DWORD m_cancelledAt = 0;
  int m_runs = 0;

 private:
  Work m_work;
};

TEST(ProgressDialog, ShowsTheWorkAndClosesWithIt) {
  Walk walk([](Walk& self, ProgressView& view) {
    const HWND dialog = OpenDialog();
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_EQ(TextOf(dialog), self.Title());
    EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_AREA)), self.Caption());
    EXPECT_TRUE(GetWindowLongW(GetDlgItem(dialog, IDC_BAR), GWL_STYLE) & PBS_MARQUEE);
    view.ShowFolder(L"C:\\R&D");
    EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_FOLDER)), L"C:\\R&D");
    Sleep(50);
    view.ShowCount(1234);
    EXPECT_EQ(TextOf(GetDlgItem(dialog, IDC_COUNT)), L"1234");
  });
  MakeDialogs().ShowProgress({}, walk);
  EXPECT_EQ(walk.m_runs, 1);
  EXPECT_FALSE(walk.m_cancelled);
  EXPECT_FALSE(OpenDialog());
}

TEST(ProgressDialog, CancelAnswersWithinATenthOfASecond) {
  const Script::Step cancels[] = {[](HWND dialog) { Click(dialog, IDCANCEL); },
                                  [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); },
                                  [](HWND) { Press(WM_KEYDOWN, VK_ESCAPE); }};
  for (const Script::Step& cancel : cancels) {
    DWORD asked = 0;
    Walk walk([](Walk& self, ProgressView& view) { self.CountOn(view); });
    const Script script({[](HWND) {},
                         [&](HWND dialog) {
                           asked = GetTickCount();
                           cancel(dialog);
                         }});
    MakeDialogs().ShowProgress({}, walk);
    EXPECT_TRUE(walk.m_cancelled);
    EXPECT_LT(walk.m_cancelledAt - asked, 100u);
  }
}

TEST(ProgressDialog, TheEndOfItsOwnerCancels) {
  const HWND owner = CreateWindowW(L"STATIC", L"owner", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                   nullptr, nullptr, nullptr, nullptr);
  Walk walk([](Walk& self, ProgressView& view) { self.CountOn(view); });
  const Script script({[&](HWND) { DestroyWindow(owner); }});
  MakeDialogs().ShowProgress(win32::FromNative<WindowHandle>(owner), walk);
  EXPECT_TRUE(walk.m_cancelled);
  EXPECT_EQ(walk.m_runs, 1);
}

TEST(Dialogs, WithoutTheirTemplates) {
  server::Dialogs dialogs(GetModuleHandleW(L"kernel32.dll"));
  Folders model;
  EXPECT_FALSE(dialogs.ShowCopyTo({}, model));
  Walk walk([](Walk&, ProgressView& view) { view.ShowCount(1); });
  dialogs.ShowProgress({}, walk);
  EXPECT_EQ(walk.m_runs, 1);
}

TEST(CopyToDialog, DISABLED_StaysOpen) {
  Folders model;
  MakeDialogs().ShowCopyTo({}, model);
}

TEST(ProgressDialog, DISABLED_StaysOpen) {
  Walk walk([](Walk& self, ProgressView& view) {
    view.ShowFolder(
        L"Z:\\archive\\projects\\a long way down\\where nobody has looked\\photographs");
    for (std::size_t i = 0; !self.m_cancelled; ++i, Sleep(1)) view.ShowCount(i);
  });
  MakeDialogs().ShowProgress({}, walk);
}

}  // namespace
}  // namespace orvane
