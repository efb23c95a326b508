#include <gtest/gtest.h>

#include "shellext/CaptionSearch.h"
#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

TEST(Selection, TellsWhatTheMenuIsFor) {
  struct Row {
    const wchar_t* folder;
    std::vector<std::wstring_view> items;
    const wchar_t* currentFolder;
    const wchar_t* currentFile;
    const wchar_t* selectedItem;
  };
  const Row rows[] = {
      {L"", {}, L"", L"", L""},
      {L"C:\\Work", {}, L"C:\\Work", L"", L""},
      {L"", {L"C:\\a.txt"}, L"C:\\", L"C:\\a.txt", L"C:\\a.txt"},
      {L"", {L"C:\\Work"}, L"C:\\Work", L"", L"C:\\Work"},
      {L"C:\\Work", {L"C:\\a.txt", L"C:\\Work"}, L"C:\\Work", L"", L""},
      {L"", {L"C:\\Work\\x", L"C:\\a.txt"}, L"C:\\Work", L"", L""},
      {L"", {L"C:\\gone\\x.txt"}, L"C:\\gone", L"", L"C:\\gone\\x.txt"},
  };
  for (const Row& row : rows) {
    memory::Desktop desktop;
    desktop.files.AddFile(L"C:\\a.txt");
    desktop.files.AddFolder(L"C:\\Work");
    FileNames names;
    for (std::wstring_view item : row.items) names.Add(item);
    std::shared_ptr<DataObject> data;
    if (names.Count() > 0) data = std::make_shared<memory::DataObject>(names);
    const std::wstring folder = row.folder;
    Selection selection;
    selection.CurrentFile = L"of an earlier call";
    EXPECT_EQ(
        selection.Capture(desktop.shell, desktop.files,
                          folder.empty() ? ItemIdList() : memory::Shell::ItemOf(folder), data),
        0);
    EXPECT_EQ(selection.CurrentFolder, row.currentFolder);
    EXPECT_EQ(selection.CurrentFile, row.currentFile);
    EXPECT_EQ(selection.m_szSelectedItem, row.selectedItem);
    EXPECT_EQ(selection.m_lSelectionCount, static_cast<std::int32_t>(row.items.size()));
  }
}

TEST(Selection, CountsBeyond16Bits) {
  memory::Desktop desktop;
  FileNames names;
  for (int i = 0; i < 100000; ++i) names.Add(L"C:\\file" + std::to_wstring(i));
  Selection selection;
  selection.Capture(desktop.shell, desktop.files, {}, std::make_shared<memory::DataObject>(names));
  EXPECT_EQ(selection.m_lSelectionCount, 100000);
}

TEST(Selection, PassesTheDataObjectsFailureOn) {
  for (const std::int32_t failure : {memory::DataObject::NoFiles, memory::DataObject::LockFailed}) {
    RightClick click;
    click.Create();
    auto data = std::make_shared<memory::DataObject>(FileNames());
    data->failure = failure;
    EXPECT_EQ(click.handler->IShellExtInit_Initialize({}, data, 0), failure);
    click.Query();
  }
}

TEST(HostWindow, IsFoundOnTheWayUp) {
  memory::Desktop desktop;
  memory::Windows& windows = desktop.windows;
  const WindowHandle explorer = windows.Add({.className = L"ExploreWClass"});
  const WindowHandle unnamed = windows.Add({.parent = explorer, .className = L""});
  const WindowHandle office = windows.Add({.parent = unnamed, .className = L"bosa_sdm_XL9"});
  const WindowHandle list = windows.Add({.parent = office, .className = L"SysListView32"});
  RightClick click;
  ModuleGlobals globals(desktop.Bundle());
  ContextMenuHandler handler(globals);
  EXPECT_EQ(handler.GetRootExplorerWindow(list), explorer);
  EXPECT_EQ(handler.GetRootOfficeWindow(list), office);
  EXPECT_EQ(handler.GetRootOfficeWindow(explorer), WindowHandle::None);
  EXPECT_EQ(handler.GetRootOfficeWindow(windows.Add({.className = L"bosa_sd"})),
            WindowHandle::None);
  EXPECT_FALSE(handler.IsIE(list));
  windows.Look(explorer)->parent = list;  // a ring
  EXPECT_FALSE(handler.IsIE(list));
}

TEST(CaptionSearch, LooksIntoSubmenusFromTheStartOn) {
  memory::Desktop desktop;
  const UniqueMenu menu(desktop.menus, desktop.menus.CreatePopup());
  const MenuHandle inner = desktop.menus.CreatePopup();
  MenuEntry entry;
  entry.caption = L"First";
  desktop.menus.Insert(menu.get(), Menus::Append, entry);
  entry.caption = L"Inner";
  desktop.menus.Insert(inner, Menus::Append, entry);
  entry.caption = L"Popup";
  entry.submenu = inner;
  desktop.menus.Insert(menu.get(), Menus::Append, entry);
  EXPECT_TRUE(IsCaptionInMenu(desktop.menus, L"Inner", menu.get(), 1));
  EXPECT_TRUE(IsCaptionInMenu(desktop.menus, L"First", menu.get(), 0));
  EXPECT_FALSE(IsCaptionInMenu(desktop.menus, L"First", menu.get(), 1));
  EXPECT_FALSE(IsCaptionInMenu(desktop.menus, L"inner", menu.get(), 0));
  EXPECT_FALSE(IsCaptionInMenu(desktop.menus, L"", menu.get(), 0));
}

TEST(Handler, SavesTheListsWithTheLastOne) {
  RightClick click;
  click.Click();
  click.globals->g_HistoryMRU.AddFile(L"entry");
  click.desktop.effects.Clear();
  { ContextMenuHandler second(*click.globals); }
  EXPECT_TRUE(click.desktop.effects.All().empty());
  EXPECT_EQ(click.globals->g_HistoryMRU.FileCount(), 1) << "lost to the second one's loading";
  click.End();
  EXPECT_FALSE(click.desktop.effects.All().empty());
}

TEST(Handler, WritesTheDebugLogOfAMenu) {
  RightClick click;
  click.Set(L"DebugEnable", 1);
  click.Set(L"DebugFlags", 2);
  click.Click(L"C:\\Program Files");
  const std::string log =
      click.desktop.files.Content(L"C:\\Program Files\\Orvane\\Debug.dbg").value_or("");
  for (const char* line :
       {" >  UserControl_Initialize\r\n", " >  IContextMenu_QueryContextMenuEx\r\n",
        "    CurrentFolder=C:\\Program Files\r\n", " >    CreateMenu\r\n",
        "        Adding designer\r\n", "      RV=2\r\n"})
    EXPECT_NE(log.find(line), std::string::npos) << line << log;
  EXPECT_EQ(click.Boxes().size(), 1u);  // the warning that the log is on
}

TEST(Handler, BeginsADebugLogThatAnotherHandlerHoldsOpenAnew) {
  RightClick click;
  click.Set(L"DebugEnable", 1);
  click.Set(L"DebugFlags", 0);
  click.Click();
  { ContextMenuHandler second(*click.globals); }
  click.End();
  const std::string log =
      click.desktop.files.Content(L"C:\\Program Files\\Orvane\\Debug.dbg").value_or("");
  EXPECT_NE(log.find("UserControl_Initialize"), std::string::npos);
  EXPECT_EQ(log.find("UserControl_Initialize"), log.rfind("UserControl_Initialize"));
}

TEST(Handler, AsksAgainUntilToldNotToWhenTheLogCannotBeOpened) {
  RightClick click;
  click.Set(L"DebugEnable", 1);
  click.Set(L"DebugFlags", 2);
  click.desktop.registry.SetText(Hive::CurrentUser, SettingsKey, L"DebugOutput",
                                 L"C:\\nowhere\\at all\\Debug.dbg");
  for (const wchar_t* answer : {L"ok", L"yes", L"no"}) click.desktop.answers.Add(answer);
  click.Click();
  EXPECT_EQ(click.Boxes().size(), 3u);
}

/// A right-click through everything, as the fault sweep below runs it.
void ClickThrough(RightClick& click) {
  click.Set(L"ShellShowHistoryMRU", 2);
  click.Set(L"ShellShowQuickAccessMRU", 1);
  click.Set(L"ShellShowFlags", 254);
  click.Set(L"ShellShowIcons", 3);
  click.Set(L"ShellOwnerDraw", 1);
  click.Remember(L"HistoryMRU", {RightClick::Entry(clsOrvaneData::TypeFile, L"C:\\a.txt", L"a")});
  DefinitionBuilder menu;
  const std::int32_t popup = menu.Popup(1, L"Popup");
  menu.File(popup, L"C:\\a.txt", L"a");
  menu.Folder(popup, L"5", L"Documents", clsOrvaneData::OptionsCSIDL);
  menu.DynamicFolder(popup, L"C:\\Work", L"Dynamic");
  click.Define(menu);
  click.desktop.files.AddFile(L"C:\\a.txt");
  click.desktop.files.AddFile(L"C:\\Work\\Sub\\b.txt");
}

TEST(Handler, LeaksNothingWhicheverCallFails) {
  std::size_t calls = 0;
  {
    RightClick click;
    ClickThrough(click);
    click.desktop.faults.FailCall(0);
    click.Click(L"C:\\", {L"C:\\a.txt"});
    click.Open(L"Dynamic");
    calls = click.desktop.faults.Calls();
  }
  EXPECT_GT(calls, 50u);
  for (std::size_t n = 1; n <= calls; ++n) {
    SCOPED_TRACE(n);
    RightClick click;
    ClickThrough(click);
    click.desktop.faults.FailCall(n);
    click.Click(L"C:\\", {L"C:\\a.txt"});
    click.Open(L"Dynamic");
  }
}

}  // namespace
}  // namespace orvane::test
