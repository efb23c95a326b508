// What takes minutes: whole right-clicks by the thousand.

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/Com.h"
#include "host/Definition.h"
#include "host/LeakCount.h"
#include "host/Library.h"
#include "host/Scene.h"
#include "host/SharedMenu.h"
#include "menudata/clsOrvaneData.h"

namespace orvane::host {
namespace {

using Item = clsOrvaneData;

/// A surface for one entry.
class Surface {
 public:
  Surface() : m_old(SelectObject(context, m_bitmap)) {}
  ~Surface() {
    SelectObject(context, m_old);
    DeleteObject(m_bitmap);
    DeleteDC(context);
  }
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  const HDC context = CreateCompatibleDC(nullptr);

 private:
  const HBITMAP m_bitmap = CreateBitmap(300, 30, 1, 32, nullptr);
  const HGDIOBJ m_old;
};

void PaintAndAskAbout(IContextMenu3& handler, UINT id, HDC context) {
  LRESULT result = 0;
  MEASUREITEMSTRUCT measure{};
  measure.CtlType = ODT_MENU;
  measure.itemID = id;
  handler.HandleMenuMsg2(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure), &result);
  EXPECT_GT(measure.itemWidth, 25u) << id;
  DRAWITEMSTRUCT draw{};
  draw.CtlType = ODT_MENU;
  draw.itemID = id;
  draw.hDC = context;
  draw.rcItem = {0, 0, 300, 30};
  handler.HandleMenuMsg2(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw), &result);
  wchar_t text[200];
  for (const UINT what : {GCS_VERBA, GCS_HELPTEXTA, GCS_VERBW, GCS_HELPTEXTW, GCS_VALIDATEW})
    handler.GetCommandString(id - 1, what, nullptr, reinterpret_cast<char*>(text), 100);
}

/// Opens the submenu and all below it.
void Walk(IContextMenu3& handler, HMENU menu, HDC context) {
  LRESULT result = 0;
  handler.HandleMenuMsg2(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0, &result);
  handler.HandleMenuMsg2(WM_MENUCHAR, 'a', reinterpret_cast<LPARAM>(menu), &result);
  for (int i = 0; i < GetMenuItemCount(menu); ++i) {
    if (const UINT id = IdAt(menu, i)) PaintAndAskAbout(handler, id, context);
    if (const HMENU submenu = GetSubMenu(menu, i)) Walk(handler, submenu, context);
  }
}

TEST(LongLife, AThousandWholeRightClicksHoldNothing) {
  const Apartment apartment;
  Scene scene;
  scene.Set(L"ShellShowIcons", 3);
  scene.Set(L"ShellShowHistoryMRU", 2);
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteDefinition(scene.Path(L"Menu.cfg"),
                  {{0, Item::TypeRoot, 0, {L"Orvane"}},
                   {1, Item::TypePopupMenu, 0, {L"Popup"}},
                   {2, Item::TypeDynamicFolder, 0, {scene.Folder(), L"Test", L"*.txt", L"0"}},
                   {1, Item::TypeFile, 0, {scene.Path(L"a.txt"), L"A"}},
                   {1, Item::TypeFolder, 0, {L"5", L"Documents", L"1"}},
                   {1, Item::TypeCustomAction, 0, {L"", L"Nothing"}}});
  const ComPtr<IDataObject> selection = Select(scene.Folder(), {L"a.txt"});
  const Surface surface;
  const auto clickOften = [&](int times) {
    for (int i = 0; i < times; ++i) {
      RightClick click(scene.Folder(), selection.Get());
      click.Query();
      Walk(*click.handler.Get(), FindSubmenu(click.menu, L"Orvane"), surface.context);
      EXPECT_TRUE(click.Choose(L"Nothing"));
    }
    return LeakCount::Now();
  };
  const LeakCount before = clickOften(50);  // fills the system's own caches
  EXPECT_EQ(clickOften(1000), before);
}

TEST(LongThreads, TwoApartmentsOfTwoThousandHandlersEach) {
  Scene scene;
  scene.PlainText();
  scene.Set(L"ShellConfigFile", scene.Path(L"Menu.cfg"));
  WriteFileItems(scene.Path(L"Menu.cfg"), 60);
  const Library library;
  std::atomic<int> failures = 0;
  const auto work = [&] {
    const Apartment apartment;
    for (int i = 0; i < 2000; ++i) {
      RightClick click(L"", nullptr);
      if (click.initialized != S_OK || (i % 10 == 0 && click.Query() < 60)) ++failures;
      // Some are let go of by a third thread while their own goes on.
      if (i % 100 == 0) std::thread([&] { click.handler.Reset(); }).join();
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
