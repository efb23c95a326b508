#include <set>

#include "designer/Desk.h"
#include "designer/MenuHome.h"
#include "designer/RecentList.h"
#include "designer/SettingsDraft.h"
#include "designer/StartMenu.h"

// What the designer shows beside the menu: settings, lists, programs, the place of the files.

namespace orvane::test {
namespace {

using designer::RecentList;
using designer::SettingRow;
using designer::SettingsDraft;
constexpr Hive User = Hive::CurrentUser;

struct SettingsWorld : Desk {
  SettingsServices services{desktop.registry, desktop.files, desktop.boxes,
                            desktop.system,   desktop.clock, desktop.locale};
  clsOptions current = DefaultSettings(desktop.system);
  SettingsDraft draft{current, current};

  static SettingRow Row(const std::wstring& label) {
    for (std::size_t page = 0; page < SettingsDraft::Pages; ++page)
      for (const SettingRow& row : SettingsDraft::Rows(page))
        if (row.Label() == label) return row;
    throw Error(Error::InvalidArgument, label);
  }
  auto Stored(const wchar_t* name) { return desktop.registry.FindNumber(User, SettingsKey, name); }
};

TEST(SettingsWindow, HasEverySettingWithItsMeaningAndAWayBack) {
  SettingsWorld world;
  std::set<const Setting*> shown;
  for (std::size_t page = 0; page < SettingsDraft::Pages; ++page) {
    for (const SettingRow& row : SettingsDraft::Rows(page)) {
      shown.insert(row.setting);
      EXPECT_TRUE(world.draft.Help(row).starts_with(row.setting->meaning));
      if (row.kind == SettingRow::Kind::Check)
        world.draft.Choice(row, !world.draft.Choice(row));
      else if (row.kind == SettingRow::Kind::Choice)
        world.draft.Choice(row, world.draft.Choice(row) ? 0 : 1);
      else if (!row.IsFixed())
        world.draft.Text(row, row.kind == SettingRow::Kind::File ? L" D:\\a " : L"7");
      EXPECT_EQ(world.draft.IsDefault(row), row.IsFixed()) << row.setting->value;
      world.draft.ToDefault(row);
      EXPECT_TRUE(world.draft.IsDefault(row)) << row.setting->value;
    }
  }
  EXPECT_EQ(shown.size(), Settings().size());
  EXPECT_FALSE(world.draft.IsChanged());
}

TEST(SettingsWindow, SavesWhatWasChangedOverWhatIsStoredByThen) {
  SettingsWorld world;
  world.draft.Choice(world.Row(L"Task Manager"), 0);
  world.draft.Choice(world.Row(L"The file holds scrambled records"), 0);
  world.draft.Text(world.Row(L"Longest caption"), L"20");
  world.current.m_bShellOwnerDraw = false;  // by another program meanwhile
  world.draft.Save(world.services, world.current);
  EXPECT_EQ(world.Stored(L"ShellShowFlags"), 126U);
  EXPECT_EQ(world.Stored(L"DebugFlags"), 2U);
  EXPECT_EQ(world.Stored(L"ShellMaxMenuText"), 20U);
  EXPECT_EQ(world.Stored(L"ShellOwnerDraw"), 0U);
}

TEST(SettingsWindow, RefusesWhatCannotBeAndTellsWhatTheRegistryRefuses) {
  SettingsWorld world;
  for (const auto& [label, text] : {std::pair{L"Entries of History", L"1001"},
                                    {L"Entries of History", L"-1"},
                                    {L"Entries of History", L""},
                                    {L"Longest caption", L"4 "},
                                    {L"Longest caption", L"99999999999999999999"},
                                    {L"Menu definition file", L"Default.cfg"},
                                    {L"Debug log's file", L""}})
    EXPECT_TRUE(ErrorOf([&] { world.draft.Text(world.Row(label), text); }).starts_with(label));
  world.desktop.registry.Deny(User, SettingsKey);
  EXPECT_FALSE(world.draft.IsChanged());
  world.draft.Choice(world.Row(L"Show the menu"), 0);
  EXPECT_NE(ErrorOf([&] { world.draft.Save(world.services, world.current); }), L"");
}

TEST(Lists, AreSeenInWordsAndForgottenWithoutATrace) {
  Desk desk;
  clsMRU history(desk.desktop.registry);
  history.Path(HistoryKey);
  history.MaxFileCount(5);
  history.UserInterface(false);
  for (const wchar_t* name : {L"one", L"two", L"three"})
    history.AddFile(desk.globals.tools.CreateHistoryMRU(
        Record(Data::TypeFile, name, std::wstring(L"C:\\") + name)));
  std::vector<RecentList> lists = RecentList::All(desk.desktop.registry, desk.globals.tools);
  using Words = std::vector<std::wstring>;
  EXPECT_EQ(lists[0].Read(), (Words{L"File: C:\\three", L"File: C:\\two", L"File: C:\\one"}));
  lists[0].Forget({0, 2});
  EXPECT_EQ(lists[0].Read(), Words{L"File: C:\\two"});
  EXPECT_EQ(desk.desktop.registry.FindText(User, HistoryKey, L"Mru3"), L"");
  history.Load(5);
  EXPECT_EQ(history.FileCount(), 1);
  EXPECT_EQ(lists[2].Read(), Words{});
  desk.desktop.registry.Deny(User, HistoryKey);
  EXPECT_NE(ErrorOf([&] { lists[0].Forget({0}); }), L"");
}

TEST(StartMenu, IsWalkedWithinBoundsAndFiltered) {
  Desk desk;
  desk.desktop.shell.specialFolders[2] = {L"C:\\Mine", L"Programs"};
  desk.desktop.shell.specialFolders[0x17] = {L"C:\\All", L"Programs"};
  memory::FileSystem& files = desk.desktop.files;
  for (const wchar_t* path : {L"C:\\Mine\\Zip.lnk", L"C:\\Mine\\desktop.ini",
                              L"C:\\All\\Tools\\Editor.lnk", L"C:\\All\\Tools\\Old\\editor 2.LNK"})
    files.AddFile(path);
  files.AddLink(L"C:\\All\\Round", L"C:\\All");
  std::wstring deep = L"C:\\Mine";
  for (int i = 0; i < 40; ++i) deep += L"\\d";
  files.AddFile(deep + L"\\lost.lnk");
  const auto programs = designer::StartMenuPrograms(desk.desktop.Bundle());
  std::wstring all;
  for (const auto& program : programs) all += program.Text() + L";";
  EXPECT_EQ(all, L"Editor (Tools);editor 2 (Tools\\Old);Zip;");
  const auto some = WithWords(programs, L" OLD edit");
  ASSERT_EQ(some.size(), 1U);
  EXPECT_EQ(some[0].path, L"C:\\All\\Tools\\Old\\editor 2.LNK");
}

TEST(Shortcuts, BecomeWhatTheyPointAtInOneStep) {
  Desk desk;
  MenuItem& one = desk.Add(Record(Data::TypeFile, L"One", L"C:\\One.LNK"));
  MenuItem& dead = desk.Add(Record(Data::TypeFile, L"Dead", L"C:\\Dead.lnk"));
  MenuItem& plain = desk.Add(Record(Data::TypeFile, L"Plain", L"C:\\plain.txt"));
  const auto target = [](const std::wstring& path) {
    return path == L"C:\\One.LNK" ? std::wstring(L"C:\\one.exe") : std::wstring();
  };
  EXPECT_EQ(ReplaceShortcuts(desk.Edits(), {&one, &dead, &plain}, target), Items{&one});
  EXPECT_EQ(one.data.Location(), L"C:\\one.exe");
  desk.Edits().Undo();
  EXPECT_EQ(one.data.Location(), L"C:\\One.LNK");
  EXPECT_EQ(ReplaceShortcuts(desk.Edits(), {&dead, &plain}, target), Items{});
  EXPECT_EQ(desk.Edits().NextUndo()->name, L"Insert");  // nothing changed is no step
}

TEST(MenuHome, IsTheFolderOfTheDllThatShowsTheMenu) {
  const wchar_t* own = L"C:\\App\\designer";
  const wchar_t* key = L"CLSID\\{493E3910-BC83-443B-9017-F5B53DB5F5C4}\\InprocServer32";
  memory::Desktop desktop;
  const auto home = [&] { return designer::MenuHome(desktop.files, desktop.registry, own); };
  EXPECT_EQ(home(), own);
  desktop.registry.SetText(Hive::ClassesRoot, key, L"", L"C:\\App\\shell\\orvane.dll");
  EXPECT_EQ(home(), own);  // registered, and gone
  desktop.files.AddFile(L"C:\\App\\shell\\orvane.dll");
  EXPECT_EQ(home(), L"C:\\App\\shell");
  desktop.files.AddFile(L"C:\\App\\designer\\orvane.dll");
  EXPECT_EQ(home(), own);
}

}  // namespace
}  // namespace orvane::test
