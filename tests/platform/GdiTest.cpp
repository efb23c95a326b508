#include "common/AnyGdi.h"

#include <iterator>

namespace orvane::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Green = Rgb(0, 128, 0);
constexpr Colour Blue = Rgb(0, 0, 255);
constexpr Colour White = Rgb(255, 255, 255);
constexpr Colour Mask = Rgb(255, 0, 255);

class GdiTest : public AnyGdi {
 protected:
  Gdi& m_gdi = TheGdi();
};

INSTANTIATE_TEST_SUITE_P(, GdiTest, EveryGdi(), NameOfGdi);

TEST_P(GdiTest, BoxLeavesItsRightColumnAndBottomRowOut) {
  Canvas canvas(m_gdi, {20, 20});
  canvas.Clear(White);
  const UniquePen pen(m_gdi, m_gdi.SolidPen(1, Red));
  const UniqueBrush brush(m_gdi, m_gdi.SolidBrush(Blue));
  const Selected withPen(m_gdi, canvas.Context(), pen.get());
  const Selected withBrush(m_gdi, canvas.Context(), brush.get());
  ASSERT_TRUE(m_gdi.Box(canvas.Context(), {3, 4, 10, 12}));
  EXPECT_EQ(canvas.BoundsOf(Red), (Rect{3, 4, 10, 12}));
  EXPECT_EQ(canvas.BoundsOf(Blue), (Rect{4, 5, 9, 11}));
}

TEST_P(GdiTest, LinesLeaveTheirLastPointOut) {
  Canvas canvas(m_gdi, {20, 20});
  canvas.Clear(White);
  const UniquePen pen(m_gdi, m_gdi.SolidPen(1, Red));
  const Selected withPen(m_gdi, canvas.Context(), pen.get());
  const Point points[] = {{2, 15}, {2, 3}, {12, 3}};
  ASSERT_TRUE(m_gdi.Lines(canvas.Context(), points));
  EXPECT_EQ(canvas.BoundsOf(Red), (Rect{2, 3, 12, 16}));
  EXPECT_EQ(canvas.Pixel(2, 15), Red);
  EXPECT_EQ(canvas.Pixel(11, 3), Red);
  EXPECT_EQ(canvas.Pixel(12, 3), White);
  EXPECT_EQ(canvas.Pixel(3, 4), White);
}

TEST_P(GdiTest, CopyCombinesColours) {
  constexpr Colour Source = Rgb(0xF0, 0x33, 0x0F);
  constexpr Colour Target = Rgb(0xAA, 0x55, 0x99);
  const struct {
    RasterOperation operation;
    Colour result;
  } rows[] = {{RasterOperation::Copy, Source},
              {RasterOperation::And, Source & Target},
              {RasterOperation::Or, Source | Target},
              {RasterOperation::AndNotSource, Target & ~Source & 0xFFFFFF}};
  Canvas source(m_gdi, {8, 8});
  source.Clear(Source);
  for (const auto& row : rows) {
    Canvas target(m_gdi, {8, 8});
    target.Clear(Target);
    ASSERT_TRUE(
        m_gdi.Copy(target.Context(), {2, 3}, {4, 4}, source.Context(), {1, 1}, row.operation));
    EXPECT_EQ(target.Pixel(2, 3), row.result);
    EXPECT_EQ(target.BoundsOf(Target, false), (Rect{2, 3, 6, 7}));
  }
}

TEST_P(GdiTest, CopyBetweenColourAndMonochrome) {
  Canvas colour(m_gdi, {4, 1});
  colour.Clear(Green);
  colour.Set(1, 0, Red);
  Canvas mono(m_gdi, {4, 1}, Canvas::Mono);
  m_gdi.ExchangeBackColour(colour.Context(), Red);
  ASSERT_TRUE(m_gdi.Copy(mono.Context(), {}, {4, 1}, colour.Context(), {}, RasterOperation::Copy));
  EXPECT_EQ(mono.BoundsOf(White), (Rect{1, 0, 2, 1}));

  Canvas back(m_gdi, {4, 1});
  m_gdi.ExchangeTextColour(back.Context(), Blue);
  m_gdi.ExchangeBackColour(back.Context(), Green);
  ASSERT_TRUE(m_gdi.Copy(back.Context(), {}, {4, 1}, mono.Context(), {}, RasterOperation::Copy));
  EXPECT_EQ(back.BoundsOf(Green), (Rect{1, 0, 2, 1}));
  EXPECT_EQ(back.Pixel(0, 0), Blue);
}

TEST_P(GdiTest, StretchFillsTheWholeTarget) {
  Canvas source(m_gdi, {4, 4});
  source.Clear(Red);
  source.Fill({2, 0, 4, 4}, Blue);
  const struct {
    Size size;
    Rect blue;
  } rows[] = {{{8, 8}, {4, 0, 8, 8}}, {{2, 4}, {1, 0, 2, 4}}, {{12, 2}, {6, 0, 12, 2}}};
  for (const auto& row : rows) {
    Canvas target(m_gdi, row.size);
    target.Clear(Green);
    ASSERT_TRUE(m_gdi.Stretch(target.Context(), {0, 0, row.size.width, row.size.height},
                              source.Context(), {0, 0, 4, 4}));
    EXPECT_EQ(target.BoundsOf(Blue), row.blue);
    EXPECT_EQ(target.BoundsOf(Green), Rect());
  }
}

TEST_P(GdiTest, BitmapsAreWhatTheirShapeSays) {
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const UniqueBitmap mono(m_gdi, m_gdi.CreateCompatible(context.get(), {20, 3}));
  const auto shape = m_gdi.Describe(mono.get());
  ASSERT_TRUE(shape);
  EXPECT_EQ(shape->bitsPerPixel, 1);
  EXPECT_EQ(shape->bytesPerRow, 4);

  const UniqueBitmap narrow(m_gdi, m_gdi.CreateShaped({8, 16, 16, 1, 16}));
  const auto narrowShape = m_gdi.Describe(narrow.get());
  ASSERT_TRUE(narrowShape);
  EXPECT_EQ(narrowShape->width, 8);
  EXPECT_EQ(narrowShape->height, 16);
  EXPECT_EQ(narrowShape->bytesPerRow, 16);
  EXPECT_EQ(narrowShape->bitsPerPixel, 16);

  EXPECT_EQ(m_gdi.CreateCompatible(context.get(), {0, 5}), BitmapHandle::None);
  EXPECT_EQ(m_gdi.CreateCompatible(context.get(), {5, -1}), BitmapHandle::None);
  EXPECT_EQ(m_gdi.CreateShaped({0, 16, 0, 1, 32}), BitmapHandle::None);
  EXPECT_FALSE(m_gdi.Describe(BitmapHandle::None));
}

TEST_P(GdiTest, ResourceBitmapIsRecoloured) {
  constexpr Colour Ground = Rgb(1, 2, 3);
  const UniqueBitmap bitmap(m_gdi, m_gdi.LoadMapped(0, 101, Mask, Ground));
  ASSERT_TRUE(bitmap);
  const auto shape = m_gdi.Describe(bitmap.get());
  ASSERT_TRUE(shape);
  EXPECT_EQ(shape->width, 16);
  EXPECT_EQ(shape->height, 16);

  Canvas copy(m_gdi, {16, 16});
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const Selected selected(m_gdi, context.get(), bitmap.get());
  m_gdi.Copy(copy.Context(), {}, {16, 16}, context.get(), {}, RasterOperation::Copy);
  EXPECT_EQ(copy.Pixel(0, 0), Ground);
  EXPECT_NE(copy.Pixel(8, 8), Ground);
  EXPECT_EQ(copy.BoundsOf(Mask), Rect());
  EXPECT_EQ(m_gdi.LoadMapped(0, 4711, Mask, Ground), BitmapHandle::None);
}

TEST_P(GdiTest, SelectedObjectComesBackOut) {
  const UniqueContext one(m_gdi, m_gdi.CreateContext());
  const UniqueContext other(m_gdi, m_gdi.CreateContext());
  const UniqueBitmap bitmap(m_gdi, m_gdi.CreateCompatible(one.get(), {4, 4}));
  {
    const Selected selected(m_gdi, one.get(), bitmap.get());
    EXPECT_TRUE(selected);
    const Selected twice(m_gdi, other.get(), bitmap.get());
    EXPECT_FALSE(twice) << "a bitmap is in one context at a time";
  }
  EXPECT_TRUE(Selected(m_gdi, other.get(), bitmap.get()));
  EXPECT_FALSE(Selected(m_gdi, one.get(), BitmapHandle::None));
  EXPECT_FALSE(Selected(m_gdi, DeviceContext::None, bitmap.get()));
}

TEST_P(GdiTest, ColoursOfAutomationAreTranslated) {
  const PaletteHandle palette = m_gdi.DefaultPalette();
  const Colour menu = m_gdi.SystemColour(4);
  for (PaletteHandle with : {palette, PaletteHandle::None}) {
    EXPECT_EQ(m_gdi.TranslateColour(Red, with), Red);
    EXPECT_EQ(m_gdi.TranslateColour(0x02000000 | Blue, with), Blue);
    EXPECT_EQ(m_gdi.TranslateColour(0x80000004, with), menu);
    EXPECT_EQ(m_gdi.TranslateColour(0x800000FF, with), std::nullopt);
    EXPECT_EQ(m_gdi.TranslateColour(0x7F000000, with), std::nullopt);
  }
  EXPECT_EQ(m_gdi.SystemColour(4711), 0u);
  EXPECT_EQ(m_gdi.SystemColour(-1), 0u);
}

TEST_P(GdiTest, TextIsMeasuredAndPrinted) {
  Canvas canvas(m_gdi, {200, 60});
  canvas.Clear(White);
  const auto dc = canvas.Context();
  const UniqueFont font(m_gdi, m_gdi.MenuFont(96));
  const Selected withFont(m_gdi, dc, font.get());
  const auto one = m_gdi.MeasureText(dc, L"O");
  const auto marked = m_gdi.MeasureText(dc, L"&O");
  const auto longer = m_gdi.MeasureText(dc, L"OOOO");
  ASSERT_TRUE(one && marked && longer);
  EXPECT_GT(marked->width, one->width);
  EXPECT_EQ(longer->width, 4 * one->width);
  EXPECT_EQ(m_gdi.MeasureText(dc, L"")->width, 0);

  m_gdi.ExchangeTextColour(dc, Red);
  m_gdi.ExchangeTransparency(dc, true);
  EXPECT_EQ(m_gdi.PrintText(dc, L"OO", {10, 5, 190, 55}), one->height);
  const Rect plain = canvas.BoundsOf(White, false);
  EXPECT_GE(plain.left, 10);
  EXPECT_GE(plain.top, 5);
  EXPECT_LE(plain.right, 10 + 2 * one->width);
  EXPECT_LE(plain.bottom, 5 + one->height);

  canvas.Clear(White);
  m_gdi.PrintText(dc, L"OOOOOOOO", {10, 5, 10 + one->width, 55});
  EXPECT_LE(canvas.BoundsOf(White, false).right, 10 + one->width) << "cut at the rectangle";

  canvas.Clear(White);
  m_gdi.ExchangeTransparency(dc, false);
  m_gdi.ExchangeBackColour(dc, Blue);
  m_gdi.PrintText(dc, L"OO", {10, 5, 190, 55});
  EXPECT_EQ(canvas.BoundsOf(Blue), (Rect{10, 5, 10 + 2 * one->width, 5 + one->height}));
}

TEST_P(GdiTest, AmpersandUnderlinesAndDoubledIsALetter) {
  Canvas canvas(m_gdi, {200, 40});
  const auto dc = canvas.Context();
  const UniqueFont font(m_gdi, m_gdi.MenuFont(96));
  const Selected withFont(m_gdi, dc, font.get());
  m_gdi.ExchangeTransparency(dc, true);
  const auto print = [&](const wchar_t* text) {
    canvas.Clear(White);
    m_gdi.PrintText(dc, text, {0, 0, 200, 40});
    return canvas.BoundsOf(White, false);
  };
  const Rect plain = print(L"OHO");
  const Rect marked = print(L"O&HO");
  EXPECT_EQ(marked.left, plain.left);
  EXPECT_EQ(marked.right, plain.right);
  EXPECT_GT(marked.bottom, plain.bottom);
  EXPECT_GT(print(L"O&&O").right, print(L"OO").right);
}

TEST_P(GdiTest, MenuFontGrowsWithTheScreen) {
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const auto height = [&](std::int32_t dpi) {
    const UniqueFont font(m_gdi, m_gdi.MenuFont(dpi));
    const Selected selected(m_gdi, context.get(), font.get());
    return m_gdi.MeasureText(context.get(), L"Menu")->height;
  };
  EXPECT_GT(height(192), height(96));
  EXPECT_GE(m_gdi.Dpi(), 96);
  const auto cell = m_gdi.DisplayFontCell();
  ASSERT_TRUE(cell);
  EXPECT_GT(cell->width, 0);
  EXPECT_GT(cell->height, 0);
}

TEST_P(GdiTest, NothingIsDrawnOnNothing) {
  const Point points[] = {{0, 0}, {3, 0}};
  EXPECT_FALSE(m_gdi.Box(DeviceContext::None, {0, 0, 4, 4}));
  EXPECT_FALSE(m_gdi.Lines(DeviceContext::None, points));
  EXPECT_FALSE(
      m_gdi.Copy(DeviceContext::None, {}, {4, 4}, DeviceContext::None, {}, RasterOperation::Copy));
  EXPECT_FALSE(m_gdi.Stretch(DeviceContext::None, {0, 0, 4, 4}, DeviceContext::None, {0, 0, 4, 4}));
  EXPECT_FALSE(m_gdi.MeasureText(DeviceContext::None, L"text"));
  EXPECT_FALSE(m_gdi.PaintIcon(DeviceContext::None, IconHandle::None, {16, 16}));
}

}  // namespace
}  // namespace orvane::test
