#include "platform/AnyDesktop.h"
#ifdef _WIN32
#include "win32/NativeHandles.h"
#endif

namespace orvane {
namespace {

class MenusContract : public AnyDesktop {
 protected:
  bool Insert(MenuHandle menu, std::int32_t position, const std::wstring& caption,
              MenuHandle submenu = MenuHandle::None) {
    return menus.Insert(menu, position, {.caption = caption, .id = 7, .submenu = submenu});
  }

  std::wstring Captions(MenuHandle menu) {
    std::wstring all;
    std::wstring caption;
    MenuHandle submenu{};
    for (std::int32_t i = 0; menus.Look(menu, i, caption, submenu); ++i) all += caption + L"|";
    return all;
  }

  Menus& menus = m_platform.menus;
  const UniqueMenu m_menu{menus, menus.CreatePopup()};
  const MenuHandle menu = m_menu.get();
};

INSTANTIATE_TEST_SUITE_P(, MenusContract, EveryDesktop(), NameOfDesktop);

TEST_P(MenusContract, InsertsBeforeAPositionAndElseAtTheEnd) {
  EXPECT_EQ(menus.Count(menu), 0);
  EXPECT_TRUE(Insert(menu, Menus::Append, L"b"));
  EXPECT_TRUE(Insert(menu, 0, L"a"));
  EXPECT_TRUE(Insert(menu, 2, L"c"));
  EXPECT_TRUE(Insert(menu, 99, L"e"));
  EXPECT_TRUE(Insert(menu, 3, L"&d"));
  EXPECT_EQ(menus.Count(menu), 5);
  EXPECT_EQ(Captions(menu), L"a|b|c|&d|e|");
}

TEST_P(MenusContract, LooksAtCaptionsOfEveryKindOfEntry) {
  using State = MenuEntry::State;
  const MenuHandle submenu = menus.CreatePopup();
  for (const MenuEntry& entry :
       {MenuEntry{.separator = true}, MenuEntry{.caption = std::wstring(300, L'x')},
        MenuEntry{.caption = L"drawn", .submenu = submenu, .ownerDraw = true},
        MenuEntry{.caption = L"\u00e4\u05d0\u4e2d", .state = State::Disabled},
        MenuEntry{.caption = L"gray", .state = State::Grayed}}) {
    ASSERT_TRUE(menus.Insert(menu, Menus::Append, entry));
  }
  EXPECT_EQ(Captions(menu), L"|" + std::wstring(255, L'x') + L"|drawn|\u00e4\u05d0\u4e2d|gray|");

  std::wstring caption;
  MenuHandle found{};
  EXPECT_TRUE(menus.Look(menu, 2, caption, found));
  EXPECT_EQ(found, submenu);
  EXPECT_TRUE(menus.Look(menu, 1, caption, found));
  EXPECT_EQ(found, MenuHandle::None);
}

TEST_P(MenusContract, OutputsStayUntouchedWithoutAnEntry) {
  std::wstring caption = L"before";
  MenuHandle submenu = menu;
  for (const std::int32_t position : {0, -1, 2'000'000'000}) {
    EXPECT_FALSE(menus.Look(menu, position, caption, submenu)) << position;
    EXPECT_FALSE(menus.Remove(menu, position)) << position;
  }
  EXPECT_EQ(caption, L"before");
  EXPECT_EQ(submenu, menu);
}

TEST_P(MenusContract, WhatHoldsASubmenuTakesItAlong) {
  const MenuHandle submenu = menus.CreatePopup();
  const MenuHandle inner = menus.CreatePopup();
  const MenuHandle removed = menus.CreatePopup();
  const MenuHandle apart = menus.CreatePopup();
  const MenuHandle outer = menus.CreatePopup();
  Insert(submenu, Menus::Append, L"inner", inner);
  Insert(outer, Menus::Append, L"submenu", submenu);
  Insert(outer, 0, L"removed", removed);
  EXPECT_TRUE(menus.Remove(outer, 0));
  EXPECT_FALSE(menus.Exists(removed));
  EXPECT_EQ(Captions(outer), L"submenu|");
  menus.Destroy(outer);
  for (const MenuHandle gone : {outer, submenu, inner}) EXPECT_FALSE(menus.Exists(gone));
  EXPECT_TRUE(menus.Exists(apart));
  menus.Destroy(outer);  // once more does nothing
  menus.Destroy(apart);
}

TEST_P(MenusContract, WhatIsNoMenuTakesNothing) {
  const MenuHandle gone = menus.CreatePopup();
  menus.Destroy(gone);
  for (const MenuHandle none : {MenuHandle::None, gone, MenuHandle{0x7ffffff1}}) {
    EXPECT_FALSE(menus.Exists(none));
    EXPECT_EQ(menus.Count(none), -1);
    EXPECT_FALSE(Insert(none, 0, L"a"));
    EXPECT_FALSE(menus.Remove(none, 0));
  }
  EXPECT_FALSE(Insert(menu, 0, L"a", gone)) << "a submenu that is no menu";
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

  const auto info = [&menu](UINT position) {
    MENUITEMINFOW read{};
    read.cbSize = sizeof read;
    read.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_CHECKMARKS | MIIM_ID;
    EXPECT_TRUE(GetMenuItemInfoW(win32::ToNative<HMENU>(menu.get()), position, TRUE, &read));
    return read;
  };
  EXPECT_EQ(info(0).fState, static_cast<UINT>(MFS_ENABLED));
  EXPECT_EQ(info(0).wID, 7u);
  EXPECT_EQ(info(0).hbmpUnchecked, picture);
  EXPECT_EQ(info(0).hbmpChecked, picture);
  EXPECT_EQ(info(1).fType, static_cast<UINT>(MFT_OWNERDRAW));
  EXPECT_EQ(info(1).fState, static_cast<UINT>(MF_DISABLED));
  EXPECT_EQ(info(2).fState, static_cast<UINT>(MFS_GRAYED));
  DeleteObject(picture);
}
#endif

}  // namespace
}  // namespace orvane
