#include <gtest/gtest.h>

#include <set>

#include "host/BoxCloser.h"
#include "host/Com.h"
#include "host/Definition.h"
#include "host/FileDataObject.h"
#include "host/MenuText.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

class RightClicks : public testing::Test {
 protected:
  RightClicks() {
    scene.PlainText();
    const std::wstring config = scene.Path(L"Menu.cfg");
    scene.Set(L"ShellConfigFile", config);
    WriteDefinition(
        config, {{0, Item::TypeRoot, 0, {L"Orvane"}},
                 {1, Item::TypeFolder, 0, {scene.Path(L"Reports"), L"&Reports"}},
                 {1, Item::TypePopupMenu, 0, {L"&Tools"}},
                 {3, Item::TypeFile, 0, {scene.Path(L"a.txt"), L"&Editor"}},
                 {3, Item::TypeSeparator, 0, {}},
                 {3, Item::TypeCustomAction, 0, {L"Hello~", L"Greeting"}},
                 {1,
                  Item::TypeSelectionTask,
                  0,
                  {L"", L"One file", L"", L"", L"", L"", L"", L"", L"", L"", L"2"}},
                 {1,
                  Item::TypeSelectionTask,
                  0,
                  {L"", L"Many files", L"", L"", L"", L"", L"", L"", L"", L"", L"4"}},
                 {1, Item::TypeCopyToX, 0, {scene.Path(L"Reports"), L"Copy to Reports", L"0"}}});
  }

  std::wstring MenuOf(IDataObject* selection) {
    RightClick click(scene.Folder(), selection);
    EXPECT_EQ(click.initialized, S_OK);
    EXPECT_GT(click.Query(), 0);
    return MenuText(click.menu);
  }

  Apartment apartment;
  Scene scene;
  BoxCloser closer;
};

TEST_F(RightClicks, OneFile) {
  EXPECT_EQ(MenuOf(Select(scene.Folder(), {L"a.txt"}).Get()),
            L"--------\n"
            L"Orvane >\n"
            L"  &Reports\n"
            L"  &Tools >\n"
            L"    &Editor\n"
            L"    --------\n"
            L"    Greeting\n"
            L"  One file\n"
            L"  Copy to Reports\n"
            L"  --------\n"
            L"  &Designer...\n"
            L"--------\n"
            L"&Add To Quick Access\n"
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
}

TEST_F(RightClicks, SeveralFilesAndTheBackground) {
  scene.Set(L"ShellShowQuickAccessMRU", 0);
  scene.Set(L"ShellShowFlags", 1 | 64 | 128);
  const std::wstring head =
      L"--------\nOrvane >\n  &Reports\n  &Tools >\n    &Editor\n    --------\n"
      L"    Greeting\n";
  const std::wstring tail = L"  Copy to Reports\n  --------\n  &Designer...\n  --------\n";
  EXPECT_EQ(MenuOf(Select(scene.Folder(), {L"a.txt", L"\u0416.txt"}).Get()),
            head + L"  Many files\n" + tail + L"  Move to...\n  Task Manager\n--------\n");
  EXPECT_EQ(MenuOf(nullptr), head + tail + L"  Task Manager\n--------\n");
}

void CollectIds(HMENU menu, std::multiset<UINT>& ids) {
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    if (const HMENU submenu = GetSubMenu(menu, i)) CollectIds(submenu, ids);
    const UINT id = GetMenuItemID(menu, i);
    if (id != 0 && id != static_cast<UINT>(-1)) ids.insert(id);
  }
}

TEST_F(RightClicks, IdentifiersAreUniqueAndWithinTheCountOrTheRange) {
  for (const UINT last : {32767u, 2000u + 40, 2000u + 9, 2000u + 5, 2000u + 2, 2000u + 1}) {
    RightClick click(scene.Folder(), Select(scene.Folder(), {L"a.txt"}).Get());
    const HRESULT count = click.Query(2000, last);
    std::multiset<UINT> ids;
    CollectIds(click.menu, ids);
    EXPECT_EQ(ids.size(), std::set<UINT>(ids.begin(), ids.end()).size());
    ASSERT_FALSE(ids.empty());
    EXPECT_GE(*ids.begin(), 2000u);
    EXPECT_LT(*ids.rbegin(), 2000u + static_cast<UINT>(count));
    EXPECT_LE(*ids.rbegin(), last);
  }
}

TEST_F(RightClicks, TwoHandlersAddOneRoot) {
  RightClick first(scene.Folder(), nullptr);
  RightClick second(scene.Folder(), nullptr);
  const HRESULT count = first.Query();
  const std::wstring menu = MenuText(first.menu);
  EXPECT_EQ(second.handler->QueryContextMenu(first.menu, 0, static_cast<UINT>(1 + count), 32767, 0),
            0);
  EXPECT_EQ(MenuText(first.menu), menu);
}

TEST_F(RightClicks, OneHandlerBuildsAgainAndAgain) {
  RightClick click(scene.Folder(), nullptr);
  const HRESULT count = click.Query();
  const std::wstring menu = MenuText(click.menu);
  for (int i = 0; i < 10; ++i) {
    click.NewMenu();
    EXPECT_EQ(click.Query(), count);
    EXPECT_EQ(MenuText(click.menu), menu);
  }
}

TEST_F(RightClicks, CorruptDefinitionIsToldAndInsertsNoRoot) {
  std::filesystem::resize_file(scene.Path(L"Menu.cfg"), 40);
  RightClick click(scene.Folder(), nullptr);
  EXPECT_GE(click.Query(), 0);
  EXPECT_EQ(closer.boxes,
            std::vector<std::wstring>{L"Orvane - Orvane Shell Extension: File is corrupt!"});
  EXPECT_EQ(MenuText(click.menu).find(L"Orvane"), std::wstring::npos);
}

TEST_F(RightClicks, SelectionLargerThanSixteenBits) {
  std::vector<std::wstring> paths(70000, scene.Path(L"a.txt"));
  const ComPtr<FileDataObject> selection = FileDataObject::Of(paths);
  EXPECT_NE(MenuOf(selection.Get()).find(L"Many files"), std::wstring::npos);
  EXPECT_EQ(selection->released, selection->given);
}

TEST_F(RightClicks, RefusedSelectionIsReportedAndItsMediumReleased) {
  const RightClick failing(scene.Folder(), FileDataObject::Failing(DV_E_FORMATETC).Get());
  EXPECT_EQ(failing.initialized, DV_E_FORMATETC);
  const ComPtr<FileDataObject> unlockable = FileDataObject::Unlockable();
  const RightClick click(scene.Folder(), unlockable.Get());
  EXPECT_EQ(unlockable->given, 1);
  EXPECT_EQ(unlockable->released, 1);
}

TEST_F(RightClicks, NothingHandedOverIsNoHarm) {
  RightClick click(L"", nullptr);
  EXPECT_EQ(click.initialized, S_OK);
  char text[4] = "abc";
  EXPECT_EQ(click.handler->GetCommandString(0, GCS_HELPTEXTA, nullptr, text, 4), S_OK);
  EXPECT_STREQ(text, "abc") << "no such entry yet";
  EXPECT_TRUE(FAILED(click.handler->InvokeCommand(nullptr)));
  EXPECT_TRUE(FAILED(click.handler->QueryContextMenu(nullptr, 0, 1, 32767, 0)));
  EXPECT_EQ(click.handler->HandleMenuMsg2(WM_DRAWITEM, 0, 0, nullptr), S_OK);
  EXPECT_EQ(click.handler->HandleMenuMsg2(WM_MEASUREITEM, 0, 0, nullptr), S_OK);
  EXPECT_EQ(click.handler->HandleMenuMsg(WM_INITMENUPOPUP, 0, 0), S_OK);
  CMINVOKECOMMANDINFO record{};
  record.cbSize = sizeof record;
  EXPECT_EQ(click.handler->InvokeCommand(&record), S_OK) << "before any menu";
  record.cbSize = sizeof record - 1;
  EXPECT_TRUE(FAILED(click.handler->InvokeCommand(&record)));
}

TEST_F(RightClicks, TheHostKeepsItsCurrentDirectory) {
  wchar_t before[MAX_PATH], after[MAX_PATH];
  GetCurrentDirectoryW(MAX_PATH, before);
  MenuOf(Select(scene.Folder(), {L"a.txt"}).Get());
  GetCurrentDirectoryW(MAX_PATH, after);
  EXPECT_STREQ(after, before);
}

}  // namespace
}  // namespace orvane::host
