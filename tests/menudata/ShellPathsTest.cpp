#include "menudata/ShellPaths.h"

#include <gtest/gtest.h>

#include "platform/memory/Desktop.h"

namespace orvane {
namespace {

constexpr WindowHandle NoWindow = WindowHandle::None;

struct ShellPathsTest : testing::Test {
  ShellPathsTest() {
    desktop.files.AddFolder(L"C:\\Data");
    desktop.files.AddFile(L"C:\\a.txt");
    desktop.shell.specialFolders = {{5, {L"C:\\Data", L"Data"}},
                                    {10, {L"", L"Recycle Bin"}},
                                    {28, {L"C:\\Local\\AppData", L"AppData"}},
                                    {46, {L"C:\\Common\\Data", L"Data"}}};
  }
  memory::Desktop desktop;
};

TEST_F(ShellPathsTest, PathsAndLists) {
  const ItemIdList item = GetPidlFromPath(desktop.shell, NoWindow, L"C:\\a.txt");
  EXPECT_TRUE(item);
  EXPECT_EQ(PidlToPath(desktop.shell, item), L"C:\\a.txt");
  EXPECT_FALSE(GetPidlFromPath(desktop.shell, NoWindow, L"C:\\none.txt"));
  EXPECT_EQ(PidlToPath(desktop.shell, desktop.shell.SpecialFolder(NoWindow, 10)), L"");
}

TEST_F(ShellPathsTest, SpecialFolders) {
  EXPECT_TRUE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 5, L"C:\\Data"));
  EXPECT_FALSE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 5, L"C:\\data"));
  EXPECT_FALSE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 99, L"C:\\Data"));
  const struct {
    std::int32_t csidl;
    bool prefix;
    const wchar_t* name;
  } cases[] = {{46, true, L"Common Data"},
               {46, false, L"Data"},
               {28, true, L"Local AppData"},
               {5, true, L"Data"},
               {10, true, L"Recycle Bin"},
               {99, true, L""},
               {-1, true, L""}};
  for (const auto& row : cases) {
    EXPECT_EQ(GetSpecialFolderName(desktop.shell, NoWindow, row.csidl, row.prefix), row.name)
        << row.csidl;
  }
}

TEST_F(ShellPathsTest, FilesAndFolders) {
  EXPECT_TRUE(IsDirectory(desktop.files, L"C:\\Data"));
  EXPECT_FALSE(IsDirectory(desktop.files, L"C:\\a.txt"));
  EXPECT_FALSE(IsDirectory(desktop.files, L"C:\\none"));
  EXPECT_TRUE(FileExists(desktop.files, L"C:\\A.TXT"));
  EXPECT_FALSE(FileExists(desktop.files, L"C:\\Data"));
  EXPECT_FALSE(FileExists(desktop.files, L""));
  EXPECT_EQ(GetDisplayName(desktop.shell, L"C:\\a.txt"), L"a.txt");
}

TEST_F(ShellPathsTest, FolderOfAPath) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"C:\\a.txt", L"C:\\"},
      {L"C:\\Data", L"C:\\Data"},
      {L"C:\\missing\\b.txt", L"C:\\missing"},
      {L"a.txt", L"a.txt"},
      {L"", L""},
      {L"\\x", L""},
      {L"\\\\srv\\share\\x", L"\\\\srv\\share"}};
  for (const auto& [path, folder] : cases) {
    EXPECT_EQ(GetFolderOfPath(desktop.files, path), folder) << path;
  }
}

}  // namespace
}  // namespace orvane
