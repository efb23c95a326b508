// Owner-drawn entries on real GDI, with the shell's real icons.
#ifdef _WIN32
#include <gtest/gtest.h>

#include <objbase.h>

#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/DrawEverything.h"
#include "host/LeakCount.h"
#include "platform/win32/ShellIcons.h"

namespace orvane::test {
namespace {

constexpr Colour Paper = Rgb(1, 2, 3);
constexpr Rect Area{0, 10, 150, 30};

class RealMenuTest : public testing::Test {
 protected:
  RealMenuTest() { CoInitialize(nullptr); }
  ~RealMenuTest() override { CoUninitialize(); }

  win32::Gdi m_gdi;
  win32::ShellIcons m_icons;
};

TEST_F(RealMenuTest, EntryToThePixel) {
  if (m_gdi.Dpi() != 96) GTEST_SKIP() << "a scaled screen";
  MenuDesk desk(&m_gdi, &m_icons);
  desk.Load();
  desk.Record(1, clsOrvaneData::TypeCustomAction, L"&Run");
  desk.Add(desk.menu, 1, L"&Run", 7);
  EXPECT_EQ(desk.Measure(1).height, 20);
  EXPECT_EQ(desk.Measure(99).width, 25);
  const std::int32_t textWidth = desk.Measure(1).width - 25;
  EXPECT_GT(textWidth, 0);

  const Colour menu = m_gdi.SystemColour(ColConst::Menu);
  Canvas canvas(m_gdi, {160, 40});
  canvas.Clear(Paper);
  desk.Draw(1, 0, canvas.Context(), Area);
  EXPECT_EQ(canvas.BoundsOf(menu), Area);
  for (int y = Area.top; y < Area.bottom; ++y) EXPECT_EQ(canvas.Pixel(22, y), Paper);
  EXPECT_EQ(canvas.Pixel(21, 15), menu);
  int textLeft = 23;
  while (textLeft < 150 && [&] {
    for (int y = Area.top; y < Area.bottom; ++y)
      if (canvas.Pixel(textLeft, y) != menu) return false;
    return true;
  }())
    ++textLeft;
  EXPECT_GE(textLeft, 25);
  EXPECT_LE(textLeft, 28);

  // The picture as it lies in the store, at 4, 2.
  Canvas picture(m_gdi, {16, 16});
  {
    const UniqueContext memory(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, memory.get(), desk.PictureOf(1));
    m_gdi.Copy(picture.Context(), {}, {16, 16}, memory.get(), {}, RasterOperation::Copy);
  }
  EXPECT_NE(picture.BoundsOf(menu, false), Rect());
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 16; ++x) EXPECT_EQ(canvas.Pixel(4 + x, 12 + y), picture.Pixel(x, y));

  canvas.Clear(Paper);
  desk.Draw(1, DrawItem::Selected, canvas.Context(), Area);
  EXPECT_EQ(canvas.BoundsOf(m_gdi.SystemColour(ColConst::Highlight)), (Rect{23, 10, 150, 30}));
  EXPECT_EQ(canvas.Pixel(1, 29), m_gdi.SystemColour(ColConst::BtnHighlight));
  EXPECT_EQ(canvas.Pixel(21, 29), m_gdi.SystemColour(ColConst::BtnShadow));
  EXPECT_EQ(canvas.Pixel(0, 12), Paper);
}

TEST_F(RealMenuTest, MenusLeaveNothingBehind) {
  const auto round = [&] {
    MenuDesk desk(&m_gdi, &m_icons);
    DrawEverything(desk);
  };
  round();
  round();
  const host::LeakCount before = host::LeakCount::Now();
  for (int i = 0; i < 100; ++i) round();
  const host::LeakCount after = host::LeakCount::Now();
  EXPECT_EQ(after.gdiObjects, before.gdiObjects);
  EXPECT_EQ(after.userHandles, before.userHandles);
}

}  // namespace
}  // namespace orvane::test
#endif
