// Attacks on what the menu starts, and what its user's host must find unchanged.

#include <gtest/gtest.h>

#include <windows.h>

#include <psapi.h>

#include <clocale>
#include <filesystem>
#include <fstream>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/Effects.h"
#include "host/Library.h"
#include "host/Modes.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;
namespace fs = std::filesystem;

/// A user in a folder that somebody else has filled: it is the selection's and the current one.
class Launch : public testing::Test {
 protected:
  Launch() {
    scene.PlainText();
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    GetCurrentDirectoryW(MAX_PATH, m_directory);
    SetCurrentDirectoryW(scene.Folder().c_str());
  }
  ~Launch() override {
    SetCurrentDirectoryW(m_directory);
    for (const fs::path& program : m_planted) {
      std::error_code ignored;
      fs::remove(program, ignored);
      fs::remove(program.wstring() + L".ran", ignored);
    }
  }

  void Plant(const fs::path& program) {
    fs::copy_file(HostPath(), program, fs::copy_options::overwrite_existing);
    m_planted.push_back(program);
  }

  /// Programs that were planted and ran all the same.
  std::wstring Ran() const {
    std::wstring names;
    for (const fs::path& program : m_planted) {
      if (fs::exists(program.wstring() + L".ran")) names += program.wstring() + L' ';
    }
    return names;
  }

  static DefinitionItem Task(const std::wstring& command, const std::wstring& parameters) {
    return {1,
            Item::TypeSelectionTask,
            0,
            {L"", L"Go", command, parameters, L"\"", L"\" ", L"", L"", L"", L"", L"1"}};
  }

  void Choose(const DefinitionItem& item, const std::vector<std::wstring>& names) {
    WriteDefinition(scene.Path(L"Menu.cfg"), {{0, Item::TypeRoot, 0, {L"Zoo"}}, item});
    RightClick click(scene.Folder(), Select(scene.Folder(), names).Get());
    click.Query();
    EXPECT_TRUE(click.Choose(L"Go")) << click.Text();
  }

  Apartment apartment;
  Scene scene;
  const std::wstring started = scene.Path(L"started.out");

 private:
  wchar_t m_directory[MAX_PATH];
  std::vector<fs::path> m_planted;
};

constexpr wchar_t Registration[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\iexplore.exe";

TEST_F(Launch, StartsNothingThatWasPlanted) {
  for (const wchar_t* name : {L"iexplore.exe", L"planted.exe", L"cmd.exe", L"designer.exe"})
    Plant(scene.Path(name));
  Plant(L"C:\\Program.exe");
  Plant(L"C:\\Orvane.exe");  // above the scene's own folder, up to its blank
  fs::create_directory(scene.Path(L"sub"));
  Plant(scene.Path(L"sub\\planted.exe"));

  // What is not there, or is meant by its bare name, starts nothing.
  const std::wstring missing = scene.Path(L"missing.exe");
  const DefinitionItem rows[] = {
      {1, Item::TypeFile, 0, {L"C:\\Program Files\\missing.exe", L"Go"}},
      {1, Item::TypeFile, 0, {missing, L"Go"}},
      {1, Item::TypeFile, 0, {L"planted.exe", L"Go"}},
      {1, Item::TypeFile, 0, {L"planted", L"Go"}},
      {1, Item::TypeFile, 0, {L"sub\\planted.exe", L"Go"}},
      {1, Item::TypeFile, 0, {L".\\planted.exe", L"Go"}},
      {1, Item::TypeFile, 0, {L"C:planted.exe", L"Go"}},
      Task(L"planted", L"[orv_selection]"),
      Task(L"C:\\Program Files\\missing.exe", L"[orv_selection]"),
      Task(missing, L""),
  };
  for (const DefinitionItem& row : rows) Choose(row, {L"a.txt"});

  // An address goes to the browser that is registered.
  const std::wstring browser = HostPath();
  RegSetKeyValueW(HKEY_CURRENT_USER, Registration, nullptr, REG_SZ, browser.c_str(),
                  static_cast<DWORD>((browser.size() + 1) * sizeof(wchar_t)));
  std::ofstream(fs::path(scene.Path(L"x.url")))
      << "[InternetShortcut]\nURL=--write \"" << fs::path(started).string() << "\" http://x\n";
  Choose({1, Item::TypeFile, 0, {scene.Path(L"x.url"), L"Go"}}, {L"a.txt"});
  EXPECT_EQ(WaitForFile(started), scene.Folder() + L"\nhttp://x\n");
  RegDeleteTreeW(HKEY_CURRENT_USER, Registration);
  Sleep(500);  // what was started would have written its record by then
  EXPECT_EQ(Ran(), L"");
}

TEST_F(Launch, GivesEachNameAsOneArgument) {
  const std::vector<std::wstring> names = {L"a b.txt",
                                           L"100%.txt",
                                           L"%TEMP%.txt",
                                           L"R&D.txt",
                                           L"^x^.txt",
                                           L"-n.txt",
                                           L"'.txt",
                                           L"[orv_item]",
                                           L"a;b,c=.txt",
                                           L"\u0416\u4e2d.txt",
                                           L"\u00e9 \U0001F600.txt"};
  std::wstring expected;
  for (const std::wstring& name : names) {
    std::ofstream(fs::path(scene.Path(name.c_str()))) << "x";
    expected += scene.Path(name.c_str()) + L'\n';
  }
  Choose(Task(HostPath(), L"--write \"" + started + L"\" [orv_selection]"), names);
  const std::wstring record = WaitForFile(started);
  EXPECT_EQ(record.substr(record.find(L'\n') + 1), WithSurrogatesSpelt(expected));
}

/// Modules of this process that were loaded from the folder.
std::wstring ModulesFrom(const std::wstring& folder) {
  HMODULE modules[1024];
  DWORD size = 0;
  EnumProcessModules(GetCurrentProcess(), modules, sizeof modules, &size);
  std::wstring loaded;
  for (DWORD i = 0; i < size / sizeof(HMODULE); ++i) {
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(modules[i], path, MAX_PATH);
    if (std::wstring(path).starts_with(folder)) loaded += path + std::wstring(L" ");
  }
  return loaded;
}

TEST_F(Launch, LeavesTheHostAsItWasAndLoadsNoDecoy) {
  for (const wchar_t* name : {L"shcore.dll", L"comctl32.dll", L"uxtheme.dll", L"propsys.dll",
                              L"version.dll", L"winmm.dll", L"ws2_32.dll", L"msvcrt.dll"})
    fs::copy_file(LibraryPath(), scene.Path(name));
  std::setlocale(LC_ALL, "C");
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  const LCID threadLocale = GetThreadLocale();
  const UINT mode = SetErrorMode(SEM_NOOPENFILEERRORBOX);
  Choose(Task(HostPath(), L"--write \"" + started + L"\" [orv_selection]"), {L"a.txt"});
  EXPECT_NE(WaitForFile(started), L"");
  Choose({1, Item::TypeFile, 0, {scene.Path(L"nothing.txt"), L"Go"}}, {L"a.txt"});
  EXPECT_EQ(fs::current_path(), scene.Folder());
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), locale);
  EXPECT_EQ(GetThreadLocale(), threadLocale);
  EXPECT_EQ(SetErrorMode(mode), static_cast<UINT>(SEM_NOOPENFILEERRORBOX));
  EXPECT_EQ(ModulesFrom(scene.Folder()), L"");
}

}  // namespace
}  // namespace orvane::host
