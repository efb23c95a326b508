#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

/// Opens the click's one dynamic folder and paints every entry of it.
void OpenAndPaint(RightClick& click, HDC context) {
  LRESULT result = 0;
  const HMENU submenu = GetSubMenu(GetSubMenu(click.menu, 1), 0);
  click.handler->HandleMenuMsg2(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(submenu), 0, &result);
  const int count = GetMenuItemCount(submenu);
  ASSERT_EQ(count, 5);
  for (int i = 0; i < count; ++i) {
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_MENU;
    measure.itemID = GetMenuItemID(submenu, i);
    if (measure.itemID == UINT(-1)) continue;  // the folder
    click.handler->HandleMenuMsg2(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure), &result);
    EXPECT_GT(measure.itemWidth, 25u);
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.itemID = measure.itemID;
    draw.hDC = context;
    draw.rcItem = {0, 0, 200, 20};
    click.handler->HandleMenuMsg2(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw), &result);
  }
}

TEST(Endurance, AThousandDynamicFoldersOpenedAndPaintedHoldNothing) {
  const Apartment apartment;
  Scene scene;
  scene.Set(L"ShellShowIcons", 3);
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteDefinition(
      scene.Path(L"Menu.cfg"),
      {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}},
       {1, clsOrvaneData::TypeDynamicFolder, 0, {scene.Folder(), L"Test", L"*.txt", L"0"}},
       {1, clsOrvaneData::TypeFile, 0, {scene.Path(L"a.txt"), L"A"}}});
  const ComPtr<IDataObject> selection = Select(scene.Folder(), {L"a.txt"});
  const Library library;
  const HDC context = CreateCompatibleDC(nullptr);
  const HBITMAP surface = CreateBitmap(200, 20, 1, 32, nullptr);
  SelectObject(context, surface);
  const auto clickOften = [&](int times) {
    for (int i = 0; i < times; ++i) {
      RightClick click(scene.Folder(), selection.Get());
      click.Query();
      OpenAndPaint(click, context);
    }
    return LeakCount::Now();
  };
  const LeakCount before = clickOften(3);  // fills the system's own caches
  const LeakCount after = clickOften(1000);
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.userHandles, before.userHandles);
  EXPECT_EQ(after.heapBlocks, before.heapBlocks);
  DeleteDC(context);
  DeleteObject(surface);
}

TEST(Endurance, TwoThreadsOfTwoThousandHandlersEach) {
  Scene scene;
  scene.PlainText();
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteFileItems(scene.Path(L"Menu.cfg"), 60);
  const Library library;  // keeps the DLL, as another apartment of the host would
  std::atomic<int> failures = 0;
  const auto work = [&] {
    const Apartment apartment;
    for (int i = 0; i < 2000; ++i) {
      RightClick click(L"", nullptr);
      if (click.initialized != S_OK || (i % 100 == 0 && click.Query() < 60)) ++failures;
    }
  };
  std::thread one(work);
  std::thread two(work);
  one.join();
  two.join();
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(library.Call("DllCanUnloadNow"), S_OK);
}

}  // namespace
}  // namespace orvane::host
