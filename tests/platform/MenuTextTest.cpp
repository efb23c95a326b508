#include "platform/memory/MenuText.h"

#include <gtest/gtest.h>

namespace orvane::memory {
namespace {

TEST(MenuText, ShowsLevelsSeparatorsAndStates) {
  Faults faults;
  Menus menus(faults);
  const MenuHandle menu = menus.CreatePopup();
  const MenuHandle submenu = menus.CreatePopup();
  menus.Insert(submenu, Menus::Append,
               {.caption = L"(Empty)", .state = MenuEntry::State::Disabled});
  menus.Insert(submenu, Menus::Append, {.separator = true});
  menus.Insert(menu, Menus::Append, {.caption = L"&Open"});
  menus.Insert(menu, Menus::Append, {.caption = L"More", .submenu = submenu});
  menus.Insert(menu, Menus::Append, {.caption = L"Last", .state = MenuEntry::State::Grayed});
  EXPECT_EQ(MenuText(menus, menu),
            L"&Open\n"
            L"More >\n"
            L"  (Empty) (disabled)\n"
            L"  --------\n"
            L"Last (disabled)\n");

  EXPECT_EQ(menus.LiveCount(), 2u);
  menus.Destroy(menu);
  EXPECT_EQ(menus.LiveCount(), 0u);
  EXPECT_EQ(MenuText(menus, menu), L"");
}

TEST(MemoryMenus, TheChosenCallFails) {
  Faults faults;
  Menus menus(faults);
  const UniqueMenu menu(menus, menus.CreatePopup());
  faults.FailCall(2);
  EXPECT_TRUE(menus.Insert(menu.get(), Menus::Append, {.caption = L"a"}));
  EXPECT_FALSE(menus.Insert(menu.get(), Menus::Append, {.caption = L"b"}));
  EXPECT_TRUE(menus.Insert(menu.get(), Menus::Append, {.caption = L"c"}));
  EXPECT_EQ(menus.Count(menu.get()), 2);
}

}  // namespace
}  // namespace orvane::memory
