#include <gtest/gtest.h>

#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

/// A right-click with one dynamic folder on C:\Work, not opened yet.
class Folder : public RightClick {
 public:
  explicit Folder(const std::wstring& filter = {}, const std::wstring& location = L"C:\\Work")
      : m_filter(filter), m_location(location) {}

  std::wstring ClickAndOpen() {
    DefinitionBuilder menu;
    menu.DynamicFolder(1, m_location, L"Work", m_filter);
    Define(menu);
    Click();
    return Open(L"Work");
  }

 private:
  std::wstring m_filter;
  std::wstring m_location;
};

TEST(DynamicFolders, ListFilesFirstAndEachKindFromTheEndOfTheAlphabet) {
  Folder click;
  for (const wchar_t* name : {L"b.txt", L"A.txt"})
    click.desktop.files.AddFile(std::wstring(L"C:\\Work\\") + name);
  for (const wchar_t* name : {L"Zed", L"Alpha"})
    click.desktop.files.AddFolder(std::wstring(L"C:\\Work\\") + name);
  EXPECT_EQ(click.ClickAndOpen(),
            L"b.txt\n"
            L"A.txt\n"
            L"Zed >\n"
            L"  (Empty) (disabled)\n"
            L"Alpha >\n"
            L"  (Empty) (disabled)\n");
}

TEST(DynamicFolders, FilterFilesButNotFoldersAllTheWayDown) {
  struct Row {
    const wchar_t* filter;
    const wchar_t* menu;
  };
  const Row rows[] = {{L"*.txt,*.DOC", L"b.doc\na.txt\nd >\n  (Empty) (disabled)\n"},
                      {L"[ab].*", L"b.doc\na.txt\nd >\n  (Empty) (disabled)\n"},
                      {L"[!ab]*", L"c.exe\nd >\n  (Empty) (disabled)\n"},
                      {L",,", L"d >\n  (Empty) (disabled)\n"},
                      {L"[", L"d >\n  (Empty) (disabled)\n"},
                      {L"[z-a]", L"d >\n  (Empty) (disabled)\n"}};
  for (const Row& row : rows) {
    Folder click(row.filter);
    for (const wchar_t* name : {L"a.txt", L"b.doc", L"c.exe", L"d\\e.txt", L"d\\f.exe"})
      click.desktop.files.AddFile(std::wstring(L"C:\\Work\\") + name);
    EXPECT_EQ(click.ClickAndOpen(), row.menu) << row.filter;
    EXPECT_EQ(click.Open(L"d").find(L"f.exe") == std::wstring::npos,
              std::wstring_view(row.filter) != L"[!ab]*");
  }
}

TEST(DynamicFolders, StayEmptyWhenThereIsNothingToShow) {
  const std::wstring empty = L"(Empty) (disabled)\n";
  {
    Folder missing;
    EXPECT_EQ(missing.ClickAndOpen(), empty);
  }
  {
    Folder bare;
    bare.desktop.files.AddFolder(L"C:\\Work");
    EXPECT_EQ(bare.ClickAndOpen(), empty);
  }
  {
    Folder file;
    file.desktop.files.AddFile(L"C:\\Work");
    EXPECT_EQ(file.ClickAndOpen(), empty);
  }
  {
    Folder closed;
    closed.desktop.files.AddFile(L"C:\\Work\\a.txt");
    closed.desktop.files.Add(memory::FileSystem::Trouble::Unreadable, L"C:\\Work");
    EXPECT_EQ(closed.ClickAndOpen(), empty);
  }
}

TEST(DynamicFolders, GiveUpAFolderThatDoesNotAnswer) {
  Folder click({}, L"\\\\server\\share");
  click.desktop.files.AddFile(L"\\\\server\\share\\a.txt");
  click.desktop.files.Stall(L"\\\\server\\share", 60000);
  const std::uint32_t before = click.desktop.clock.Ticks();
  EXPECT_EQ(click.ClickAndOpen(), L"(Empty) (disabled)\n");
  EXPECT_LE(click.desktop.clock.Ticks() - before, 1000u);
}

TEST(DynamicFolders, AreListedOnceAndKeepTheirIdentifiers) {
  Folder click;
  click.desktop.files.AddFile(L"C:\\Work\\a.txt");
  click.desktop.files.AddFile(L"C:\\Work\\Sub\\b.txt");
  const std::wstring first = click.ClickAndOpen();
  const std::uint32_t id = click.desktop.menus.Entries(click.Submenu(L"Work"))[0].id;
  click.Open(L"Sub");
  click.desktop.files.AddFile(L"C:\\Work\\late.txt");
  click.Open(L"Work");
  const auto& entries = click.desktop.menus.Entries(click.Submenu(L"Work"));
  EXPECT_EQ(entries.size(), 2u);
  EXPECT_EQ(entries[0].id, id);
  EXPECT_NE(click.desktop.menus.Entries(click.Submenu(L"Sub"))[0].id, id);
}

TEST(DynamicFolders, ShowNamesAsTheyAre) {
  Folder click;
  const std::wstring lone(1, static_cast<wchar_t>(0xD800));
  const std::wstring names[] = {L"R&D.txt", L" blank.txt", L"\x5D0\x5D1.txt", lone + L".txt",
                                std::wstring(251, L'n') + L".txt"};
  for (const std::wstring& name : names) click.desktop.files.AddFile(L"C:\\Work\\" + name);
  click.ClickAndOpen();
  std::set<std::wstring> locations;
  for (const MenuEntry& entry : click.desktop.menus.Entries(click.Submenu(L"Work"))) {
    const auto node =
        click.handler->State().m_colMenuItems.ItemViaKey(static_cast<std::int32_t>(entry.id));
    const auto& record = static_cast<const clsOrvaneData&>(*node->m_oData);
    locations.insert(record.Location());
    if (record.Caption() == names[0]) {
      EXPECT_EQ(entry.caption, L"R&&D.txt");
    }
  }
  for (const std::wstring& name : names) EXPECT_TRUE(locations.contains(L"C:\\Work\\" + name));
}

TEST(DynamicFolders, StopWhereTheIdentifiersEnd) {
  Folder click;
  for (int i = 0; i < 1001; ++i)
    click.desktop.files.AddFile(L"C:\\Work\\" + std::to_wstring(i) + L".txt");
  click.idLast = 500;
  click.ClickAndOpen();
  const auto& entries = click.desktop.menus.Entries(click.Submenu(L"Work"));
  EXPECT_GT(entries.size(), 480u);
  EXPECT_LT(entries.size(), 500u);
}

TEST(DynamicFolders, HoldTwentyThousandFilesAndAsManyFoldersAsTheDesktopBears) {
  Folder click;
  for (int i = 0; i < 20000; ++i)
    click.desktop.files.AddFile(L"C:\\Work\\" + std::to_wstring(i) + L".txt");
  for (int i = 0; i < 5000; ++i) click.desktop.files.AddFolder(L"C:\\Work\\" + std::to_wstring(i));
  click.ClickAndOpen();
  EXPECT_EQ(click.desktop.menus.Count(click.Submenu(L"Work")), 20000 + 3999);
  EXPECT_LE(click.desktop.menus.LiveCount(), 4010u);
}

TEST(DynamicFolders, IgnoreMessagesForOtherMenus) {
  Folder click;
  click.ClickAndOpen();
  std::intptr_t result = 7;
  click.handler->IContextMenu3_HandleMenuMsg2(MenuMessage::InitMenuPopup, 12345, 0, &result);
  EXPECT_EQ(result, 0);
  click.handler->IContextMenu3_HandleMenuMsg2(MenuMessage::DrawItem, 0, 0, nullptr);
  click.handler->IContextMenu3_HandleMenuMsg2(MenuMessage::MeasureItem, 0, 0, nullptr);
}

}  // namespace
}  // namespace orvane::test
