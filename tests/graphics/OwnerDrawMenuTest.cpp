#include "graphics/MenuDesk.h"

namespace orvane::test {
namespace {

class OwnerDrawMenuTest : public testing::Test {
 protected:
  OwnerDrawMenuTest() { m_desk.Load(); }

  MenuDesk m_desk;
};

TEST_F(OwnerDrawMenuTest, WhichPicturesShowAtWhichLevel) {
  constexpr int Never = 9;
  const struct {
    std::int32_t picture;
    int fromLevel;
    Picture shown;
  } rows[] = {{1, 1, Picture::Mark},     {2, 1, Picture::CurrentFolder}, {9, 1, Picture::Popup},
              {3, 2, Picture::Reset},    {4, 2, Picture::OwnFolder},     {5, 2, Picture::Add},
              {7, 2, Picture::Action},   {8, 2, Picture::Task},          {999998, 2, Picture::Mark},
              {6, Never, Picture::None}, {0, Never, Picture::None},      {10, Never, Picture::None},
              {-1, Never, Picture::None}};
  std::int32_t id = 0;
  for (const auto& row : rows) {
    for (int level = 0; level <= 3; ++level) {
      m_desk.options.m_lShellShowIcons = level;
      for (const MenuHandle menu : {m_desk.menu, m_desk.shellMenu}) {
        ASSERT_TRUE(m_desk.Add(menu, ++id, L"entry", static_cast<Picture>(row.picture)));
        const Picture shown = level >= row.fromLevel ? row.shown : Picture::None;
        const MenuEntry& entry = m_desk.desktop.menus.Entries(menu).back();
        // Only menus of our own are ours to draw.
        EXPECT_EQ(entry.ownerDraw, menu == m_desk.menu);
        EXPECT_EQ(entry.bitmap, entry.ownerDraw
                                    ? m_desk.Loaded(shown)
                                    : PictureStore::CheckMark(m_desk.pictures.Find(shown)))
            << "picture " << row.picture << " level " << level;
        EXPECT_EQ(m_desk.PictureOf(id), m_desk.Loaded(shown));
      }
    }
  }
}

TEST_F(OwnerDrawMenuTest, BitmapsAreLoadedWhenAskedForAndOnce) {
  memory::Gdi& gdi = m_desk.desktop.gdi;
  gdi.resources.erase(104);
  const std::size_t before = gdi.Live();
  m_desk.Add(m_desk.menu, 1, L"text", Picture::None);
  EXPECT_EQ(gdi.Live(), before);
  m_desk.Add(m_desk.menu, 2, L"task", Picture::Task);
  m_desk.Add(m_desk.menu, 3, L"task", Picture::Task);
  m_desk.Add(m_desk.menu, 4, L"without", Picture::OwnFolder);
  EXPECT_EQ(gdi.Live(), before + 1) << "no check mark for what is painted";
  EXPECT_EQ(m_desk.Entry(3).bitmap, BitmapHandle::None);
  EXPECT_EQ(m_desk.pictures.Count(), 1);
}

TEST_F(OwnerDrawMenuTest, EntryAsItWasAsked) {
  Menus& menus = m_desk.desktop.menus;
  m_desk.options.m_lShellMaxMenuText = 6;
  m_desk.Add(m_desk.menu, 1, L"last", Picture::None);
  MenuItem refused = m_desk.Item(2, L"nowhere");
  refused.submenu = UniqueMenu(menus, menus.CreatePopup());
  const std::size_t live = m_desk.desktop.menus.LiveCount();
  EXPECT_FALSE(m_desk.drawing.AddMenuWithBitmap(MenuHandle::None, 0, std::move(refused)));
  EXPECT_EQ(m_desk.desktop.menus.LiveCount(), live - 1);

  MenuItem item = m_desk.Item(77, L"&1 a long caption");
  item.trimCaption = true;
  item.submenu = UniqueMenu(menus, menus.CreatePopup());
  m_desk.drawing.AddMenuWithBitmap(m_desk.menu, 0, std::move(item));
  const MenuEntry& entry = m_desk.Entry(0);
  EXPECT_EQ(entry.caption, L"&1 a long...");
  EXPECT_EQ(entry.id, 77u);
  EXPECT_EQ(entry.submenu, m_desk.commands.Find(77).Submenu());
  EXPECT_NE(entry.submenu, MenuHandle::None);
  EXPECT_EQ(m_desk.Entry(1).caption, L"last");
}

TEST_F(OwnerDrawMenuTest, FileNamesMarkNoLetter) {
  m_desk.options.m_lShellShowIcons = 0;
  m_desk.AddFile(1, L"C:\\R&D.txt");
  m_desk.Add(m_desk.menu, 2, L"R&D.txt", Picture::None);
  EXPECT_EQ(m_desk.Entry(0).caption, L"R&&D.txt");
  EXPECT_EQ(m_desk.Entry(1).caption, L"R&D.txt");
  EXPECT_EQ(m_desk.Caption(1), L"R&D.txt");
  EXPECT_EQ(m_desk.Measure(1).width, 7 * 8 + 25);
  EXPECT_EQ(m_desk.Measure(2).width, 6 * 8 + 25);
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
  EXPECT_EQ(m_desk.pictures.Count(), 5);
  EXPECT_EQ(m_desk.PictureOf(1), m_desk.PictureOf(2));
  EXPECT_NE(m_desk.PictureOf(4), m_desk.PictureOf(5));
  EXPECT_EQ(icons.Live(), 0u);
}

TEST_F(OwnerDrawMenuTest, CheckMarksAreFetchedAtOnce) {
  m_desk.desktop.files.AddFile(L"C:\\a.txt");
  m_desk.options.m_bShellOwnerDraw = false;
  for (std::int32_t id = 1; id <= 500; ++id) m_desk.AddFile(id, L"C:\\a.txt");
  EXPECT_EQ(m_desk.desktop.icons.takes, 1u);
  const auto mark = PictureStore::CheckMark(m_desk.commands.Find(1).Record()->m_oBitmap);
  EXPECT_NE(mark, BitmapHandle::None);
  EXPECT_NE(mark, m_desk.PictureOf(1));
  EXPECT_EQ(m_desk.Entry(499).bitmap, mark);
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
      {L"program that is elsewhere", Data::TypeFile, L"C:\\offline.exe", 0, 1, false},
      {L"program in a cloud", Data::TypeFile, L"C:\\cloud.exe", 0, 1, false},
      {L"folder in a cloud", Data::TypeFolder, L"C:\\cloud", 0, 1, false},
      {L"shortcut", Data::TypeFile, L"C:\\near.lnk", 1, 0, false},
      {L"shortcut to a mapped drive", Data::TypeFile, L"C:\\far.lnk", 0, 1, false},
  };
  for (const auto& row : rows) {
    MenuDesk desk;
    desk.desktop.files.AddFile(L"C:\\d.exe");
    desk.desktop.files.AddFile(longPath);
    desk.desktop.files.AddFolder(L"C:\\plain");
    desk.desktop.files.AddFolder(L"C:\\own").attributes |= FileAttribute::ReadOnly;
    auto& files = desk.desktop.files;
    files.AddFile(L"C:\\offline.exe").attributes |= FileAttribute::Offline;
    files.AddFile(L"C:\\cloud.exe").attributes |= FileAttribute::RecallOnDataAccess;
    files.AddFolder(L"C:\\cloud").attributes |=
        FileAttribute::ReadOnly | FileAttribute::RecallOnOpen;
    for (const wchar_t* name : {L"C:\\near.lnk", L"C:\\far.lnk"}) files.AddFile(name);
    desk.desktop.icons.shortcuts = {{L"C:\\near.lnk", L"C:\\d.exe"},
                                    {L"C:\\far.lnk", L"Z:\\x.exe"}};
    desk.desktop.files.Stall(L"Z:\\", 30'000);
    desk.Load();
    const std::uint32_t start = desk.desktop.clock.Ticks();
    desk.Add(desk.menu, 1, L"item", Picture::OwnIcon, row.path, row.type);
    const BitmapHandle picture = desk.PictureOf(1);
    EXPECT_EQ(desk.desktop.icons.finds, row.finds) << row.what;
    EXPECT_EQ(desk.desktop.icons.kindFinds, row.kindFinds) << row.what;
    EXPECT_EQ(picture == desk.Loaded(Picture::UnknownFile), row.unknown) << row.what;
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
