#include <gtest/gtest.h>

#include <memory>

#include "graphics/DrawEverything.h"

namespace orvane::test {
namespace {

TEST(GraphicsFaultSweep, NothingIsLeftBehindWhicheverCallFails) {
  std::size_t calls = 0;
  {
    MenuDesk desk;
    DrawEverything(desk);
    calls = desk.desktop.faults.Calls();
  }
  ASSERT_GT(calls, 200u);
  for (std::size_t n = 1; n <= calls; ++n) {
    memory::Desktop* desktop = nullptr;
    auto desk = std::make_unique<MenuDesk>();
    desktop = &desk->desktop;
    desktop->faults.FailCall(n);
    DrawEverything(*desk);
    EXPECT_EQ(desktop->icons.Live(), 0u) << "call " << n;
    EXPECT_FALSE(desktop->icons.wronglyFreed) << "call " << n;
    // What is left belongs to the store and the menu font.
    std::size_t owned = 1;
    for (const auto& node : desk->bitmaps) owned += (node->m_lData != 0) + (node->m_lData2 != 0);
    EXPECT_LE(desktop->gdi.Live(), owned) << "call " << n;
    EXPECT_EQ(desktop->gdi.Mistakes(), std::vector<std::string>()) << "call " << n;
    DeleteMenuBitmaps(desktop->gdi, desk->bitmaps);
    EXPECT_LE(desktop->gdi.Live(), 1u) << "call " << n;
  }
}

}  // namespace
}  // namespace orvane::test
