#include <gtest/gtest.h>

#include <string>

#include "menudata/World.h"
#include "menudata/clsOrvaneDataTools.h"

namespace orvane {
namespace {

using test::World;
using Data = clsOrvaneData;

Data ItemOf(std::int32_t type, const wchar_t* caption = L"", const wchar_t* location = L"",
            std::int32_t options = 0) {
  Data item;
  item.m_lType = type;
  item.m_lOptions = options;
  item.Caption(caption);
  item.Location(location);
  return item;
}

TEST(ItemTexts, MenuCaptions) {
  const struct {
    Data item;
    const wchar_t* caption;
    bool trims;
  } cases[] = {
      {ItemOf(Data::TypeRoot, L"abcdefghij"), L"abcdefghij", false},
      {ItemOf(Data::TypeFolder, L"abcdefghij"), L"abcde...", true},
      {ItemOf(Data::TypeFolder, L"ab  ", L"", Data::OptionsBrowseAndOpen), L"ab...", true},
      {ItemOf(Data::TypeFile, L"ab  "), L"ab  ", true},
      {ItemOf(Data::TypeFile, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypeDynamicFolder, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypeCopyToX, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypeCustomAction, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypeSelectionTask, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypePopupMenu, L"abcdef"), L"abcde...", true},
      {ItemOf(Data::TypeSeparator), L"", false},
      {ItemOf(Data::TypeDesigner), L"&Designer...", false},
      {ItemOf(Data::TypePopupHistory), L"&History", false},
      {ItemOf(Data::TypePopupQuickAccess), L"&Quick Access", false},
      {ItemOf(Data::TypeResetHistoryMRU), L"&Reset History MRU", false},
      {ItemOf(Data::TypeResetQuickAccessMRU), L"Rese&t Quick Access MRU", false},
      {ItemOf(Data::TypeOpenInNewWindow), L"Open in New Window", false},
      {ItemOf(Data::TypeCopyFilenamesToClipboard), L"Copy to Clipboard", false},
      {ItemOf(Data::TypeRunDialog), L"Copy to Run Dialog...", false},
      {ItemOf(Data::TypeCopyTo), L"Copy to...", false},
      {ItemOf(Data::TypeMoveTo), L"Move to...", false},
      {ItemOf(Data::TypeCommandPrompt), L"Command Prompt Here", false},
      {ItemOf(Data::TypeTaskManager), L"Task Manager", false},
      {ItemOf(Data::TypeShowDesktop), L"Show Desktop", false},
      {ItemOf(Data::TypeRestoreDesktop), L"", false},
      {ItemOf(Data::TypeAddToQuickAccessMRU), L"&Add To Quick Access", false},
      {ItemOf(Data::TypeDynamicFolderEmpty), L"(Empty)", false},
      {ItemOf(5), L"", false},
  };
  World world;
  world.options.m_lShellMaxMenuText = 5;
  for (const auto& row : cases) {
    bool trim = false;
    EXPECT_EQ(world.tools.GetMenuCaption(row.item, trim), row.caption) << row.item.m_lType;
    EXPECT_EQ(trim, row.trims) << row.item.m_lType;
  }
  bool trim = true;
  EXPECT_EQ(world.tools.GetMenuCaption(ItemOf(Data::TypeTaskManager), trim), L"Task...");
  EXPECT_TRUE(trim);
}

TEST(ItemTexts, TrimCaption) {
  const std::wstring seventy = std::wstring(63, L'a') + L" bcdefg";
  const struct {
    std::wstring caption;
    std::int32_t maximum;
    std::wstring expected;
  } cases[] = {
      {seventy, 64, std::wstring(63, L'a') + L"..."},
      {L"abcde", 5, L"abcde"},
      {L"abcdef", 5, L"abcde..."},
      {L"abcdef", 0, L"abcdef"},
      {L"abcdef", -1, L"abcdef"},
      {L"abcdef", 2147483647, L"abcdef"},
      {L"  abcdef", 5, L"abc..."},
      {L"&1 abcdef", 5, L"&1 abcde..."},
      {L"&1 abcde", 5, L"&1 abcde"},
      {L"& abcdef", 5, L"& abcde..."},
      {L"&abcdef", 5, L"&abcd..."},
      {L"a &b cdef", 5, L"a &b..."},
      {L"&", 5, L"&"},
      {L"", 5, L""},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(clsOrvaneDataTools::TrimCaption(row.caption, row.maximum), row.expected);
  }
}

TEST(ItemTexts, ExplorerDescriptions) {
  Data move = ItemOf(Data::TypeCopyToX, L"Archive", L"C:\\Archive");
  move.m_lCopyToX_Options = 1;
  const struct {
    Data item;
    const wchar_t* text;
  } cases[] = {
      {ItemOf(Data::TypeFolder, L"", L"46", Data::OptionsCSIDL),
       L"Orvane Special Folder - Common Documents"},
      {ItemOf(Data::TypeFolder, L"", L"5", Data::OptionsCSIDL),
       L"Orvane Special Folder - Documents"},
      {ItemOf(Data::TypeFolder, L"", L"4711", Data::OptionsCSIDL), L""},
      {ItemOf(Data::TypeFolder, L"x", L"C:\\Work"), L"Orvane Folder - C:\\Work"},
      {ItemOf(Data::TypeFolder), L""},
      {ItemOf(Data::TypeFile, L"x", L"C:\\a.txt"), L"Orvane File - C:\\a.txt"},
      {ItemOf(Data::TypeDesigner), L"Orvane - Start the Designer"},
      {ItemOf(Data::TypeResetHistoryMRU), L"Orvane - Reset the History MRU"},
      {ItemOf(Data::TypeResetQuickAccessMRU), L"Orvane - Reset the Quick Access MRU"},
      {ItemOf(Data::TypeCustomAction, L"Greet"), L"Orvane Custom Action - Greet"},
      {ItemOf(Data::TypeSelectionTask, L"List", L"C:\\"), L"Orvane Selection Task - List"},
      {ItemOf(Data::TypeOpenInNewWindow),
       L"Orvane - Open the file \"C:\\f\\a.txt\" in a new window"},
      {ItemOf(Data::TypeCopyFilenamesToClipboard),
       L"Orvane - Copy the names of the selected files to the clipboard"},
      {ItemOf(Data::TypeRunDialog),
       L"Orvane - Send the filename \"C:\\f\\a.txt\" to the run dialog"},
      {ItemOf(Data::TypeCommandPrompt), L"Orvane - Open a command prompt starting from \"C:\\f\""},
      {ItemOf(Data::TypeCopyTo), L"Orvane - Copy the selected files to a nominated folder"},
      {ItemOf(Data::TypeMoveTo), L"Orvane - Move the selected files to a nominated folder"},
      {ItemOf(Data::TypeTaskManager), L"Orvane - Invoke the Windows task manager"},
      {ItemOf(Data::TypeShowDesktop), L"Orvane - Minimize all open windows to the desktop"},
      {ItemOf(Data::TypeRestoreDesktop), L"Orvane - Restore the desktop windows"},
      {ItemOf(Data::TypeCopyToX, L"Backup", L"C:\\Backup"), L"Orvane Copy To - Backup"},
      {move, L"Orvane Move To - Archive"},
      {ItemOf(Data::TypeRoot, L"Menu"), L""},
      {ItemOf(Data::TypePopupMenu, L"Tools"), L""},
      {ItemOf(Data::TypeDynamicFolder, L"x", L"C:\\"), L""},
      {ItemOf(Data::TypeAddToQuickAccessMRU), L""},
  };
  World world;
  world.desktop.shell.specialFolders[46] = {L"C:\\Common\\Documents", L"Documents"};
  world.desktop.shell.specialFolders[5] = {L"C:\\Own\\Documents", L"Documents"};
  for (const auto& row : cases) {
    EXPECT_EQ(world.tools.GetExplorerDescription(row.item, L"C:\\f\\a.txt", L"C:\\f"), row.text)
        << row.item.m_lType;
  }
  EXPECT_EQ(World::ErrorOf([&] {
              world.tools.GetExplorerDescription(
                  ItemOf(Data::TypeFolder, L"", L"x", Data::OptionsCSIDL), L"", L"");
            }),
            13);
}

TEST(ItemTexts, DesignerDescriptions) {
  Data move = ItemOf(Data::TypeCopyToX, L"Archive", L"C:\\Archive");
  move.m_lCopyToX_Options = 1;
  const struct {
    Data item;
    const wchar_t* text;
  } cases[] = {
      {ItemOf(Data::TypeRoot, L"x"), L"Root Level Shell Description"},
      {ItemOf(Data::TypeFolder, L"", L"28", Data::OptionsCSIDL),
       L"Windows Special Folder: Local Settings"},
      {ItemOf(Data::TypeFolder, L"x", L"C:\\Work"), L"Folder: C:\\Work"},
      {ItemOf(Data::TypeSeparator), L"Menu Separator"},
      {ItemOf(Data::TypePopupMenu, L"x"), L"Popup Menu"},
      {ItemOf(Data::TypeFile, L"x", L"C:\\a.txt"), L"File: C:\\a.txt"},
      {ItemOf(Data::TypeCustomAction, L"Greet"), L"Custom Action: Greet"},
      {ItemOf(Data::TypeSelectionTask, L"List", L"C:\\"), L"Selection Task: List"},
      {ItemOf(Data::TypeDynamicFolder, L"x", L"C:\\"), L"Dynamic Folder: C:\\"},
      {ItemOf(Data::TypeCopyToX, L"x", L"C:\\Backup"), L"Copy To: C:\\Backup"},
      {move, L"Move To: C:\\Archive"},
      {ItemOf(Data::TypeTaskManager), L""},
  };
  World world;
  world.desktop.shell.specialFolders[28] = {L"C:\\Local\\Settings", L"Settings"};
  for (const auto& row : cases) {
    EXPECT_EQ(world.tools.GetDesignerDescription(row.item), row.text) << row.item.m_lType;
  }
}

TEST(ItemTexts, HistoryEntries) {
  World world;
  Data file = ItemOf(Data::TypeFile, L"A, b", L"C:\\a, b.txt", 9);
  EXPECT_EQ(world.debug.EncryptStringAscii(world.tools.CreateHistoryMRU(file)),
            L"6,9,\"C:\\a, b.txt\",\"A, b\"");
  Data action = ItemOf(Data::TypeCustomAction, L"Greet");
  action.m_szAction_Actions = L"Hello[orv_pause 50]~";
  const struct {
    std::wstring plain;
    std::int32_t type, options;
    const wchar_t* location;
    const wchar_t* caption;
    const wchar_t* actions;
  } cases[] = {
      {L"6,9,\"C:\\a, b.txt\",\"A, b\"", 6, 9, L"C:\\a, b.txt", L"A, b", L""},
      {L"1,4,\"5\",\"Docs\"", 1, 4, L"5", L"Docs", L""},
      {L"7,0,\"Hello\",\"Greet\"", 7, 0, L"", L"Greet", L"Hello"},
      {L"6x,12y,\"a\",\"b\"", 6, 12, L"a", L"b", L""},
      {L"2,9,\"a\",\"b\"", 2, 0, L"", L"", L""},
      {L"-1,9,\"a\",\"b\"", 0, 0, L"", L"", L""},
      {L"", 0, 0, L"", L"", L""},
      {L"6", 6, 0, L"", L"", L""},
      {L"99999999999,1,\"a\",\"b\"", 0, 0, L"", L"", L""},
      {L"6,0,\"\",\"b\"", 6, 0, L"", L"b", L""},
  };
  for (const auto& row : cases) {
    Data item;
    world.tools.BreakdownHistoryMRU(world.debug.EncryptStringAscii(row.plain), item);
    EXPECT_EQ(item.m_lType, row.type) << row.plain;
    EXPECT_EQ(item.m_lOptions, row.options) << row.plain;
    EXPECT_EQ(item.Location(), row.location) << row.plain;
    EXPECT_EQ(item.Caption(), row.caption) << row.plain;
    EXPECT_EQ(item.m_szAction_Actions, row.actions) << row.plain;
  }
}

}  // namespace
}  // namespace orvane
