#include <gtest/gtest.h>

#include "platform/memory/Menus.h"
#ifdef _WIN32
#include <windows.h>

#include "platform/win32/Menus.h"
#include "platform/win32/NativeHandles.h"
#endif

namespace orvane {
namespace {

struct OnMemory {
  memory::Faults faults;
  memory::Menus menus{faults};
};
#ifdef _WIN32
struct OnWindows {
  win32::Menus menus;
};
using BackEnds = testing::Types<OnMemory, OnWindows>;
#else
using BackEnds = testing::Types<OnMemory>;
#endif

template <class BackEnd>
class MenusContract : public testing::Test {
 protected:
  bool InsertText(MenuHandle menu, std::int32_t position, const std::wstring& caption,
                  MenuHandle submenu = MenuHandle::None) {
    MenuEntry entry;
    entry.caption = caption;
    entry.id = ++m_lastId;
    entry.submenu = submenu;
    return menus.Insert(menu, position, entry);
  }

  std::wstring Captions(MenuHandle menu) {
    std::wstring all;
    std::wstring caption;
    MenuHandle submenu{};
    for (std::int32_t i = 0; menus.Look(menu, i, caption, submenu); ++i) all += caption + L"|";
    return all;
  }

  BackEnd m_backEnd;
  Menus& menus = m_backEnd.menus;

 private:
  std::uint32_t m_lastId = 0;
};
TYPED_TEST_SUITE(MenusContract, BackEnds, );

TYPED_TEST(MenusContract, InsertsBeforeAPositionAndElseAtTheEnd) {
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  ASSERT_TRUE(menu);
  EXPECT_EQ(this->menus.Count(menu.get()), 0);
  EXPECT_TRUE(this->InsertText(menu.get(), Menus::Append, L"b"));
  EXPECT_TRUE(this->InsertText(menu.get(), 0, L"a"));
  EXPECT_TRUE(this->InsertText(menu.get(), 2, L"c"));
  EXPECT_TRUE(this->InsertText(menu.get(), 99, L"e"));
  EXPECT_TRUE(this->InsertText(menu.get(), 3, L"&d"));
  EXPECT_EQ(this->menus.Count(menu.get()), 5);
  EXPECT_EQ(this->Captions(menu.get()), L"a|b|c|&d|e|");
}

TYPED_TEST(MenusContract, LooksAtCaptionsOfEveryKindOfEntry) {
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  const MenuHandle submenu = this->menus.CreatePopup();
  MenuEntry entry;
  entry.separator = true;
  ASSERT_TRUE(this->menus.Insert(menu.get(), Menus::Append, entry));
  entry = {};
  entry.caption = std::wstring(300, L'x');
  ASSERT_TRUE(this->menus.Insert(menu.get(), Menus::Append, entry));
  entry.caption = L"drawn";
  entry.ownerDraw = true;
  entry.submenu = submenu;
  ASSERT_TRUE(this->menus.Insert(menu.get(), Menus::Append, entry));
  for (const auto state : {MenuEntry::State::Disabled, MenuEntry::State::Grayed}) {
    entry = {};
    entry.caption = L"\u00e4\u05d0\u4e2d";
    entry.state = state;
    ASSERT_TRUE(this->menus.Insert(menu.get(), Menus::Append, entry));
  }
  EXPECT_EQ(this->Captions(menu.get()),
            L"|" + std::wstring(255, L'x') + L"|drawn|\u00e4\u05d0\u4e2d|\u00e4\u05d0\u4e2d|");

  std::wstring caption;
  MenuHandle found{};
  EXPECT_TRUE(this->menus.Look(menu.get(), 2, caption, found));
  EXPECT_EQ(found, submenu);
  EXPECT_TRUE(this->menus.Look(menu.get(), 1, caption, found));
  EXPECT_EQ(found, MenuHandle::None);
}

TYPED_TEST(MenusContract, OutputsStayUntouchedWithoutAnEntry) {
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  std::wstring caption = L"before";
  MenuHandle submenu = menu.get();
  for (const std::int32_t position : {0, 1, -1, 2'000'000'000}) {
    EXPECT_FALSE(this->menus.Look(menu.get(), position, caption, submenu)) << position;
    EXPECT_FALSE(this->menus.Remove(menu.get(), position)) << position;
  }
  EXPECT_EQ(caption, L"before");
  EXPECT_EQ(submenu, menu.get());
}

TYPED_TEST(MenusContract, RemovingAnEntryDestroysItsSubmenu) {
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  const MenuHandle submenu = this->menus.CreatePopup();
  this->InsertText(menu.get(), Menus::Append, L"popup", submenu);
  this->InsertText(menu.get(), Menus::Append, L"rest");
  EXPECT_TRUE(this->menus.Remove(menu.get(), 0));
  EXPECT_FALSE(this->menus.Exists(submenu));
  EXPECT_EQ(this->Captions(menu.get()), L"rest|");
}

TYPED_TEST(MenusContract, DestroyingAMenuDestroysWhatIsInIt) {
  const MenuHandle menu = this->menus.CreatePopup();
  const MenuHandle submenu = this->menus.CreatePopup();
  const MenuHandle inner = this->menus.CreatePopup();
  const MenuHandle apart = this->menus.CreatePopup();
  this->InsertText(submenu, Menus::Append, L"inner", inner);
  this->InsertText(menu, Menus::Append, L"submenu", submenu);
  this->menus.Destroy(menu);
  EXPECT_FALSE(this->menus.Exists(menu));
  EXPECT_FALSE(this->menus.Exists(submenu));
  EXPECT_FALSE(this->menus.Exists(inner));
  EXPECT_TRUE(this->menus.Exists(apart));
  this->menus.Destroy(menu);  // once more does nothing
  this->menus.Destroy(apart);
}

TYPED_TEST(MenusContract, WhatIsNoMenuTakesNothing) {
  const MenuHandle gone = this->menus.CreatePopup();
  this->menus.Destroy(gone);
  for (const MenuHandle menu : {MenuHandle::None, gone, MenuHandle{0x7ffffff1}}) {
    EXPECT_FALSE(this->menus.Exists(menu));
    EXPECT_EQ(this->menus.Count(menu), -1);
    EXPECT_FALSE(this->InsertText(menu, 0, L"a"));
    EXPECT_FALSE(this->menus.Remove(menu, 0));
  }
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  EXPECT_FALSE(this->InsertText(menu.get(), 0, L"a", gone)) << "a submenu that is no menu";
}

TYPED_TEST(MenusContract, HoldsManyEntriesAndLevels) {
  UniqueMenu menu(this->menus, this->menus.CreatePopup());
  for (int i = 0; i < 5000; ++i) ASSERT_TRUE(this->InsertText(menu.get(), Menus::Append, L"x"));
  EXPECT_EQ(this->menus.Count(menu.get()), 5000);

  MenuHandle child = this->menus.CreatePopup();
  for (int level = 0; level < 15; ++level) {
    const MenuHandle parent = this->menus.CreatePopup();
    ASSERT_TRUE(this->InsertText(parent, Menus::Append, L"level", child));
    child = parent;
  }
  this->menus.Destroy(child);
}

#ifdef _WIN32
TEST(Win32Menus, HandOverStateKindAndBitmap) {
  win32::Menus menus;
  const UniqueMenu menu(menus, menus.CreatePopup());
  const HBITMAP picture = CreateBitmap(16, 16, 1, 1, nullptr);
  menus.Insert(menu.get(), Menus::Append,
               {.caption = L"plain", .id = 7, .bitmap = win32::FromNative<BitmapHandle>(picture)});
  menus.Insert(menu.get(), Menus::Append,
               {.caption = L"drawn", .state = MenuEntry::State::Disabled, .ownerDraw = true});
  menus.Insert(menu.get(), Menus::Append, {.caption = L"gray", .state = MenuEntry::State::Grayed});

  struct Row {
    UINT type;
    UINT state;
    HBITMAP bitmap;
    UINT id;
  };
  const Row rows[] = {{MFT_STRING, MFS_ENABLED, picture, 7},
                      {MFT_OWNERDRAW, MF_DISABLED, nullptr, 0},
                      {MFT_STRING, MFS_GRAYED, nullptr, 0}};
  for (UINT i = 0; i < std::size(rows); ++i) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_CHECKMARKS | MIIM_ID;
    ASSERT_TRUE(GetMenuItemInfoW(win32::ToNative<HMENU>(menu.get()), i, TRUE, &info));
    EXPECT_EQ(info.fType, rows[i].type) << i;
    EXPECT_EQ(info.fState, rows[i].state) << i;
    EXPECT_EQ(info.hbmpUnchecked, rows[i].bitmap) << i;
    EXPECT_EQ(info.hbmpChecked, rows[i].bitmap) << i;
    EXPECT_EQ(info.wID, rows[i].id) << i;
  }
  DeleteObject(picture);
}
#endif

}  // namespace
}  // namespace orvane
