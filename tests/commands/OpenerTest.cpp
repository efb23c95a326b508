#include "commands/Opener.h"

#include "Scene.h"
#include "commands/OpeningErrors.h"
#include "commands/Warning.h"

namespace orvane::test {
namespace {

class Opening : public testing::Test, protected Scene {
 protected:
  Opener opener{desktop.launcher, desktop.profiles, desktop.shell};
};

TEST_F(Opening, FilesGoToTheShellAndShortcutsToTheBrowser) {
  constexpr const char* Shortcut = "[InternetShortcut]\r\nURL=http://example.com/a?b=\"c d\"\r\n";
  desktop.files.AddFile(L"C:\\X.URL", Shortcut);
  desktop.files.AddFile(L"C:\\empty.url", "[InternetShortcut]\r\n");
  desktop.files.AddFile(L".url", Shortcut);
  for (const wchar_t* path : {L"C:\\a b.txt", L"C:\\X.URL", L"C:\\empty.url", L".url"})
    opener.OpenFile(path, WindowHandle::None);
  EXPECT_EQ(Effects(),
            (Lines{"ShellExecuteEx file=C:\\a b.txt show=5",
                   "ShellExecuteEx file=iexplore parameters=http://example.com/a?b=\"c d\" show=5",
                   "ShellExecuteEx file=C:\\empty.url show=5", "ShellExecuteEx file=.url show=5"}));
}

TEST_F(Opening, ItemsOpenByPathOrAsThemselves) {
  constexpr std::int32_t Printers = 4;  // a virtual folder
  desktop.files.AddFile(L"C:\\Work\\a.txt");
  opener.OpenFileEx(memory::Shell::ItemOf(L"C:\\Work\\a.txt"), WindowHandle::None);
  opener.OpenFileEx(desktop.shell.SpecialFolder(WindowHandle::None, Printers), WindowHandle::None);
  EXPECT_EQ(Effects(), (Lines{"ShellExecuteEx file=C:\\Work\\a.txt show=5",
                              "ShellExecuteEx show=5 item=Printers"}));
}

TEST_F(Opening, ShowCodeFollowsTheFileAndTheParameters) {
  opener.ShellExecuteChecked({.file = L"C:\\Tools\\Setup.exe", .parameters = L"/x", .show = 10});
  opener.ShellExecuteChecked({.file = L"C:\\Tools\\Setup.exe", .show = 10});
  opener.ShellExecuteChecked({.file = L"C:\\Tools", .directory = L"C:\\", .show = 10});
  EXPECT_EQ(Effects(), (Lines{"ShellExecute file=C:\\Tools\\Setup.exe parameters=/x show=0",
                              "ShellExecute file=C:\\Tools\\Setup.exe show=1",
                              "ShellExecute file=C:\\Tools directory=C:\\ show=10"}));
}

TEST_F(Opening, FailureBecomesThePendingErrorAndSuccessClearsIt) {
  desktop.launcher.failures = {{L"C:\\gone", 2}, {L"C:\\other", 33}};
  EXPECT_FALSE(opener.ShellExecuteChecked({.file = L"C:\\gone"}));
  EXPECT_EQ(state.pending.number, 53);
  EXPECT_EQ(state.pending.description, L"File not found");
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
      {11, -2147220445, L"The executable file is invalid or corrupt"},
      {12, -2147220444, other},
      {26, 75, L"A sharing violation occurred."},
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
      {{53, L"", L"File not found"}, {Warning("Path not found - C:\\x")}},
      {{76, L"", L"Path not found"}, {Warning("Path not found - C:\\x")}},
      {{75, L"", L"Path/file access error"}, {Warning("Path/file access error")}},
      {{-2147220425, L"", L"No application is associated with this file type."}, {}},
  };
  for (const auto& row : rows) {
    SetPendingError(row.error);
    WarnOfPendingError(desktop.boxes, L"C:\\x");
    EXPECT_EQ(Effects(), row.shown) << row.error.number;
  }
}

}  // namespace
}  // namespace orvane::test
