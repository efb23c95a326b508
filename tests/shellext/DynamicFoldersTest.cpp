#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

const std::wstring Empty = L"(Empty) (disabled)\n";

/// A right-click with one dynamic folder, not opened yet.
struct Folder : RightClick {
  explicit Folder(const wchar_t* filter = L"", const wchar_t* location = L"C:\\Work") {
    Data item = Item(Data::TypeDynamicFolder, L"Work", location);
    item.m_szDFolder_Filter = filter;
    RightClick::Add(item);
  }

  void AddFiles(std::initializer_list<std::wstring> names) {
    for (const std::wstring& name : names) desktop.files.AddFile(L"C:\\Work\\" + name);
  }

  std::wstring ClickAndOpen() {
    Click();
    return Open(L"Work");
  }
};

TEST(DynamicFolders, ListFilesFirstAndEachKindFromTheEndOfTheAlphabet) {
  Folder click;
  click.AddFiles({L"b.txt", L"A.txt", L"Alpha\\x", L"Zed\\x"});
  EXPECT_EQ(click.ClickAndOpen(), L"b.txt\nA.txt\nZed >\n  " + Empty + L"Alpha >\n  " + Empty);
}

TEST(DynamicFolders, FilterFilesButNotFoldersAllTheWayDown) {
  const struct {
    const wchar_t* filter;
    std::wstring files;
    const wchar_t* deeper;
  } rows[] = {{L"*.txt,*.DOC", L"b.doc\na.txt\n", L"e.txt\n"},
              {L"[!ab]*", L"c.exe\n", L"f.exe\ne.txt\n"},
              {L",,", L"", L"(Empty) (disabled)\n"},
              {L"[", L"", L"(Empty) (disabled)\n"},
              {L"[z-a]", L"", L"(Empty) (disabled)\n"}};
  for (const auto& row : rows) {
    Folder click(row.filter);
    click.AddFiles({L"a.txt", L"b.doc", L"c.exe", L"d\\e.txt", L"d\\f.exe"});
    EXPECT_EQ(click.ClickAndOpen(), row.files + L"d >\n  " + Empty) << row.filter;
    EXPECT_EQ(click.Open(L"d"), row.deeper) << row.filter;
  }
}

TEST(DynamicFolders, StayEmptyWhenThereIsNothingToShow) {
  void (*const scenes[])(memory::FileSystem&) = {
      [](memory::FileSystem&) {}, [](memory::FileSystem& files) { files.AddFolder(L"C:\\Work"); },
      [](memory::FileSystem& files) { files.AddFile(L"C:\\Work"); },
      [](memory::FileSystem& files) {
        files.AddFile(L"C:\\Work\\a.txt");
        files.Add(memory::FileSystem::Trouble::Unreadable, L"C:\\Work");
      }};
  for (const auto& scene : scenes) {
    Folder click;
    scene(click.desktop.files);
    EXPECT_EQ(click.ClickAndOpen(), Empty);
    click.handler->Menu().Open(MenuHandle{12345});  // another's
  }
}

TEST(DynamicFolders, AskAFolderThatDidNotAnswerAgainWhenOpenedAgain) {
  const std::wstring share = L"\\\\server\\share";
  for (const bool ownerDraw : {false, true}) {
    Folder click(L"", share.c_str());
    click.Set(L"ShellOwnerDraw", ownerDraw);
    click.desktop.files.AddFolder(share);
    click.desktop.files.Stall(share, 60'000);
    const std::uint32_t before = click.desktop.clock.Ticks();
    EXPECT_EQ(click.ClickAndOpen(), L"(No answer) (disabled)\n");
    EXPECT_LE(click.desktop.clock.Ticks() - before, 1000u);
    const auto id = static_cast<std::int32_t>(click.Entries(L"Work")[0].id);
    EXPECT_EQ(click.handler->OwnerDrawMenu_GetCaption(id), L"(No answer)");
    EXPECT_EQ(click.Open(L"Work"), L"(No answer) (disabled)\n");
    click.desktop.files.Stall(share, 0);
    EXPECT_EQ(click.Open(L"Work"), Empty) << "for good";
  }
  Folder click(L"", share.c_str());
  click.desktop.files.AddFile(share + L"\\a.txt");
  click.desktop.files.Stall(share, 60'000);
  click.ClickAndOpen();
  click.desktop.files.Stall(share, 500);
  EXPECT_EQ(click.Open(L"Work"), L"a.txt\n");
}

/// Milliseconds of a right-click on the file when every call on its share or drive takes so many.
std::uint32_t DelayOf(const std::wstring& share, std::uint32_t call, bool withFiles) {
  RightClick click;
  for (const wchar_t* setting : {L"ShellConfigFile", L"ShellCustomActionsFile"})
    if (withFiles)
      click.desktop.registry.SetText(Hive::CurrentUser, SettingsKey, setting, share + L"\\file");
  click.desktop.files.AddFile(share + L"\\a.txt");
  click.desktop.files.Stall(share, call);
  const std::uint32_t before = click.desktop.clock.Ticks();
  click.Click(L"", {share + L"\\a.txt"});
  return click.desktop.clock.Ticks() - before;
}

TEST(Menu, AsksForItsSelectionTwiceAndWaitsAFifthOfASecondForItsShare) {
  for (const wchar_t* share : {L"Z:", L"\\\\dead\\share"}) {
    EXPECT_EQ(DelayOf(share, 1, false), 2u) << share;  // is it a file, is it a folder
    EXPECT_EQ(DelayOf(share, 10'000, true), 200u) << share;
  }
}

TEST(DynamicFolders, AreListedOnceAndKeepTheirIdentifiers) {
  Folder click;
  click.AddFiles({L"a.txt", L"Sub\\b.txt"});
  click.ClickAndOpen();
  const std::uint32_t id = click.Entries(L"Work")[0].id;
  click.Open(L"Sub");
  click.AddFiles({L"late.txt"});
  click.Open(L"Work");
  EXPECT_EQ(click.Entries(L"Work").size(), 2u);
  EXPECT_EQ(click.Entries(L"Work")[0].id, id);
}

TEST(DynamicFolders, ShowNamesAsTheyAre) {
  const std::wstring lone(1, static_cast<wchar_t>(0xD800));
  for (const std::wstring& name :
       {std::wstring(L"R&D.txt"), std::wstring(L" blank.txt"), std::wstring(L"tab\t.txt"),
        std::wstring(L"\x5D0\x5D1.txt"), lone + L".txt", std::wstring(251, L'n') + L".txt"}) {
    Folder click;
    click.Set(L"ShellMaxMenuText", 0);
    click.AddFiles({name});
    click.ClickAndOpen();
    const MenuEntry& entry = click.Entries(L"Work").at(0);
    EXPECT_EQ(entry.caption, name == L"R&D.txt" ? L"R&&D.txt" : name);
    const Data& record =
        *click.handler->State().commands.Find(static_cast<std::int32_t>(entry.id)).Record();
    EXPECT_EQ(record.Caption(), name);
    EXPECT_EQ(record.Location(), L"C:\\Work\\" + name);
  }
}

TEST(DynamicFolders, TakeNoIdentifierPastTheCountAndLogWhatDidNotFit) {
  const struct {
    std::int32_t idLast;
    bool ignoreBounds;
    std::size_t entries;
  } rows[] = {{14, false, 0},  // nothing is reserved: only the placeholder stays
              {15, false, 1},  // all but ten
              {500, false, 486},
              {1200, false, 1000},
              {1200, true, 1300}};
  for (const auto& [idLast, ignoreBounds, entries] : rows) {
    Folder click;
    click.Set(L"DebugEnable", 1);
    click.Set(L"DebugFlags", 0);
    click.Set(L"ShellIgnoreBoundsCheck", ignoreBounds);
    for (int i = 0; i < 1300; ++i) click.AddFiles({std::to_wstring(i) + L".txt"});
    click.idLast = idLast;
    const auto count = static_cast<std::uint32_t>(click.Click());
    const std::wstring shown = click.Open(L"Work");
    const std::vector<MenuEntry>& menu = click.Entries(L"Work");
    EXPECT_EQ(shown == Empty ? 0u : menu.size(), entries) << idLast;
    for (const MenuEntry& entry : menu)
      EXPECT_LT(entry.id - 1, ignoreBounds ? 7000 : count) << idLast;
    click.End();
    const std::string log = click.desktop.files.Content(LogFile).value_or("");
    const bool cut = log.find("No identifier left for: C:\\Work\\") != std::string::npos;
    EXPECT_EQ(cut, entries < 1300) << idLast;
  }
}

TEST(DynamicFolders, ShowAsManyFoldersAsTheDesktopBearsAndLogTheOthers) {
  Folder click;
  click.Set(L"ShellIgnoreBoundsCheck", 1);
  click.Set(L"DebugEnable", 1);
  click.Set(L"DebugFlags", 0);
  click.AddFiles({L"a.txt"});
  for (int i = 0; i < 5000; ++i) click.desktop.files.AddFolder(L"C:\\Work\\" + std::to_wstring(i));
  click.ClickAndOpen();
  EXPECT_EQ(click.Entries(L"Work").size(), 1u + 3999);
  EXPECT_LE(click.desktop.menus.LiveCount(), 4010u);
  click.End();
  const std::string log = click.desktop.files.Content(LogFile).value_or("");
  EXPECT_NE(log.find("No menu left for: C:\\Work\\"), std::string::npos);
}

}  // namespace
}  // namespace orvane::test
