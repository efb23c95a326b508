#include "shellext/CaptionSearch.h"
#include "shellext/RightClick.h"

namespace orvane::test {
namespace {

TEST(Selection, TellsWhatTheMenuIsFor) {
  const struct {
    const wchar_t* folder;
    std::vector<std::wstring_view> items;
    const wchar_t* currentFolder;
    const wchar_t* currentFile;
    const wchar_t* selectedItem;
  } rows[] = {
      {L"", {}, L"", L"", L""},
      {L"C:\\Work", {}, L"C:\\Work", L"", L""},
      {L"", {L"C:\\a.txt"}, L"C:\\", L"C:\\a.txt", L"C:\\a.txt"},
      {L"", {L"C:\\Work"}, L"C:\\Work", L"", L"C:\\Work"},
      {L"C:\\Work", {L"C:\\a.txt", L"C:\\Work"}, L"C:\\Work", L"", L""},
      {L"", {L"C:\\gone\\x.txt"}, L"C:\\gone", L"", L"C:\\gone\\x.txt"},
      {L"", std::vector<std::wstring_view>(100'000, L"C:\\Work\\x"), L"C:\\Work", L"", L""},
  };
  for (const auto& row : rows) {
    memory::Desktop desktop;
    desktop.files.AddFile(L"C:\\a.txt");
    desktop.files.AddFolder(L"C:\\Work");
    FileNames names;
    for (std::wstring_view item : row.items) names.Add(item);
    std::shared_ptr<DataObject> data;
    if (names.Count() > 0) data = std::make_shared<memory::DataObject>(names);
    const ItemIdList folder = *row.folder ? memory::Shell::ItemOf(row.folder) : ItemIdList();
    Selection selection;
    selection.file = L"of an earlier call";
    EXPECT_EQ(selection.Capture(desktop.shell, desktop.files, Patience::Menu, folder, data), 0);
    EXPECT_EQ(selection.folder, row.currentFolder);
    EXPECT_EQ(selection.file, row.currentFile);
    EXPECT_EQ(selection.onlyItem, row.selectedItem);
    EXPECT_EQ(selection.count, static_cast<std::int32_t>(row.items.size()));
  }
}

TEST(Selection, PassesTheDataObjectsFailureOn) {
  for (const std::int32_t failure : {memory::DataObject::NoFiles, memory::DataObject::LockFailed}) {
    RightClick click;
    click.Click();
    auto data = std::make_shared<memory::DataObject>(FileNames());
    data->failure = failure;
    EXPECT_EQ(click.handler->IShellExtInit_Initialize({}, data, 0), failure);
  }
}

TEST(HostWindow, IsFoundOnTheWayUp) {
  memory::Desktop desktop;
  memory::Windows& windows = desktop.windows;
  const WindowHandle explorer = windows.Add({.className = L"ExploreWClass"});
  const WindowHandle unnamed = windows.Add({.parent = explorer, .className = L""});
  const WindowHandle office = windows.Add({.parent = unnamed, .className = L"bosa_sdm_XL9"});
  const WindowHandle list = windows.Add({.parent = office, .className = L"SysListView32"});
  const WindowHandle other = windows.Add({.className = L"bosa_sd"});
  ModuleGlobals globals(desktop.Bundle());
  ContextMenuHandler handler(globals);
  EXPECT_EQ(handler.GetRootExplorerWindow(list), explorer);
  EXPECT_EQ(handler.GetRootOfficeWindow(list), office);
  EXPECT_EQ(handler.GetRootOfficeWindow(other), WindowHandle::None);
  windows.Look(explorer)->parent = list;  // a ring
  EXPECT_FALSE(handler.IsIE(list));
}

TEST(CaptionSearch, LooksIntoSubmenusFromTheStartOn) {
  RightClick click;
  click.Add(Item(Data::TypeFile, L"Inner", L"C:\\a"), click.Add(Item(Data::TypePopupMenu, L"Up")));
  click.Add(Item(Data::TypeFile, L"Last", L"C:\\b"));
  click.Click();
  const MenuHandle menu = click.Submenu(L"Orvane");
  const auto found = [&](const wchar_t* caption, std::int32_t from) {
    return IsCaptionInMenu(click.desktop.menus, caption, menu, from);
  };
  EXPECT_TRUE(found(L"Inner", 0));
  EXPECT_FALSE(found(L"Inner", 1));
  EXPECT_TRUE(found(L"Last", 1));
  EXPECT_FALSE(found(L"inner", 0));
  EXPECT_FALSE(found(L"", 0));
}

TEST(Handler, StoresAListThatItChangedAndNoOther) {
  RightClick click;
  clsMRU elsewhere(click.desktop.registry);
  elsewhere.Path(std::wstring(SettingsKey) + L"ContextMenu\\HistoryMRU\\");
  click.Click();
  elsewhere.Load(5);
  elsewhere.Remember(L"from another window");
  click.End();
  elsewhere.Load(5);
  EXPECT_EQ(elsewhere.FileCount(), 1) << "overwritten";

  click.Click();
  click.globals->history.AddFile(L"entry");
  { ContextMenuHandler second(*click.globals); }
  EXPECT_EQ(click.globals->history.FileCount(), 2) << "lost to the second one's loading";
  elsewhere.Load(5);
  EXPECT_EQ(elsewhere.File(1), L"entry");
}

TEST(Handler, BuildsItsMenuThoughAListHasBecomeShorter) {
  RightClick click;
  click.Set(L"ShellShowHistoryMRU", 2);
  const Data item = Item(Data::TypeFile, L"a", L"C:\\a.txt");
  click.Remember(L"HistoryMRU", {item, item, item, item});
  click.Click();
  click.globals->history.AddFile(L"not saved yet");
  click.Set(L"ShelllMaxHistoryMRU", 3);
  ContextMenuHandler second(*click.globals);
  EXPECT_LE(click.globals->history.FileCount(), 3);
}

TEST(Handler, WritesTheDebugLogOfAMenu) {
  RightClick click;
  click.Set(L"DebugEnable", 1);
  click.Set(L"DebugFlags", 2);
  click.Click(L"C:\\Program Files");
  const std::string log = click.desktop.files.Content(LogFile).value_or("");
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
  const std::string log = click.desktop.files.Content(LogFile).value_or("");
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

}  // namespace
}  // namespace orvane::test
