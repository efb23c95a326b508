#include "graphics/MenuDesk.h"

namespace orvane::test {
namespace {

constexpr std::int32_t OwnIcon = OwnerDrawMenu::OwnIcon;
constexpr std::int32_t Designer = OwnerDrawMenu::DesignerIcon;

class OwnerDrawMenuTest : public testing::Test {
 protected:
  OwnerDrawMenuTest() { m_desk.Load(); }

  BitmapHandle Stored(std::int32_t key, bool scaled) {
    const auto node = m_desk.bitmaps.ItemViaKey(key);
    return ToHandle<BitmapHandle>(scaled ? node->m_lData : node->m_lData2);
  }

  MenuDesk m_desk;
};

TEST_F(OwnerDrawMenuTest, WhichKeysShowAtWhichLevel) {
  const struct {
    std::int32_t key;
    int fromLevel;  // 9 is never
    std::int32_t shown;
  } rows[] = {{1, 1, 1}, {9, 1, 9}, {2, 1, 2}, {3, 2, 3},  {4, 2, 4},        {5, 2, 5}, {7, 2, 7},
              {8, 2, 8}, {6, 9, 0}, {0, 9, 0}, {10, 9, 0}, {Designer, 2, 1}, {-1, 9, 0}};
  m_desk.options.m_bShellOwnerDraw = false;
  std::size_t position = 0;
  for (const auto& row : rows) {
    for (int level = 0; level <= 3; ++level) {
      m_desk.options.m_lShellShowIcons = level;
      const auto id = static_cast<std::int32_t>(position + 1);
      ASSERT_TRUE(m_desk.Add(m_desk.menu, id, L"entry", row.key));
      const bool shown = level >= row.fromLevel;
      const MenuEntry& entry = m_desk.Entry(position++);
      EXPECT_EQ(entry.bitmap, shown ? Stored(row.shown, true) : BitmapHandle::None)
          << "key " << row.key << " level " << level;
      EXPECT_EQ(m_desk.PictureOf(id), shown ? Stored(row.shown, false) : BitmapHandle::None);
      EXPECT_FALSE(entry.ownerDraw);
    }
  }
}

TEST_F(OwnerDrawMenuTest, OnlyOurOwnMenusAreOwnerDrawn) {
  m_desk.Add(m_desk.menu, 1, L"ours", 7);
  m_desk.Add(m_desk.shellMenu, 2, L"the shell's", 7);
  EXPECT_TRUE(m_desk.Entry(0).ownerDraw);
  EXPECT_EQ(m_desk.Entry(0).bitmap, Stored(7, false));
  const MenuEntry& shells = m_desk.desktop.menus.Entries(m_desk.shellMenu).at(0);
  EXPECT_FALSE(shells.ownerDraw);
  EXPECT_EQ(shells.bitmap, Stored(7, true));
}

TEST_F(OwnerDrawMenuTest, EntryAsItWasAsked) {
  const MenuHandle submenu = m_desk.desktop.menus.CreatePopup();
  m_desk.options.m_lShellMaxMenuText = 6;
  m_desk.Add(m_desk.menu, 1, L"last", 0);
  EXPECT_FALSE(m_desk.Add(MenuHandle::None, 2, L"nowhere", 7));
  m_desk.drawing.AddMenuWithBitmap({.menu = m_desk.menu,
                                    .position = 0,
                                    .caption = L"&1 a long caption",
                                    .id = 77,
                                    .trimCaption = true,
                                    .submenu = submenu});
  const MenuEntry& entry = m_desk.Entry(0);
  EXPECT_EQ(entry.caption, L"&1 a long...");
  EXPECT_EQ(entry.id, 77u);
  EXPECT_EQ(entry.submenu, submenu);
  EXPECT_EQ(m_desk.Entry(1).caption, L"last");
}

TEST_F(OwnerDrawMenuTest, MissingBitmapLeavesTheEntryWithoutPicture) {
  DeleteMenuBitmaps(m_desk.desktop.gdi, m_desk.bitmaps);
  for (std::int32_t key : {1, 7, Designer, OwnIcon})
    EXPECT_TRUE(m_desk.Add(m_desk.menu, key, L"entry", key, L"C:\\nothing.txt"));
  for (const MenuEntry& entry : m_desk.desktop.menus.Entries(m_desk.menu))
    EXPECT_EQ(entry.bitmap, BitmapHandle::None);
  EXPECT_EQ(m_desk.PictureOf(OwnIcon), BitmapHandle::None);
}

TEST_F(OwnerDrawMenuTest, FileNamesMarkNoLetter) {
  m_desk.options.m_lShellShowIcons = 0;
  m_desk.AddFile(1, L"C:\\R&D.txt");
  m_desk.Add(m_desk.menu, 2, L"R&D.txt", 0);
  EXPECT_EQ(m_desk.Entry(0).caption, L"R&&D.txt");
  EXPECT_EQ(m_desk.Entry(1).caption, L"R&D.txt");
  EXPECT_EQ(m_desk.records[1].Caption(), L"R&D.txt");
  EXPECT_EQ(m_desk.Measure(1).width, 7 * 8 + 25);
  EXPECT_EQ(m_desk.Measure(2).width, 6 * 8 + 25);

  m_desk.drawing.ShellMenu(m_desk.shellMenu);  // a new menu, where the number is somebody else's
  EXPECT_EQ(m_desk.Measure(1).width, 6 * 8 + 25);
}

TEST_F(OwnerDrawMenuTest, IconsAreFetchedWhenFirstLookedAtAndNothingIsAskedTwice) {
  memory::ShellIcons& icons = m_desk.desktop.icons;
  std::int32_t id = 0;
  for (const wchar_t* path : {L"C:\\a.txt", L"C:\\b.TXT", L"C:\\c.doc", L"C:\\d.exe", L"C:\\e.exe",
                              L"C:\\d.exe", L"C:\\README", L"C:\\README"}) {
    m_desk.desktop.files.AddFile(path);
    m_desk.AddFile(++id, path);
  }
  EXPECT_EQ(icons.finds + icons.kindFinds + icons.takes, 0u);
  for (int round = 0; round < 2; ++round)
    for (std::int32_t entry = 1; entry <= id; ++entry) m_desk.PictureOf(entry);
  EXPECT_EQ(icons.kindFinds, 3u) << ".txt, .doc, none";
  EXPECT_EQ(icons.finds, 3u) << "each entry of a program";
  EXPECT_EQ(icons.takes, 5u) << "each distinct icon";
  EXPECT_EQ(m_desk.bitmaps.Count(), 9 + 5);
  EXPECT_EQ(m_desk.PictureOf(1), m_desk.PictureOf(2));
  EXPECT_NE(m_desk.PictureOf(4), m_desk.PictureOf(5));
  EXPECT_EQ(icons.Live(), 0u);
}

TEST_F(OwnerDrawMenuTest, CheckMarksAreFetchedAtOnce) {
  m_desk.desktop.files.AddFile(L"C:\\a.txt");
  m_desk.options.m_bShellOwnerDraw = false;
  for (std::int32_t id = 1; id <= 500; ++id) m_desk.AddFile(id, L"C:\\a.txt");
  EXPECT_EQ(m_desk.desktop.icons.takes, 1u);
  const auto node = m_desk.records[1].m_oBitmap;
  ASSERT_TRUE(node);
  EXPECT_NE(node->m_lData, node->m_lData2);
  EXPECT_EQ(m_desk.Entry(499).bitmap, ToHandle<BitmapHandle>(node->m_lData));
}

TEST_F(OwnerDrawMenuTest, WhoseIconIsWhose) {
  const std::wstring longPath = L"C:\\" + std::wstring(260, L'x') + L".exe";
  const struct {
    const wchar_t* what;
    std::int32_t type;
    std::wstring path;
    std::size_t finds, kindFinds;
    bool unknown;
  } rows[] = {
      {L"missing file", Data::TypeFile, L"C:\\gone.txt", 0, 0, true},
      {L"missing folder", Data::TypeFolder, L"C:\\gone", 0, 0, true},
      {L"plain folder", Data::TypeFolder, L"C:\\plain", 0, 1, false},
      {L"folder that may have its own", Data::TypeFolder, L"C:\\own", 1, 0, false},
      {L"drive", Data::TypeFolder, L"C:\\", 1, 0, false},
      {L"name space", Data::TypeFolder, L"::{20D04FE0}", 1, 0, true},
      {L"program", Data::TypeFile, L"C:\\d.exe", 1, 0, false},
      {L"program beyond the shell's reach", Data::TypeFile, longPath, 0, 1, false},
      {L"file on a server", Data::TypeFile, L"\\\\away\\share\\x.exe", 0, 1, false},
      {L"program on a mapped drive", Data::TypeFile, L"Z:\\x.exe", 0, 1, false},
  };
  for (const auto& row : rows) {
    MenuDesk desk;
    desk.desktop.files.AddFile(L"C:\\d.exe");
    desk.desktop.files.AddFile(longPath);
    desk.desktop.files.AddFolder(L"C:\\plain");
    desk.desktop.files.AddFolder(L"C:\\own").attributes |= FileAttribute::ReadOnly;
    desk.desktop.files.Stall(L"Z:\\", 30'000);
    desk.Load();
    const std::uint32_t start = desk.desktop.clock.Ticks();
    desk.Add(desk.menu, 1, L"item", OwnIcon, row.path, row.type);
    const BitmapHandle picture = desk.PictureOf(1);
    EXPECT_EQ(desk.desktop.icons.finds, row.finds) << row.what;
    EXPECT_EQ(desk.desktop.icons.kindFinds, row.kindFinds) << row.what;
    const auto unknown = ToHandle<BitmapHandle>(desk.bitmaps.ItemViaKey(6)->m_lData2);
    EXPECT_EQ(picture == unknown, row.unknown) << row.what;
    EXPECT_NE(picture, BitmapHandle::None);
    EXPECT_EQ(desk.desktop.clock.Ticks(), start) << row.what;
  }
}

TEST_F(OwnerDrawMenuTest, LargeScreensAskForLargeIcons) {
  m_desk.desktop.files.AddFile(L"C:\\a.txt");
  m_desk.OpenAt(192);
  m_desk.AddFile(1, L"C:\\a.txt");
  EXPECT_EQ(m_desk.desktop.gdi.Describe(m_desk.PictureOf(1)).value().width, 32);
  EXPECT_EQ(m_desk.desktop.icons.lastSize, 32);
}

}  // namespace
}  // namespace orvane::test
