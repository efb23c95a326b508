#include <gtest/gtest.h>

#include <cstdlib>

#include "designerapp/Designer.h"
#include "host/LeakCount.h"

// That the designer holds nothing of the system longer than it needs it.

namespace orvane::test {
namespace {

/// How often the designer is opened and closed.
int Rounds() {
  const char* asked = std::getenv("ORVANE_ROUNDS");
  return asked ? std::atoi(asked) : 10;
}

/// Wine 8 keeps a block of that size for each label that was given a font.
constexpr std::size_t LeftByALabel = 24;

/// Keys that the menu's own loop finds when the preview has opened.
void Preview(Designer& designer) {
  for (const WPARAM key : {VK_DOWN, VK_RIGHT, VK_ESCAPE, VK_ESCAPE, VK_ESCAPE})
    PostMessageW(designer.window->Handle(), WM_KEYDOWN, key, 0);
  designer.Do(ID_VIEW_PREVIEW);
}

TEST(LongEndurance, OpeningEditingPreviewingAndClosingLeavesNothingBehind) {
  Designer designer;
  designer.Fill();
  const auto round = [&] {
    designer.Open(20);
    for (const int command : {ID_INSERT_TASK, ID_EDIT_DUPLICATE, ID_INSERT_POPUP, ID_EDIT_UNDO,
                              ID_EDIT_UNDO, ID_EDIT_UNDO})
      designer.Do(command);
    Preview(designer);
    designer.Close();
  };
  for (int i = 0; i < 10; ++i) round();  // what Windows loads once
  const host::LeakCount before = host::LeakCount::Now(LeftByALabel);
  for (int i = 0; i < Rounds(); ++i) round();
  const host::LeakCount after = host::LeakCount::Now(LeftByALabel);
  EXPECT_EQ(designer.Saved(), L"Notes");
  EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
  EXPECT_LE(after.userHandles, before.userHandles + 8);
  EXPECT_LE(after.kernelHandles, before.kernelHandles + 8);
  EXPECT_LE(after.heapBlocks, before.heapBlocks + 50);
}

}  // namespace
}  // namespace orvane::test
