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

constexpr int Items = 60;

class Endurance : public testing::Test {
 protected:
  Endurance() {
    scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
    WriteFileItems(scene.Path(L"Menu.cfg"), Items);
  }

  void ClickOnce(IDataObject* selection) {
    RightClick click(scene.Folder(), selection);
    if (click.Query() < Items) ++failures;
  }

  Scene scene;
  std::atomic<int> failures = 0;
};

TEST_F(Endurance, TwoHundredRightClicksHoldNothing) {
  const Apartment apartment;
  const ComPtr<IDataObject> selection = Select(scene.Folder(), {L"a.txt"});
  const Library library;
  for (int i = 0; i < 3; ++i) ClickOnce(selection.Get());  // fills the system's own caches
  const LeakCount before = LeakCount::Now();
  for (int i = 0; i < 200; ++i) ClickOnce(selection.Get());
  const LeakCount after = LeakCount::Now();
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.userHandles, before.userHandles);
  EXPECT_EQ(after.heapBlocks, before.heapBlocks);
  EXPECT_EQ(failures, 0);
}

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

TEST_F(Endurance, AThousandDynamicFoldersOpenedAndPainted) {
  const Apartment apartment;
  scene.Set(L"ShellShowIcons", 3);
  WriteDefinition(
      scene.Path(L"Menu.cfg"),
      {{0, clsOrvaneData::TypeRoot, 0, {L"Orvane"}},
       {1, clsOrvaneData::TypeDynamicFolder, 0, {scene.Folder(), L"Test", L"*.txt", L"0"}}});
  const Library library;
  const HDC context = CreateCompatibleDC(nullptr);
  const HBITMAP surface = CreateBitmap(200, 20, 1, 32, nullptr);
  SelectObject(context, surface);
  const auto clickOnce = [&] {
    RightClick click(scene.Folder(), nullptr);
    click.Query();
    OpenAndPaint(click, context);
  };
  for (int i = 0; i < 3; ++i) clickOnce();
  const LeakCount before = LeakCount::Now();
  for (int i = 0; i < 1000; ++i) clickOnce();
  const LeakCount after = LeakCount::Now();
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.userHandles, before.userHandles);
  EXPECT_EQ(after.heapBlocks, before.heapBlocks);
  DeleteDC(context);
  DeleteObject(surface);
}

TEST_F(Endurance, TwoThreadsOfTwoThousandHandlersEach) {
  scene.PlainText();
  const Library library;  // keeps the DLL, as another apartment of the host would
  const auto work = [this] {
    const Apartment apartment;
    for (int i = 0; i < 2000; ++i) {
      const RightClick made(L"", nullptr);
      if (made.initialized != S_OK) ++failures;
      if (i % 100 == 0) ClickOnce(nullptr);
    }
  };
  std::thread one(work);
  std::thread two(work);
  one.join();
  two.join();
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(library.Call("DllCanUnloadNow"), S_OK);
}

TEST_F(Endurance, UnloadingAgainAndAgain) {
  const Apartment apartment;
  scene.PlainText();
  for (int i = 0; i < 20; ++i) {
    ClickOnce(nullptr);
    CoFreeUnusedLibrariesEx(0, 0);
    ASSERT_EQ(GetModuleHandleW(L"orvane.dll"), nullptr);
  }
  EXPECT_EQ(failures, 0);
}

}  // namespace
}  // namespace orvane::host
