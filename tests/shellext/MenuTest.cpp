#include <fstream>
#include <iterator>

#include "shellext/CaptionSearch.h"
#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

constexpr std::uint32_t AllFlags = 254;
constexpr const wchar_t* Bare = L"--------\nOrvane >\n  &Designer...\n--------\n";

std::string Fixture(const std::string& name) {
  std::ifstream file(std::string(ORVANE_TEST_DATA) + "/" + name + ".cfg", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Menu, ShowsASelectionTaskForTheSelectionsItIsMeantFor) {
  const struct {
    std::int32_t options;
    bool shownForNone, shownForOne, shownForTwo;
  } rows[] = {{1, false, true, true},
              {2, false, true, false},
              {4, false, false, true},
              {6, false, true, true},
              {8, false, false, false}};
  for (const auto& row : rows) {
    RightClick click;
    Data task = Item(Data::TypeSelectionTask, L"Task");
    task.m_lSelection_Options = row.options;
    click.Add(task);
    click.Click();
    EXPECT_EQ(click.Shows(L"Task"), row.shownForNone) << row.options;
    click.End();
    click.Click({}, {L"C:\\a"});
    EXPECT_EQ(click.Shows(L"Task"), row.shownForOne) << row.options;
    click.End();
    click.Click({}, {L"C:\\a", L"C:\\b"});
    EXPECT_EQ(click.Shows(L"Task"), row.shownForTwo) << row.options;
  }
}

TEST(Menu, ShowsTheBuiltInCommandsWhereTheyApply) {
  RightClick click;
  EXPECT_EQ(click.Click(), 2);
  EXPECT_EQ(click.Menu(), Bare);
  click.End();

  click.Set(L"ShellShowFlags", AllFlags);
  click.desktop.files.AddFile(L"C:\\Work\\a.txt");
  click.Click(L"C:\\Work", {L"C:\\Work\\a.txt"});
  EXPECT_EQ(click.Menu(),
            Bare + std::wstring(L"Open in New Window\nCopy to Clipboard\nCopy to Run Dialog...\n"
                                L"Copy to...\nMove to...\nCommand Prompt Here\nTask Manager\n"
                                L"--------\n--------\n"));
  click.End();

  click.Set(L"ShellShowFlags", AllFlags | 1);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\nOrvane >\n  &Designer...\n  --------\n  Task Manager\n--------\n");
}

TEST(Menu, ListsHistoryAndQuickAccess) {
  RightClick click;
  click.Remember(L"HistoryMRU",
                 {Item(Data::TypeFile, L"a.txt", L"C:\\a.txt"),
                  Item(Data::TypeFolder, L"Work", L"C:\\Work", Data::OptionsBrowseAndOpen),
                  Item(Data::TypeFolder, L"Spoilt", L"x", Data::OptionsCSIDL)});
  click.Remember(L"QuickAccessMRU", {Item(Data::TypeFolder, L"Quick", L"C:\\Q")});
  const std::wstring resets = L"  --------\n  &Reset History MRU\n  Rese&t Quick Access MRU\n";
  click.Set(L"ShellShowHistoryMRU", 1);
  click.Set(L"ShellShowQuickAccessMRU", 1);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\nOrvane >\n  &Designer...\n" + resets +
                L"&1 a.txt\n&2 Work...\n&3 Spoilt\n--------\n&1 Quick\n&Add To Quick Access\n"
                L"--------\n");
  click.End();

  click.Set(L"ShellShowHistoryMRU", 2);
  click.Set(L"ShellShowQuickAccessMRU", 2);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\nOrvane >\n  &History >\n    &1 a.txt\n    &2 Work...\n    &3 Spoilt\n"
            L"  --------\n  &Quick Access >\n    &1 Quick\n    &Add To Quick Access\n"
            L"  --------\n  &Designer...\n" +
                resets + L"--------\n");
}

TEST(Menu, AnswersTheKeyboardWhereItDrawsTheEntries) {
  RightClick click;
  click.Set(L"ShellOwnerDraw", 1);
  click.Add(Item(Data::TypeFile, L"&Editor", L"C:\\a"));
  const std::int32_t popup = click.Add(Item(Data::TypePopupMenu, L"R&&D &Tools"));
  click.Add(Item(Data::TypeFile, L"Te&xt", L"C:\\b"));
  click.Add(Item(Data::TypeFile, L"Xylophone", L"C:\\c"));
  click.Add(Item(Data::TypeFile, L"Extra", L"C:\\d"));
  click.Add(Item(Data::TypeFile, L"Quick", L"C:\\e"));
  click.Add(Item(Data::TypeFile, L"quill", L"C:\\f"));
  click.Add(Item(Data::TypeFile, L"Inner", L"C:\\g"), popup);
  click.Click();
  constexpr std::intptr_t execute = 2 << 16, select = 3 << 16;
  const struct {
    const wchar_t* menu;
    wchar_t key;
    std::int32_t highlighted;
    std::intptr_t answer;
  } rows[] = {{L"Orvane", L'e', -1, execute | 0},  // a marked letter goes before a first one
              {L"Orvane", L'T', 3, execute | 1},
              {L"Orvane", L'x', -1, execute | 2},
              {L"Orvane", L'q', -1, select | 5},
              {L"Orvane", L'q', 5, select | 6},
              {L"Orvane", L'Q', 6, select | 5},
              {L"Orvane", L'&', -1, 0},
              {L"Orvane", L'z', -1, 0},
              {L"R&&D &Tools", L'i', -1, execute | 0},
              {L"", L'o', -1, 0}};  // the shell's menu, whose entries we do not draw
  for (const auto& row : rows) {
    click.desktop.menus.highlighted = row.highlighted;
    const MenuHandle menu = *row.menu ? click.Submenu(row.menu) : click.shellMenu;
    EXPECT_EQ(click.handler->Menu().Type(menu, row.key), row.answer)
        << static_cast<char>(row.key) << row.highlighted;
  }
}

TEST(Menu, MarksTheFolderItIsFor) {
  RightClick click;
  click.Set(L"ShellShowIcons", 2);
  click.Add(Item(Data::TypeFolder, L"This one", L"C:\\Work"));
  click.Add(Item(Data::TypeFolder, L"That one", L"C:\\Else"));
  click.Click(L"C:\\Work");
  const auto current =
      PictureStore::CheckMark(click.handler->State().commands.At(2).Record()->m_oBitmap);
  EXPECT_NE(current, BitmapHandle::None);
  EXPECT_EQ(click.Entries()[0].bitmap, current);
  EXPECT_NE(click.Entries()[1].bitmap, current);
}

TEST(Menu, AnswersWithoutBuildingWhereItTakesNoPart) {
  RightClick click;
  click.Set(L"ShellEnable", 0);
  EXPECT_EQ(click.Click(), 0);
  EXPECT_EQ(click.Menu(), L"");
  click.End();

  click.Set(L"ShellEnable", 1);
  click.idLast = click.idFirst;
  EXPECT_EQ(click.Click(), 0);
  EXPECT_EQ(click.Boxes(),
            std::vector<std::wstring>{L"Windows reports that you cannot have any more menu items! "
                                      L"(1 : 1) [exclamation]"});
  click.End();

  click.idLast = 100;
  memory::Windows& windows = click.desktop.windows;
  const WindowHandle frame = windows.Add({.className = L"IEFrame"});
  const WindowHandle view = windows.Add({.parent = frame, .className = L"Shell DocObject View"});
  windows.Activate(windows.Add({.parent = view, .className = L"Internet Explorer_Server"}));
  EXPECT_EQ(click.Click(), 1);
  EXPECT_EQ(click.Menu(), L"");
  click.End();
  click.Set(L"ShellShowInIE", 1);
  EXPECT_EQ(click.Click(), 2);
}

TEST(Menu, StaysInsideTheIdentifiersItIsLent) {
  for (std::int32_t idLast = 2; idLast <= 9; ++idLast) {
    RightClick click;
    click.Set(L"ShellShowFlags", AllFlags);
    click.Add(Item(Data::TypeFile, L"a", L"C:\\a"), click.Add(Item(Data::TypePopupMenu, L"Popup")));
    click.Add(Item(Data::TypeDynamicFolder, L"Dynamic", L"C:\\"));
    click.Add(Item(Data::TypeFile, L"b", L"C:\\b"));
    click.idLast = idLast;
    EXPECT_LE(click.Click(), idLast + 1);
    EXPECT_NE(click.Submenu(L"Orvane"), MenuHandle::None);
    click.Open(L"Dynamic");
  }
  RightClick click;
  click.Set(L"ShellIgnoreBoundsCheck", 1);
  click.idLast = 2;
  click.Define(Fixture("every-kind"));
  click.Click();
  EXPECT_TRUE(click.Shows(L"&Designer...")) << "told to ignore the bound";
}

TEST(Menu, OffersTheSwitchOfTheDebugLogFirst) {
  RightClick click;
  click.Set(L"DebugEnableInMenu", 1);
  click.Click();
  const MenuEntry& entry = click.desktop.menus.Entries(click.shellMenu)[1];
  EXPECT_EQ(entry.caption, L"Enable debugging");
  EXPECT_EQ(entry.id, 1u);
  EXPECT_FALSE(click.handler->State().commands.Find(1));
}

TEST(Menu, ASecondHandlerAddsNoSecondRootAndASecondQueryStartsOver) {
  RightClick click;
  click.Add(Item(Data::TypeDynamicFolder, L"Dynamic", L"C:\\"));
  click.Add(Item(Data::TypeFile, L"a", L"C:\\a"));
  const std::int32_t count = click.Click(L"C:\\Work");
  const std::wstring menu = click.Menu();
  {
    ContextMenuHandler second(*click.globals);
    EXPECT_EQ(click.globals->handlers, 2);
    EXPECT_EQ(second.IContextMenu_QueryContextMenuEx(click.shellMenu, 0, 100, 200, 0), 0);
    EXPECT_EQ(click.Menu(), menu);
  }
  EXPECT_EQ(click.globals->handlers, 1);
  click.desktop.menus.Destroy(click.shellMenu);
  click.shellMenu = MenuHandle::None;
  EXPECT_EQ(click.Query(), count);
  EXPECT_EQ(click.Menu(), menu);
  EXPECT_EQ(click.handler->State().dynamicMenus.Count(), 1);
}

TEST(Menu, RefusesSpoiltDefinitionFiles) {
  const std::wstring corrupt = L"File is corrupt! [stop]";
  const struct {
    const char* name;
    std::vector<std::wstring> boxes;
  } rows[] = {{"corrupt-version", {L"Invalid file version! [exclamation]"}},
              {"corrupt-header", {L"File is corrupt! [exclamation]"}},
              {"corrupt-item-header", {corrupt}},
              {"corrupt-truncated", {corrupt}},
              {"corrupt-count", {corrupt}},
              {"corrupt-parent", {}}};
  for (const auto& row : rows) {
    RightClick click;
    click.Define(Fixture(row.name));
    click.Click();
    EXPECT_EQ(click.Boxes(), row.boxes) << row.name;
    EXPECT_EQ(click.Menu(), L"--------\n") << row.name;
  }
}

TEST(Menu, SurvivesADefinitionFileCutAnywhere) {
  const std::string whole = Fixture("every-kind");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    RightClick click;
    click.Define(whole.substr(0, size));
    click.Click(L"C:\\Work", {L"C:\\Work\\a.txt"});
    // What is missing between two values reads as empty, and only of the last item that is enough.
    const bool readable = size == 0 || size == whole.size() - 33 || size == whole.size() - 13;
    EXPECT_EQ(click.Submenu(L"Orvane") != MenuHandle::None, readable) << size;
    EXPECT_LE(click.Boxes().size(), 1u) << size;
  }
}

TEST(Menu, RefusesParentsThatCannotHoldEntries) {
  const std::wstring file = L"a\n--------\n&Designer...\n";
  const struct {
    std::int32_t type, parent;
    std::wstring submenu;
  } rows[] = {{Data::TypeFile, 2, file},
              {Data::TypeDynamicFolder, 2, L"a >\n  (Empty) (disabled)\n--------\n&Designer...\n"},
              {Data::TypeFile, 3, file},  // itself
              {Data::TypeFile, 4, L""},
              {Data::TypeFile, -1, L""}};
  for (const auto& [type, parent, submenu] : rows) {
    RightClick click;
    click.Add(Item(type, L"a", L"C:\\a"));
    click.Add(Item(Data::TypeFile, L"b", L"C:\\b"), parent);
    click.Click();
    EXPECT_EQ(memory::MenuText(click.desktop.menus, click.Submenu(L"Orvane")), submenu) << parent;
  }
}

TEST(Menu, NestsAThousandPopups) {
  RightClick click;
  std::int32_t parent = 1;
  for (int i = 0; i < 1000; ++i) parent = click.Add(Item(Data::TypePopupMenu, L"p"), parent);
  click.Add(Item(Data::TypeFile, L"deep", L"C:\\a"), parent);
  EXPECT_EQ(click.Click(), 1 + 1000 + 1 + 1 + 1);
  EXPECT_TRUE(click.Shows(L"deep"));
  EXPECT_FALSE(IsCaptionInMenu(click.desktop.menus, L"deep", click.shellMenu, 0)) << "too deep";
}

TEST(Menu, KeepsLongCaptionsAndThoseWithAZero) {
  RightClick click;
  click.Set(L"ShellMaxMenuText", 0);
  click.definition.items[0].data.m_szRoot_Caption = L"  ";  // as good as none
  click.Add(Item(Data::TypeFile, std::wstring(65535, L'x'), L"C:\\a"));
  click.Add(Item(Data::TypeFile, std::wstring(L"a\0b", 3), L"C:\\b"));
  click.Click();
  EXPECT_EQ(click.Entries()[0].caption.size(), 65535u);
  EXPECT_EQ(click.Entries()[1].caption, std::wstring(L"a\0b", 3));
}

}  // namespace
}  // namespace orvane::test
