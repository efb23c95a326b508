#include "commands/Opener.h"

#include <gtest/gtest.h>

#include "EffectText.h"
#include "commands/OpeningErrors.h"
#include "commands/Warning.h"
#include "platform/memory/Desktop.h"
#include "support/ThreadState.h"

namespace orvane {
namespace {

using test::EffectLines;
using Lines = std::vector<std::string>;

class Opening : public testing::Test {
 protected:
  Opening() { ThreadState::SetCurrent(&state); }
  ~Opening() override { ThreadState::SetCurrent(nullptr); }

  memory::Desktop desktop;
  ThreadState state;
  Opener opener{desktop.launcher, desktop.profiles, desktop.shell};
};

TEST_F(Opening, FilesGoToTheShellAndShortcutsToTheBrowser) {
  constexpr const char* Shortcut = "[InternetShortcut]\r\nURL=http://example.com/a?b=\"c d\"\r\n";
  desktop.files.AddFile(L"C:\\X.URL", Shortcut);
  desktop.files.AddFile(L"C:\\empty.url", "[InternetShortcut]\r\n");
  desktop.files.AddFile(L".url", Shortcut);
  for (const wchar_t* path :
       {L"C:\\a b.txt", L"C:\\X.URL", L"C:\\empty.url", L"C:\\gone.url", L".url"})
    opener.OpenFile(path, WindowHandle::None);
  EXPECT_EQ(EffectLines(desktop.effects),
            (Lines{"ShellExecuteEx file=C:\\a b.txt show=5",
                   "ShellExecuteEx file=iexplore parameters=http://example.com/a?b=\"c d\" show=5",
                   "ShellExecuteEx file=C:\\empty.url show=5",
                   "ShellExecuteEx file=C:\\gone.url show=5", "ShellExecuteEx file=.url show=5"}));
}

TEST_F(Opening, ItemsOpenByPathOrAsThemselves) {
  constexpr std::int32_t Printers = 4;  // a virtual folder
  desktop.files.AddFile(L"C:\\Work\\a.txt");
  opener.OpenFileEx(memory::Shell::ItemOf(L"C:\\Work\\a.txt"), WindowHandle::None);
  opener.OpenFileEx(desktop.shell.SpecialFolder(WindowHandle::None, Printers), WindowHandle::None);
  opener.OpenFolderEx(memory::Shell::ItemOf(L"C:\\Work"), WindowHandle::None);
  EXPECT_EQ(
      EffectLines(desktop.effects),
      (Lines{"ShellExecuteEx file=C:\\Work\\a.txt show=5", "ShellExecuteEx show=5 item=Printers",
             "ShellExecuteEx verb=open show=1 class=Folder item=C:\\Work"}));
}

TEST_F(Opening, SpecialFoldersOpenByTheirNumber) {
  EXPECT_TRUE(opener.OpenSpecialFolderInExplorer(WindowHandle::None, 36));
  EXPECT_FALSE(opener.OpenSpecialFolderInExplorer(WindowHandle::None, 9999));
  EXPECT_EQ(EffectLines(desktop.effects), (Lines{"ShellExecuteEx show=10 item=C:\\Windows"}));
}

TEST_F(Opening, ShowCodeFollowsTheFileAndTheParameters) {
  opener.ShellExecuteChecked({.file = L"C:\\Tools\\Setup.exe", .parameters = L"/x", .show = 10});
  opener.ShellExecuteChecked({.file = L"C:\\Tools\\Setup.exe", .show = 10});
  opener.ShellExecuteChecked({.file = L"C:\\Tools", .directory = L"C:\\", .show = 10});
  EXPECT_EQ(EffectLines(desktop.effects),
            (Lines{"ShellExecute file=C:\\Tools\\Setup.exe parameters=/x show=0",
                   "ShellExecute file=C:\\Tools\\Setup.exe show=1",
                   "ShellExecute file=C:\\Tools directory=C:\\ show=10"}));
}

TEST_F(Opening, FailureBecomesThePendingErrorAndSuccessClearsIt) {
  desktop.launcher.failures[L"C:\\gone"] = 2;
  EXPECT_FALSE(opener.ShellExecuteChecked({.file = L"C:\\gone"}));
  EXPECT_EQ(state.pending.number, 53);
  EXPECT_EQ(state.pending.description, L"File not found");
  EXPECT_EQ(state.pending.source, L"Orvane");
  desktop.launcher.failures[L"C:\\other"] = 33;
  EXPECT_TRUE(opener.ShellExecuteChecked({.file = L"C:\\other"}));
  EXPECT_EQ(state.pending.number, 0);
}

TEST_F(Opening, ErrorTable) {
  const std::wstring other =
      L"An error occurred occurred whilst trying to open or print the selected file.";
  struct {
    std::int32_t code;
    std::int32_t number;
    std::wstring description;
  } const rows[] = {
      {0, 7, L"Out of memory"},
      {1, -2147220455, other},
      {3, 76, L"Path not found"},
      {5, 75, L"Path/file access error"},
      {8, 7, L"Out of memory"},
      {11, -2147220445, L"The executable file is invalid or corrupt"},
      {12, -2147220444, other},
      {25, -2147220431, other},
      {26, 75, L"A sharing violation occurred."},
      {27, -2147220429, L"This file type does not have a valid file association."},
      {28, 286, L"The file could not be opened due to time out. Please try again in a moment."},
      {31, -2147220425, L"No application is associated with this file type."},
      {32, 48, L"The specified dynamic-link library was not found."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(OpeningError(row.code).Number(), row.number) << row.code;
    EXPECT_EQ(OpeningError(row.code).Description(), row.description) << row.code;
  }
}

TEST_F(Opening, WarningsOfAFailedStart) {
  struct {
    PendingError error;
    Lines shown;
  } const rows[] = {
      {{}, {}},
      {{53, L"", L"File not found"},
       {"MessageBox title=Orvane - Orvane Shell Extension text=Path not found - C:\\x "
        "icon=exclamation buttons=ok"}},
      {{76, L"", L"Path not found"},
       {"MessageBox title=Orvane - Orvane Shell Extension text=Path not found - C:\\x "
        "icon=exclamation buttons=ok"}},
      {{75, L"", L"Path/file access error"},
       {"MessageBox title=Orvane - Orvane Shell Extension text=Path/file access error "
        "icon=exclamation buttons=ok"}},
      {{-2147220425, L"", L"No application is associated with this file type."}, {}},
  };
  for (const auto& row : rows) {
    desktop.effects.Clear();
    SetPendingError(row.error);
    WarnOfPendingError(desktop.boxes, L"C:\\x");
    EXPECT_EQ(EffectLines(desktop.effects), row.shown) << row.error.number;
  }
}

}  // namespace
}  // namespace orvane
