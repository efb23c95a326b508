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

TEST(clsOrvaneData, ATypeWithoutTheFieldStoresNothing) {
  Data item;
  item.m_lType = 4;
  item.Caption(L"caption");
  item.Location(L"location");
  EXPECT_EQ(item.Caption(), L"");
  EXPECT_EQ(item.Location(), L"");
  item.m_lType = Data::TypeSelectionTask;
  item.Location(L"C:\\Work");
  EXPECT_EQ(item.m_szSelection_WorkingDir, L"C:\\Work");
}

TEST(clsOrvaneData, SpecialFolderNumberIsTheLocationAsText) {
  const auto number = [](const wchar_t* location) {
    return ItemOf(Data::TypeFolder, L"", location).FolderCSIDL();
  };
  EXPECT_EQ(number(L"   "), 0);
  EXPECT_EQ(number(L" 5 "), 5);
  EXPECT_EQ(test::ErrorOf([&] { number(L"C:\\Work"); }), 13);
}

TEST(FieldText, BehavesAsATextOfAnyContent) {
  const std::wstring zeros(L"a\0b", 3);
  FieldText text(zeros);
  EXPECT_EQ(text.size(), 3u);
  const FieldText copy = text;
  text = text;
  EXPECT_EQ(text, copy);
  text = L"";
  EXPECT_TRUE(text.empty());
  EXPECT_EQ(copy, zeros);
}

TEST(ItemTexts, CaptionsOfTheUserAreTrimmed) {
  World world;
  world.options.m_lShellMaxMenuText = 5;
  const auto caption = [&](const Data& item, bool trim, bool trims) {
    const std::wstring text = world.tools.GetMenuCaption(item, trim);
    EXPECT_EQ(trim, trims) << item.m_lType;
    return text;
  };
  for (const std::int32_t type :
       {Data::TypeFolder, Data::TypeFile, Data::TypeDynamicFolder, Data::TypeCopyToX,
        Data::TypeCustomAction, Data::TypeSelectionTask, Data::TypePopupMenu})
    EXPECT_EQ(caption(ItemOf(type, L"abcdef"), false, true), L"abcde...") << type;
  EXPECT_EQ(
      caption(ItemOf(Data::TypeFolder, L"ab  ", L"", Data::OptionsBrowseAndOpen), false, true),
      L"ab...");
  EXPECT_EQ(caption(ItemOf(Data::TypeRoot, L"abcdef"), false, false), L"abcdef");
  EXPECT_EQ(caption(ItemOf(Data::TypeTaskManager), false, false), L"Task Manager");
  EXPECT_EQ(caption(ItemOf(Data::TypeTaskManager), true, true), L"Task...");
  EXPECT_EQ(caption(ItemOf(Data::TypeRestoreDesktop), false, false), L"");
}

TEST(ItemTexts, TrimCaption) {
  const struct {
    std::wstring caption;
    std::int32_t maximum;
    std::wstring expected;
  } cases[] = {
      {L"abcde", 5, L"abcde"},           {L"abcdef", 5, L"abcde..."},
      {L"abcdef", 0, L"abcdef"},         {L"abcd efg", 5, L"abcd..."},
      {L"  abcdef", 5, L"abc..."},       {L"abcd\xD83D\xDCC1", 5, L"abcd..."},
      {L"&1 abcdef", 5, L"&1 abcde..."}, {L"&1 abcde", 5, L"&1 abcde"},
      {L"&abcdef", 5, L"&abcd..."},      {L"a &b cdef", 5, L"a &b..."},
  };
  for (const auto& row : cases)
    EXPECT_EQ(clsOrvaneDataTools::TrimCaption(row.caption, row.maximum), row.expected);
}

/// The help text of a menu entry without the product's name, and the designer's line.
TEST(ItemTexts, Descriptions) {
  Data move = ItemOf(Data::TypeCopyToX, L"Archive", L"C:\\Archive");
  move.m_lCopyToX_Options = 1;
  const struct {
    Data item;
    std::wstring help, designer;
  } cases[] = {
      {ItemOf(Data::TypeRoot, L"x"), L"", L"Root Level Shell Description"},
      {ItemOf(Data::TypePopupMenu, L"x"), L"", L"Popup Menu"},
      {ItemOf(Data::TypeSeparator), L"", L"Menu Separator"},
      {ItemOf(Data::TypeDynamicFolder, L"x", L"C:\\"), L"", L"Dynamic Folder: C:\\"},
      {ItemOf(Data::TypeFolder, L"", L"46", Data::OptionsCSIDL),
       L" Special Folder - Common Documents", L"Windows Special Folder: Common Documents"},
      {ItemOf(Data::TypeFolder, L"", L"4711", Data::OptionsCSIDL), L"",
       L"Windows Special Folder: "},
      {ItemOf(Data::TypeFolder, L"x", L"C:\\Work"), L" Folder - C:\\Work", L"Folder: C:\\Work"},
      {ItemOf(Data::TypeFile, L"x", L"C:\\a.txt"), L" File - C:\\a.txt", L"File: C:\\a.txt"},
      {ItemOf(Data::TypeCustomAction, L"Greet"), L" Custom Action - Greet",
       L"Custom Action: Greet"},
      {ItemOf(Data::TypeSelectionTask, L"List", L"C:\\"), L" Selection Task - List",
       L"Selection Task: List"},
      {ItemOf(Data::TypeCopyToX, L"Backup", L"C:\\Backup"), L" Copy To - Backup",
       L"Copy To: C:\\Backup"},
      {move, L" Move To - Archive", L"Move To: C:\\Archive"},
      {ItemOf(Data::TypeDesigner), L" - Start the Designer", L""},
      {ItemOf(Data::TypeOpenInNewWindow), L" - Open the file \"C:\\f\\a\" in a new window", L""},
      {ItemOf(Data::TypeRunDialog), L" - Send the filename \"C:\\f\\a\" to the run dialog", L""},
      {ItemOf(Data::TypeCommandPrompt), L" - Open a command prompt starting from \"C:\\f\"", L""},
      {ItemOf(Data::TypeRestoreDesktop), L" - Restore the desktop windows", L""},
  };
  World world;
  world.desktop.shell.specialFolders[46] = {L"C:\\Common\\Documents", L"Documents"};
  for (const auto& row : cases) {
    EXPECT_EQ(world.tools.GetExplorerDescription(row.item, L"C:\\f\\a", L"C:\\f"),
              row.help.empty() ? L"" : L"Orvane" + row.help)
        << row.item.m_lType;
    EXPECT_EQ(world.tools.GetDesignerDescription(row.item), row.designer) << row.item.m_lType;
  }
}

TEST(ItemTexts, HistoryEntries) {
  World world;
  const Data file = ItemOf(Data::TypeFile, L"A, b", L"C:\\a, b.txt", 9);
  EXPECT_EQ(world.scrambler.Scramble(world.tools.CreateHistoryMRU(file), world.codePage),
            L"6,9,\"C:\\a, b.txt\",\"A, b\"");
  Data action = ItemOf(Data::TypeCustomAction, L"Greet");
  action.m_szAction_Actions = L"Hello~";
  EXPECT_EQ(world.scrambler.Scramble(world.tools.CreateHistoryMRU(action), world.codePage),
            L"7,0,\"Hello~\",\"Greet\"");
  const std::pair<std::wstring, std::wstring> rows[] = {
      {L"6,9,\"C:\\a, b.txt\",\"A, b\"", L"6|9|C:\\a, b.txt|A, b|"},
      {L"1,4,\"5\",\"Docs\"", L"1|4|5|Docs|"},
      {L"7,0,\"Hello\",\"Greet\"", L"7|0||Greet|Hello"},
      {L"6x,12y,\"a\",\"b\"", L"6|12|a|b|"},
      {L"2,9,\"a\",\"b\"", L"2|0|||"},
      {L"", L"0|0|||"},
      {L"6", L"6|0|||"},
      {L"99999999999,1,\"a\",\"b\"", L"0|0|||"},
  };
  for (const auto& [plain, expected] : rows) {
    Data item;
    world.tools.BreakdownHistoryMRU(world.scrambler.Scramble(plain, world.codePage), item);
    EXPECT_EQ(std::to_wstring(item.m_lType) + L"|" + std::to_wstring(item.m_lOptions) + L"|" +
                  item.Location() + L"|" + item.Caption() + L"|" + item.m_szAction_Actions,
              expected);
  }
}

}  // namespace
}  // namespace orvane
