#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"
#ifdef _WIN32
#include <windows.h>

#include <objbase.h>

#include "platform/win32/Dialogs.h"
#include "platform/win32/NativeHandles.h"
#include "platform/win32/Shell.h"
#endif

namespace orvane {
namespace {

constexpr std::uint32_t FoldersWithValidation = 0x75;

/// A browse model that writes down what it is told.
struct Browser : BrowseModel {
  std::wstring start;
  int opened = 0;
  int selections = 0;
  int invalidEntries = 0;
  ItemIdList selected;

  void Opened(BrowseWindow& window) override {
    ++opened;
    window.Select(start);
    window.Expand(start);
  }
  void Selected(BrowseWindow& window, const ItemIdList& item) override {
    ++selections;
    selected = item;
    window.SetStatus(L"status");
  }
  bool InvalidEntry() override {
    ++invalidEntries;
    return true;
  }
};

struct OnMemory {
  memory::Desktop desktop;
  Dialogs& dialogs = desktop.dialogs;
  Shell& shell = desktop.shell;
  std::wstring folder = L"C:\\Backup";

  OnMemory() { desktop.files.AddFolder(folder); }
  void WillPress(const wchar_t* button) { desktop.answers.Add(button); }
};

#ifdef _WIN32
struct OnWindows {
  win32::Dialogs dialogs;
  win32::Shell shell;
  std::wstring folder = L"C:\\windows\\system32";
  HANDLE presser = nullptr;

  OnWindows() { EXPECT_TRUE(SUCCEEDED(OleInitialize(nullptr))); }
  ~OnWindows() {
    WaitForSingleObject(presser, INFINITE);
    CloseHandle(presser);
    OleUninitialize();
  }
  void WillPress(const wchar_t* button) {
    presser = CreateThread(nullptr, 0, Press, const_cast<wchar_t*>(button), 0, nullptr);
  }

  static DWORD WINAPI Press(void* parameter) {
    const bool ok = std::wstring(static_cast<const wchar_t*>(parameter)) == L"ok";
    for (int i = 0; i < 500; ++i, Sleep(20)) {
      const HWND dialog = FindWindowW(L"#32770", nullptr);
      if (!dialog || !IsWindowVisible(dialog)) continue;
      Sleep(300);  // lets the tree follow the selection
      PostMessageW(dialog, WM_COMMAND, ok ? IDOK : IDCANCEL, 0);
      return 0;
    }
    return 0;
  }
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class DialogsContract : public testing::Test {
 protected:
  BackEnd m_backEnd;
  Dialogs& dialogs = m_backEnd.dialogs;
  Shell& shell = m_backEnd.shell;
};
TYPED_TEST_SUITE(DialogsContract, BackEnds, );

TYPED_TEST(DialogsContract, BrowsingPicksWhatTheModelSelected) {
  Browser browser;
  browser.start = this->m_backEnd.folder;
  this->m_backEnd.WillPress(L"ok");
  const Dialogs::Picked picked =
      this->dialogs.Browse(WindowHandle::None, this->shell.SpecialFolder(WindowHandle::None, 0),
                           L"Pick a folder:", FoldersWithValidation, browser);
  EXPECT_EQ(this->shell.Path(picked.item), this->m_backEnd.folder);
  // Wine hands out the whole path when the dialog has an edit field
  EXPECT_TRUE(picked.displayName.ends_with(
      this->m_backEnd.folder.substr(this->m_backEnd.folder.rfind(L'\\') + 1)));
  EXPECT_EQ(browser.opened, 1);
  EXPECT_GE(browser.selections, 1);
  EXPECT_EQ(this->shell.Path(browser.selected), this->m_backEnd.folder);
}

TYPED_TEST(DialogsContract, BrowsingCanBeGivenUp) {
  Browser browser;
  this->m_backEnd.WillPress(L"cancel");
  EXPECT_FALSE(this->dialogs
                   .Browse(WindowHandle::None, this->shell.SpecialFolder(WindowHandle::None, 0),
                           L"Pick a folder:", FoldersWithValidation, browser)
                   .item);
  EXPECT_EQ(browser.opened, 1);
}

TEST(MemoryDialogs, BrowsingAsksAgainAfterAnInvalidEntry) {
  memory::Desktop desktop;
  desktop.files.AddFolder(L"C:\\Backup");
  desktop.answers.Add(L"C:\\missing");
  desktop.answers.Add(L"C:\\Backup");
  Browser browser;
  const auto picked = desktop.dialogs.Browse({}, {}, L"", FoldersWithValidation, browser);
  EXPECT_EQ(desktop.shell.Path(picked.item), L"C:\\Backup");
  EXPECT_EQ(browser.invalidEntries, 1);
}

}  // namespace
}  // namespace orvane
