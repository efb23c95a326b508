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

}  // namespace
}  // namespace orvane::memory
