#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

using Data = clsOrvaneData;

constexpr std::uint32_t AllFlags = 254;

std::vector<std::byte> Fixture(const std::string& name) {
  std::ifstream file(std::string(ORVANE_TEST_DATA) + "/" + name + ".cfg", std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
  return {bytes, bytes + text.size()};
}

TEST(Menu, WithoutADefinitionFileHoldsTheBuiltInCommands) {
  RightClick click;
  EXPECT_EQ(click.Click(), 2);
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &Designer...\n"
            L"--------\n");
}

TEST(Menu, ShowsEveryKindOfItem) {
  RightClick click;
  click.Define(Fixture("every-kind"));
  click.Click(L"C:\\Work", {L"C:\\Work\\a.txt"});
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &Work\n"
            L"  My Documents\n"
            L"  Pick a report...\n"
            L"  &Tools >\n"
            L"    &Editor\n"
            L"    --------\n"
            L"    Deeper >\n"
            L"      Notes, \"old\"\n"
            L"  --------\n"
            L"  Browse Work >\n"
            L"    (Empty) (disabled)\n"
            L"  List selection\n"
            L"  Type a greeting\n"
            L"  Copy to Backup\n"
            L"  Move to Archive\n"
            L"  Caf\u00e9 menu\n"
            L"  --------\n"
            L"  &Designer...\n"
            L"--------\n");
}

TEST(Menu, ShowsASelectionTaskForTheSelectionsItIsMeantFor) {
  struct Row {
    std::int32_t options;
    std::wstring_view shownFor;  // a digit for each count of selected items
  };
  constexpr Row rows[] = {{1, L"12"}, {2, L"1"}, {4, L"2"}, {6, L"12"}, {8, L""}};
  for (const Row& row : rows) {
    for (int selected = 0; selected <= 2; ++selected) {
      RightClick click;
      DefinitionBuilder menu;
      menu.Task(1, L"Task", row.options);
      click.Define(menu);
      if (selected == 0) click.Click();
      if (selected == 1) click.Click({}, {L"C:\\a"});
      if (selected == 2) click.Click({}, {L"C:\\a", L"C:\\b"});
      const bool expected =
          row.shownFor.find(static_cast<wchar_t>(L'0' + selected)) != row.shownFor.npos;
      EXPECT_EQ(click.Menu().find(L"Task") != std::wstring::npos, expected)
          << row.options << " " << selected;
    }
  }
}

TEST(Menu, ShowsTheBuiltInCommandsWhereTheyApply) {
  RightClick click;
  click.Set(L"ShellShowFlags", AllFlags);
  click.desktop.files.AddFile(L"C:\\Work\\a.txt");
  click.Click(L"C:\\Work", {L"C:\\Work\\a.txt"});
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &Designer...\n"
            L"--------\n"
            L"Open in New Window\n"
            L"Copy to Clipboard\n"
            L"Copy to Run Dialog...\n"
            L"Copy to...\n"
            L"Move to...\n"
            L"Command Prompt Here\n"
            L"Task Manager\n"
            L"--------\n"
            L"--------\n");
  click.End();

  click.Set(L"ShellShowFlags", AllFlags | 1);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &Designer...\n"
            L"  --------\n"
            L"  Task Manager\n"
            L"--------\n");
}

TEST(Menu, ListsHistoryAndQuickAccess) {
  RightClick click;
  click.Remember(
      L"HistoryMRU",
      {RightClick::Entry(Data::TypeFile, L"C:\\a.txt", L"a.txt"),
       RightClick::Entry(Data::TypeFolder, L"C:\\Work", L"Work", Data::OptionsBrowseAndOpen),
       RightClick::Entry(Data::TypeFile, L"C:\\c.txt",
                         L"C:\\Documents and Settings\\user\\My Documents\\plan.txt")});
  click.Remember(L"QuickAccessMRU", {RightClick::Entry(Data::TypeFolder, L"C:\\Q", L"Quick")});
  click.Set(L"ShellShowHistoryMRU", 1);
  click.Set(L"ShellShowQuickAccessMRU", 1);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &Designer...\n"
            L"  --------\n"
            L"  &Reset History MRU\n"
            L"  Rese&t Quick Access MRU\n"
            L"&1 a.txt\n"
            L"&2 Work...\n"
            L"&3 ...\\user\\My Documents\\plan.txt\n"
            L"--------\n"
            L"&1 Quick\n"
            L"&Add To Quick Access\n"
            L"--------\n");
  click.End();

  click.Set(L"ShellShowHistoryMRU", 2);
  click.Set(L"ShellShowQuickAccessMRU", 2);
  click.Click();
  EXPECT_EQ(click.Menu(),
            L"--------\n"
            L"Orvane >\n"
            L"  &History >\n"
            L"    &1 a.txt\n"
            L"    &2 Work...\n"
            L"    &3 ...\\user\\My Documents\\plan.txt\n"
            L"  --------\n"
            L"  &Quick Access >\n"
            L"    &1 Quick\n"
            L"    &Add To Quick Access\n"
            L"  --------\n"
            L"  &Designer...\n"
            L"  --------\n"
            L"  &Reset History MRU\n"
            L"  Rese&t Quick Access MRU\n"
            L"--------\n");
}

TEST(Menu, ASpoiltListEntryLeavesTheResetCommandInReach) {
  RightClick click;
  click.Remember(L"HistoryMRU",
                 {RightClick::Entry(Data::TypeFolder, L"x", L"Spoilt", Data::OptionsCSIDL)});
  click.Set(L"ShellShowHistoryMRU", 1);
  click.Click();
  EXPECT_NE(click.Menu().find(L"&1 Spoilt"), std::wstring::npos);
  EXPECT_NE(click.Menu().find(L"&Reset History MRU"), std::wstring::npos);
}

TEST(Menu, MarksTheFolderItIsFor) {
  RightClick click;
  click.Set(L"ShellShowIcons", 2);
  DefinitionBuilder menu;
  menu.Folder(1, L"C:\\Work", L"This one");
  menu.Folder(1, L"C:\\Else", L"That one");
  click.Define(menu);
  click.Click(L"C:\\Work");
  const auto& entries = click.desktop.menus.Entries(click.Submenu(L"Orvane"));
  const auto current = click.handler->State().m_colBitmaps.ItemViaKey(2);
  ASSERT_TRUE(current);
  EXPECT_EQ(ToNumber(entries[0].bitmap), current->m_lData);
  EXPECT_NE(ToNumber(entries[1].bitmap), current->m_lData);
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
    DefinitionBuilder menu;
    const std::int32_t popup = menu.Popup(1, L"Popup");
    menu.File(popup, L"C:\\a", L"a");
    menu.DynamicFolder(1, L"C:\\", L"Dynamic");
    menu.File(1, L"C:\\b", L"b");
    click.Define(menu);
    click.idLast = idLast;
    EXPECT_LE(click.Click(), idLast + 1);
    EXPECT_NE(click.Submenu(L"Orvane"), MenuHandle::None);
    click.Open(L"Dynamic");
  }
}

TEST(Menu, IgnoresTheBoundWhenToldTo) {
  RightClick click;
  click.Set(L"ShellIgnoreBoundsCheck", 1);
  click.idLast = 2;
  click.Define(Fixture("every-kind"));
  click.Click();
  EXPECT_EQ(click.handler->State().ids.Last(), 2147483647);
  EXPECT_NE(click.Menu().find(L"&Designer..."), std::wstring::npos);
}

TEST(Menu, OffersTheSwitchOfTheDebugLogFirst) {
  RightClick click;
  click.Set(L"DebugEnableInMenu", 1);
  click.Click();
  const auto& entries = click.desktop.menus.Entries(click.shellMenu);
  EXPECT_EQ(entries[1].caption, L"Enable debugging");
  EXPECT_EQ(entries[1].id, 1u);
  EXPECT_FALSE(click.handler->State().m_colMenuItems.ItemViaKey(1));
}

TEST(Menu, ASecondHandlerAddsNoSecondRoot) {
  RightClick click;
  click.Define(Fixture("every-kind"));
  click.Click(L"C:\\Work");
  const std::wstring before = click.Menu();
  {
    ContextMenuHandler second(*click.globals);
    EXPECT_EQ(click.globals->g_lReferenceCount, 2);
    EXPECT_EQ(second.IContextMenu_QueryContextMenuEx(click.shellMenu, 0, 100, 200, 0), 0);
    EXPECT_EQ(click.Menu(), before);
  }
  EXPECT_EQ(click.globals->g_lReferenceCount, 1);
}

TEST(Menu, ASecondQueryStartsOver) {
  RightClick click;
  DefinitionBuilder menu;
  menu.DynamicFolder(1, L"C:\\", L"Dynamic");
  menu.File(1, L"C:\\a", L"a");
  click.Define(menu);
  const std::int32_t count = click.Click();
  const std::wstring text = click.Menu();
  click.desktop.menus.Destroy(click.shellMenu);
  click.shellMenu = MenuHandle::None;
  EXPECT_EQ(click.Query(), count);
  EXPECT_EQ(click.Menu(), text);
}

TEST(Menu, RefusesSpoiltDefinitionFiles) {
  struct Row {
    const char* name;
    std::vector<std::wstring> boxes;
  };
  const Row rows[] = {{"corrupt-version", {L"Invalid file version! [exclamation]"}},
                      {"corrupt-header", {L"File is corrupt! [exclamation]"}},
                      {"corrupt-item-header", {L"File is corrupt! [stop]"}},
                      {"corrupt-truncated", {L"File is corrupt! [stop]"}},
                      {"corrupt-count", {L"File is corrupt! [stop]"}},
                      {"corrupt-parent", {}}};
  for (const Row& row : rows) {
    RightClick click;
    click.Define(Fixture(row.name));
    click.Click();
    EXPECT_EQ(click.Boxes(), row.boxes) << row.name;
    EXPECT_EQ(click.Menu(), L"--------\n") << row.name;
  }
}

TEST(Menu, SurvivesADefinitionFileCutAnywhere) {
  const std::vector<std::byte> whole = Fixture("every-kind");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    RightClick click;
    click.Define(
        std::vector<std::byte>(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
    click.Click(L"C:\\Work", {L"C:\\Work\\a.txt"});
    // What is missing between two values reads as empty, and only of the last item that is enough.
    const bool readable = size == 0 || size == whole.size() - 33 || size == whole.size() - 13;
    EXPECT_EQ(click.Submenu(L"Orvane") != MenuHandle::None, readable) << size;
    EXPECT_LE(click.Boxes().size(), 1u) << size;
  }
}

TEST(Menu, RefusesParentsThatCannotHoldEntries) {
  const struct {
    std::int32_t parent;
    const wchar_t* submenu;
  } rows[] = {{2, L"a\n--------\n&Designer...\n"},
              {3, L"a\n--------\n&Designer...\n"},
              {4, L""},
              {-1, L""},
              {2147483647, L""}};
  for (const auto& [parent, submenu] : rows) {  // 2 is a file, which shows nothing; 3 itself
    RightClick click;
    DefinitionBuilder menu;
    menu.File(1, L"C:\\a", L"a");
    menu.File(parent, L"C:\\b", L"b");
    click.Define(menu);
    click.Click();
    EXPECT_EQ(memory::MenuText(click.desktop.menus, click.Submenu(L"Orvane")), submenu) << parent;
  }
}

TEST(Menu, NestsAThousandPopups) {
  RightClick click;
  DefinitionBuilder menu;
  std::int32_t parent = 1;
  for (int i = 0; i < 1000; ++i) parent = menu.Popup(parent, L"p");
  menu.File(parent, L"C:\\a", L"deep");
  click.Define(menu);
  EXPECT_EQ(click.Click(), 1 + 1000 + 1 + 1 + 1);
  EXPECT_NE(click.Menu().find(L"deep"), std::wstring::npos);
}

TEST(Menu, KeepsLongCaptionsAndThoseWithAZero) {
  RightClick click;
  click.Set(L"ShellMaxMenuText", 0);
  DefinitionBuilder menu;
  menu.File(1, L"C:\\a", std::wstring(65535, L'x'));
  menu.File(1, L"C:\\b", std::wstring(L"a\0b", 3));
  click.Define(menu);
  click.Click();
  const auto& entries = click.desktop.menus.Entries(click.Submenu(L"Orvane"));
  EXPECT_EQ(entries[0].caption.size(), 65535u);
  EXPECT_EQ(entries[1].caption, std::wstring(L"a\0b", 3));
}

TEST(Menu, TrimsTheRootCaptionOnlyToSeeWhetherItIsThere) {
  RightClick click;
  click.Define(DefinitionBuilder(L"  "));
  click.Click();
  EXPECT_NE(click.Submenu(L"Orvane"), MenuHandle::None);
}

}  // namespace
}  // namespace orvane::test
