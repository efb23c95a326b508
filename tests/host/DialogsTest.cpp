// The dialogs' windows, driven as a user's mouse and keyboard would, through posted messages.

#include "server/Dialogs.h"

#include <gtest/gtest.h>

#include <commctrl.h>

#include <functional>
#include <stdexcept>

#include "host/DialogScript.h"
#include "server/DialogIds.h"
#include "win32/NativeHandles.h"

namespace orvane {
namespace {

using host::Click;
using host::OpenDialog;
using host::TextOf;
using Script = host::DialogScript;

void Press(UINT message, WPARAM key) {
  PostMessageW(GetFocus(), message, key, message == WM_SYSCHAR ? 1 << 29 : 0);
}

/// Ways to leave either dialog without having it done.
const Script::Step Cancels[] = {[](HWND) { Press(WM_KEYDOWN, VK_ESCAPE); },
                                [](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); },
                                [](HWND dialog) { Click(dialog, IDCANCEL); }};

server::Dialogs MakeDialogs() {
  return server::Dialogs(GetModuleHandleW(nullptr));
}

class Folders : public CopyToModel {
 public:
  std::wstring Title() override { return L"Orvane - Copy To"; }
  std::wstring InitialDestination() override { return L"C:\\Backup"; }
  std::vector<Slot> Slots() override {
    std::vector<Slot> slots(SLOT_COUNT, {L"", false});
    slots[0] = {L"1. C:\\Backup", true};
    slots[1] = {L"2. D:\\R&D", true};
    return slots;
  }
  bool HasBackground() override { return true; }
  std::wstring Choose(std::size_t slot) override { return Slots().at(slot).caption.substr(3); }
  std::wstring Browse(WindowHandle dialog, const std::wstring& destination) override {
    EXPECT_EQ(dialog, win32::FromNative<WindowHandle>(OpenDialog()));
    return destination + L"\\picked";
  }
  bool Accept(const std::wstring& destination) override {
    if (m_throws) throw std::runtime_error("the list cannot be saved");
    m_offered.push_back(destination);
    return destination == L"D:\\R&D";
  }

  bool m_throws = false;
  std::vector<std::wstring> m_offered;
};

class CopyToDialog : public testing::Test {
 protected:
  /// Whether the dialog ended with a destination.
  bool Show(std::vector<Script::Step> steps) {
    const Script script(std::move(steps));
    const bool accepted = MakeDialogs().ShowCopyTo({}, model);
    EXPECT_TRUE(script.IsDone());
    return accepted;
  }
  void TearDown() override { EXPECT_FALSE(OpenDialog()); }

  /// A step that looks at the destination before it goes on.
  static Script::Step At(const wchar_t* destination, const Script::Step& step) {
    return [=](HWND dialog) {
      EXPECT_EQ(TextOf(dialog, IDC_DESTINATION), destination);
      step(dialog);
    };
  }
  /// A step that presses a key where the keyboard is expected.
  static Script::Step KeyIn(int control, UINT message, WPARAM key) {
    return [=](HWND dialog) {
      EXPECT_EQ(GetFocus(), GetDlgItem(dialog, control));
      Press(message, key);
    };
  }

  Folders model;
};

TEST_F(CopyToDialog, ShowsItsModelAndEndsWithWhatItAccepts) {
  const auto look = [](HWND dialog) {
    EXPECT_EQ(TextOf(dialog), L"Orvane - Copy To");
    EXPECT_EQ(TextOf(dialog, IDC_SLOT + 1), L"&2. D:\\R&&D");
    for (int i = 0; i < SLOT_COUNT; ++i)
      EXPECT_EQ(IsWindowEnabled(GetDlgItem(dialog, IDC_SLOT + i)), i < 2) << i;
    Click(dialog, IDC_BROWSE);
  };
  const auto accept = [](HWND dialog) { Click(dialog, IDOK); };
  EXPECT_TRUE(Show({At(L"C:\\Backup", look), At(L"C:\\Backup\\picked", accept),
                    [](HWND dialog) { Click(dialog, IDC_SLOT + 1); }, At(L"D:\\R&D", accept)}));
  EXPECT_EQ(model.m_offered, (std::vector<std::wstring>{L"C:\\Backup\\picked", L"D:\\R&D"}));
}

TEST_F(CopyToDialog, TheKeyboardIsEnough) {
  const auto enter = [](HWND) { Press(WM_KEYDOWN, VK_RETURN); };
  // Walking over a slot does not choose it; its digit does.
  EXPECT_TRUE(Show({KeyIn(IDC_DESTINATION, WM_KEYDOWN, VK_TAB),
                    KeyIn(IDC_BROWSE, WM_KEYDOWN, VK_TAB), KeyIn(IDC_SLOT, WM_KEYDOWN, VK_DOWN),
                    At(L"C:\\Backup", KeyIn(IDC_SLOT + 1, WM_SYSCHAR, L'd')),
                    KeyIn(IDC_DESTINATION, WM_SYSCHAR, L'2'), At(L"D:\\R&D", enter)}));
}

TEST_F(CopyToDialog, EndsWithoutADestination) {
  for (const Script::Step& cancel : Cancels) EXPECT_FALSE(Show({cancel}));
  EXPECT_FALSE(Show({[](HWND dialog) { DestroyWindow(dialog); }}));
  EXPECT_TRUE(model.m_offered.empty());
}

TEST_F(CopyToDialog, WhatTheModelThrowsEndsItAndComesOut) {
  model.m_throws = true;
  const auto accept = [](HWND dialog) { Click(dialog, IDOK); };
  EXPECT_THROW(Show({accept}), std::runtime_error);
}

TEST_F(CopyToDialog, GrowsWithItsControlsAndDoesNotShrink) {
  const auto width = [](HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect.right - rect.left;
  };
  const auto widen = [&](HWND dialog, LONG by) {
    SetWindowPos(dialog, nullptr, 0, 0, width(dialog) + by, 500, SWP_NOMOVE | SWP_NOZORDER);
  };
  Show({[&](HWND dialog) {
    const LONG before = width(dialog);
    const LONG field = width(GetDlgItem(dialog, IDC_DESTINATION));
    widen(dialog, 100);
    EXPECT_EQ(width(GetDlgItem(dialog, IDC_DESTINATION)), field + 100);
    EXPECT_EQ(width(GetDlgItem(dialog, IDOK)), width(GetDlgItem(dialog, IDCANCEL)));
    widen(dialog, -300);
    EXPECT_EQ(width(dialog), before);
    Click(dialog, IDCANCEL);
  }});
}

TEST_F(CopyToDialog, KeepsItsLayoutOnAScreenOfAnotherScaling) {
  const auto placeOf = [](HWND dialog, int control) {
    RECT rect{};
    GetWindowRect(GetDlgItem(dialog, control), &rect);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
  };
  const auto fontHeight = [](HWND dialog) {
    LOGFONTW font{};
    const LRESULT used = SendDlgItemMessageW(dialog, IDC_DESTINATION, WM_GETFONT, 0, 0);
    GetObjectW(reinterpret_cast<HFONT>(used), sizeof font, &font);
    return font.lfHeight;
  };
  Show({[&](HWND dialog) {
    RECT window{};
    GetWindowRect(dialog, &window);
    const RECT field = placeOf(dialog, IDC_DESTINATION), slot = placeOf(dialog, IDC_SLOT + 3);
    const RECT label = placeOf(dialog, -1);
    const LONG font = fontHeight(dialog);
    for (const int dpi : {144, 192, 144}) {
      SCOPED_TRACE(dpi);
      RECT place{0, 0, MulDiv(window.right - window.left, dpi, 96),
                 MulDiv(window.bottom - window.top, dpi, 96)};
      SendMessageW(dialog, WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&place));
      EXPECT_EQ(fontHeight(dialog), MulDiv(font, dpi, 96));
      EXPECT_EQ(placeOf(dialog, IDC_SLOT + 3).top, MulDiv(slot.top, dpi, 96));
      EXPECT_EQ(placeOf(dialog, -1).right, MulDiv(label.right, dpi, 96)) << "what follows no edge";
      EXPECT_NEAR(placeOf(dialog, IDC_DESTINATION).right, MulDiv(field.right, dpi, 96), 12)
          << "but for the frame, which grows by itself";
      EXPECT_LE(placeOf(dialog, IDCANCEL).right, place.right);
    }
    Click(dialog, IDCANCEL);
  }});
}

class Walk : public ProgressModel {
 public:
  using Work = std::function<void(ProgressView&)>;

  /// Without work it counts until it is cancelled, five seconds at most.
  explicit Walk(Work work = {}) : m_work(std::move(work)) {}

  std::wstring Title() override { return L"Orvane - Copy to Clipboard Progress"; }
  std::wstring Caption() override { return L"Copy to Clipboard Progress"; }
  void Run(ProgressView& view) noexcept override {
    ++m_runs;
    if (m_work) return m_work(view);
    const DWORD start = GetTickCount();
    for (std::size_t i = 0; !m_cancelled && GetTickCount() - start < 5000; ++i) view.ShowCount(i);
  }
  void Cancel() override {
    if (!m_cancelled) m_cancelledAt = GetTickCount();
    m_cancelled = true;
  }

  bool m_cancelled = false;
  DWORD m_cancelledAt = 0;
  int m_runs = 0;

 private:
  Work m_work;
};

TEST(ProgressDialog, ShowsTheWorkAndClosesWithIt) {
  Walk walk([](ProgressView& view) {
    const HWND dialog = OpenDialog();
    EXPECT_TRUE(IsWindowVisible(dialog));
    EXPECT_EQ(TextOf(dialog), L"Orvane - Copy to Clipboard Progress");
    EXPECT_EQ(TextOf(dialog, IDC_AREA), L"Copy to Clipboard Progress");
    EXPECT_TRUE(GetWindowLongW(GetDlgItem(dialog, IDC_BAR), GWL_STYLE) & PBS_MARQUEE);
    view.ShowFolder(L"C:\\R&D");
    EXPECT_EQ(TextOf(dialog, IDC_FOLDER), L"C:\\R&D");
    Sleep(50);
    view.ShowCount(1234);
    EXPECT_EQ(TextOf(dialog, IDC_COUNT), L"1234");
  });
  MakeDialogs().ShowProgress({}, walk);
  EXPECT_EQ(walk.m_runs, 1);
  EXPECT_FALSE(walk.m_cancelled);
  EXPECT_FALSE(OpenDialog());
}

TEST(ProgressDialog, CancelAnswersWithinATenthOfASecond) {
  for (const Script::Step& cancel : Cancels) {
    DWORD asked = 0;
    Walk walk;
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

TEST(ProgressDialog, TheHeldEnterThatChoseTheEntryDoesNotCancel) {
  constexpr LPARAM Repeated = 1 << 30;
  Walk walk([&](ProgressView& view) {
    const HWND cancel = GetDlgItem(OpenDialog(), IDCANCEL);
    for (const bool first : {false, true}) {
      PostMessageW(cancel, WM_KEYDOWN, VK_RETURN, first ? 0 : Repeated);
      Sleep(50);
      view.ShowCount(1);
      EXPECT_EQ(walk.m_cancelled, first) << "a key pressed anew cancels";
    }
  });
  MakeDialogs().ShowProgress({}, walk);
}

TEST(ProgressDialog, TheEndOfItsOwnerCancels) {
  const HWND owner = CreateWindowW(L"STATIC", L"owner", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100,
                                   nullptr, nullptr, nullptr, nullptr);
  Walk walk;
  const Script script({[&](HWND) { DestroyWindow(owner); }});
  MakeDialogs().ShowProgress(win32::FromNative<WindowHandle>(owner), walk);
  EXPECT_TRUE(walk.m_cancelled);
  EXPECT_EQ(walk.m_runs, 1);
}

TEST(Dialogs, WithoutTheirTemplates) {
  server::Dialogs dialogs(GetModuleHandleW(L"kernel32.dll"));
  Folders model;
  EXPECT_FALSE(dialogs.ShowCopyTo({}, model));
  Walk walk([](ProgressView& view) { view.ShowCount(1); });
  EXPECT_FALSE(dialogs.ShowProgress({}, walk));
  EXPECT_EQ(walk.m_runs, 0);
}

}  // namespace
}  // namespace orvane
