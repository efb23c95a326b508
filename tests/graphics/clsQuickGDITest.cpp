#include "graphics/clsQuickGDI.h"

#include "common/AnyGdi.h"

namespace orvane::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Paper = Rgb(200, 220, 240);

using QuickGdiTest = AnyGdi;
INSTANTIATE_TEST_SUITE_P(, QuickGdiTest, EveryGdi(), NameOfGdi);

TEST_P(QuickGdiTest, FramesAreLightAndDark) {
  Gdi& gdi = TheGdi();
  const Colour light = gdi.SystemColour(20);
  const Colour dark = gdi.SystemColour(16);
  ASSERT_NE(light, dark);
  for (bool sunken : {false, true}) {
    Canvas canvas(gdi, {60, 40});
    canvas.Clear(Paper);
    clsQuickGDI drawing(gdi);
    drawing.TargethDC(canvas.Context());
    drawing.ThreedBox(3, 5, 20, 15, sunken);
    const Colour leftTop = sunken ? dark : light;
    const Colour rightBottom = sunken ? light : dark;
    EXPECT_EQ(canvas.BoundsOf(leftTop), (Rect{3, 5, 20, 16}));
    EXPECT_EQ(canvas.BoundsOf(rightBottom), (Rect{4, 5, 21, 16}));
    EXPECT_EQ(canvas.Pixel(3, 15), leftTop);
    EXPECT_EQ(canvas.Pixel(19, 5), leftTop);
    EXPECT_EQ(canvas.Pixel(20, 5), rightBottom);
    EXPECT_EQ(canvas.Pixel(4, 15), rightBottom);
    EXPECT_EQ(canvas.Pixel(10, 10), Paper);
  }
}

TEST_P(QuickGdiTest, PrintsAndDrawsWithoutTouchingTheTargetsState) {
  Gdi& gdi = TheGdi();
  Canvas canvas(gdi, {60, 40});
  canvas.Clear(Paper);
  clsQuickGDI drawing(gdi);
  EXPECT_EQ(drawing.hPrint(5, 6, L"no target", Red, 55, 38), 0);
  drawing.DrawRect(0, 0, 10, 10);
  drawing.TargethDC(canvas.Context());
  gdi.ExchangeTextColour(canvas.Context(), Rgb(1, 2, 3));
  EXPECT_GT(drawing.hPrint(5, 6, L"&Open", Red, 55, 38), 0);
  const Rect text = canvas.BoundsOf(Paper, false);
  EXPECT_GE(text.left, 5);
  EXPECT_GE(text.top, 6);
  EXPECT_LE(text.right, 55);
  EXPECT_EQ(gdi.TextColour(canvas.Context()), Rgb(1, 2, 3));
  EXPECT_FALSE(gdi.ExchangeTransparency(canvas.Context(), false)) << "opaque again";

  canvas.Clear(Paper);
  const UniquePen pen(gdi, drawing.GetPen(1, Red));
  const Selected selected(gdi, canvas.Context(), pen.get());
  drawing.DrawRect(2, 3, 12, 13);
  EXPECT_EQ(canvas.BoundsOf(Red), (Rect{2, 3, 12, 13}));
  EXPECT_EQ(canvas.Pixel(5, 5), Rgb(255, 255, 255));
}

}  // namespace
}  // namespace orvane::test
