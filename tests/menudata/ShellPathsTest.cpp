#include "menudata/ShellPaths.h"

#include <gtest/gtest.h>

#include "memory/Desktop.h"

namespace orvane {
namespace {

constexpr WindowHandle NoWindow = WindowHandle::None;

TEST(ShellPaths, SpecialFoldersOfOneNameAreToldApart) {
  memory::Desktop desktop;
  desktop.shell.specialFolders = {{5, {L"C:\\Data", L"Data"}},
                                  {28, {L"C:\\Local\\AppData", L"AppData"}},
                                  {46, {L"C:\\Common\\Data", L"Data"}}};
  const auto name = [&](std::int32_t csidl, bool withPrefix) {
    return GetSpecialFolderName(desktop.shell, NoWindow, csidl, withPrefix);
  };
  EXPECT_EQ(name(46, true), L"Common Data");
  EXPECT_EQ(name(46, false), L"Data");
  EXPECT_EQ(name(28, true), L"Local AppData");
  EXPECT_EQ(name(5, true), L"Data");
  EXPECT_EQ(name(-1, true), L"");
  EXPECT_TRUE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 5, L"C:\\Data"));
  EXPECT_FALSE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 5, L"C:\\data"));
  EXPECT_FALSE(IsCurrentFolderCSIDL(desktop.shell, NoWindow, 99, L"")) << "there is none";
}

TEST(ShellPaths, FolderOfAPath) {
  memory::Desktop desktop;
  desktop.files.AddFile(L"C:\\Data\\a.txt");
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"C:\\a.txt", L"C:\\"},
      {L"C:\\Data", L"C:\\Data"},
      {L"C:\\missing\\b.txt", L"C:\\missing"},
      {L"a.txt", L"a.txt"},
      {L"\\x", L""},
      {L"\\\\srv\\share\\x", L"\\\\srv\\share"}};
  for (const auto& [path, folder] : cases)
    EXPECT_EQ(GetFolderOfPath(desktop.files, path), folder) << path;
  EXPECT_TRUE(FileExists(desktop.files, L"C:\\Data\\A.TXT"));
  EXPECT_FALSE(FileExists(desktop.files, L"C:\\Data")) << "a folder";
}

}  // namespace
}  // namespace orvane
