#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "host/Library.h"
#include "host/RegistryTree.h"

namespace orvane::host {
namespace {

using Lines = std::vector<std::wstring>;

/// One of the scripts beside this program, run by the command interpreter.
int Run(const std::wstring& script, const std::wstring& argument) {
  const std::filesystem::path folder = std::filesystem::path(LibraryPath()).parent_path();
  return _wsystem((L"\"\"" + (folder / script).wstring() + L"\" " + argument + L" >nul\"").c_str());
}

/// What the classes below the hive hold of the product.
Lines Written(HKEY hive) {
  Lines lines;
  for (const wchar_t* menuOf : {L"*", L"Directory", L"Directory\\Background", L"Drive"}) {
    const std::wstring handlers = std::wstring(menuOf) + L"\\shellex\\ContextMenuHandlers";
    for (const auto& line : RegistryTree(hive, L"Software\\Classes\\" + handlers))
      if (line.starts_with(L"\\Orvane@")) lines.push_back(menuOf + line);
  }
  const std::wstring server = L"CLSID\\{493E3910-BC83-443B-9017-F5B53DB5F5C4}\\InprocServer32";
  for (const auto& line : RegistryTree(hive, L"Software\\Classes\\" + server))
    if (line.starts_with(L"@=")) lines.push_back(line.substr(2));
  return lines;
}

void InstallsAndUninstalls(HKEY hive, const std::wstring& argument, const wchar_t* home) {
  const std::filesystem::path installed =
      std::filesystem::path(_wgetenv(home)) / L"Orvane" / L"orvane.dll";
  ASSERT_EQ(Run(L"install.cmd", argument), 0);
  const std::wstring entry = L"\\Orvane@={493E3910-BC83-443B-9017-F5B53DB5F5C4}";
  EXPECT_EQ(Written(hive), (Lines{L"*" + entry, L"Directory" + entry,
                                  L"Directory\\Background" + entry, L"Drive" + entry, installed}));
  EXPECT_TRUE(std::filesystem::exists(installed));

  EXPECT_EQ(Run(L"uninstall.cmd", argument), 0);
  EXPECT_EQ(Written(hive), Lines());
  EXPECT_FALSE(std::filesystem::exists(installed.parent_path()));
}

TEST(Installer, InstallsForOneUserAndTakesItBack) {
  InstallsAndUninstalls(HKEY_CURRENT_USER, L"user", L"LocalAppData");
}

TEST(Installer, InstallsForAllUsersAndTakesItBack) {
  InstallsAndUninstalls(HKEY_LOCAL_MACHINE, L"", L"ProgramFiles");
  EXPECT_EQ(Library().Call("DllRegisterServer"), S_OK);  // for the other tests
}

}  // namespace
}  // namespace orvane::host
