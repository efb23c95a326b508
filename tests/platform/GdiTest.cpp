#include "common/AnyGdi.h"

#include <optional>

namespace orvane::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Blue = Rgb(0, 0, 255);
constexpr Colour White = Rgb(255, 255, 255);
constexpr Colour Mask = Rgb(255, 0, 255);

class GdiTest : public AnyGdi {
 protected:
  Gdi& m_gdi = TheGdi();
};

INSTANTIATE_TEST_SUITE_P(, GdiTest, EveryGdi(), NameOfGdi);

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

TEST_P(GdiTest, ResourceBitmapIsRecoloured) {
  constexpr Colour Ground = Rgb(1, 2, 3);
  const UniqueBitmap bitmap(m_gdi, m_gdi.LoadMapped(0, 101, Mask, Ground));
  ASSERT_TRUE(bitmap);
  Canvas copy(m_gdi, {16, 16});
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const Selected selected(m_gdi, context.get(), bitmap.get());
  m_gdi.Copy(copy.Context(), {}, {16, 16}, context.get(), {}, RasterOperation::Copy);
  EXPECT_EQ(copy.Pixel(0, 0), Ground);
  EXPECT_NE(copy.Pixel(8, 8), Ground);
  EXPECT_EQ(copy.BoundsOf(Mask), Rect());
  EXPECT_EQ(m_gdi.LoadMapped(0, 4711, Mask, Ground), BitmapHandle::None);
}

/// A white canvas to print on, with the menu's font.
class GdiTextTest : public GdiTest {
 protected:
  void SetUp() override {
    canvas.emplace(m_gdi, Size{200, 60});
    font = UniqueFont(m_gdi, m_gdi.MenuFont(96));
    withFont.emplace(m_gdi, canvas->Context(), font.get());
  }
  void TearDown() override {
    withFont.reset();
    font.reset();
    canvas.reset();
    GdiTest::TearDown();
  }

  /// Prints into 10, 5 to `right`, 55; answers what is no longer white.
  Rect Print(const wchar_t* text, int right = 190) {
    canvas->Clear(White);
    EXPECT_GT(m_gdi.PrintText(canvas->Context(), text, {10, 5, right, 55}), 0);
    return canvas->BoundsOf(White, false);
  }
  Size Measure(const wchar_t* text) {
    return m_gdi.MeasureText(canvas->Context(), text).value_or(Size{});
  }

  std::optional<Canvas> canvas;
  UniqueFont font;
  std::optional<Selected<FontHandle>> withFont;
};

INSTANTIATE_TEST_SUITE_P(, GdiTextTest, EveryGdi(), NameOfGdi);

TEST_P(GdiTextTest, IsPrintedWhereItWasMeasured) {
  const Size one = Measure(L"O");
  EXPECT_GT(Measure(L"&O").width, one.width);
  EXPECT_EQ(Measure(L"OOOO").width, 4 * one.width);
  EXPECT_EQ(Measure(L"").width, 0);

  m_gdi.ExchangeTransparency(canvas->Context(), true);
  const Rect plain = Print(L"OO");
  EXPECT_TRUE(plain.left >= 10 && plain.top >= 5);
  EXPECT_LE(plain.right, 10 + 2 * one.width);
  EXPECT_LE(plain.bottom, 5 + one.height);
  EXPECT_LE(Print(L"OOOOOOOO", 10 + one.width).right, 10 + one.width) << "cut at the rectangle";

  m_gdi.ExchangeTransparency(canvas->Context(), false);
  m_gdi.ExchangeBackColour(canvas->Context(), Blue);
  Print(L"OO");
  EXPECT_EQ(canvas->BoundsOf(Blue), (Rect{10, 5, 10 + 2 * one.width, 5 + one.height}));
}

TEST_P(GdiTextTest, AmpersandUnderlinesAndDoubledIsALetter) {
  m_gdi.ExchangeTransparency(canvas->Context(), true);
  const Rect plain = Print(L"OHO");
  const Rect marked = Print(L"O&HO");
  EXPECT_EQ(marked.left, plain.left);
  EXPECT_EQ(marked.right, plain.right);
  EXPECT_GT(marked.bottom, plain.bottom);
  EXPECT_GT(Print(L"O&&O").right, Print(L"OO").right);
}

TEST_P(GdiTextTest, GrowsWithTheScreen) {
  const int height = Measure(L"Menu").height;
  const UniqueFont larger(m_gdi, m_gdi.MenuFont(192));
  const Selected selected(m_gdi, canvas->Context(), larger.get());
  EXPECT_GT(Measure(L"Menu").height, height);
}

TEST_P(GdiTest, NothingComesOfNothing) {
  constexpr auto None = DeviceContext::None;
  const Point points[] = {{0, 0}, {3, 0}};
  EXPECT_FALSE(m_gdi.Box(None, {0, 0, 4, 4}));
  EXPECT_FALSE(m_gdi.Lines(None, points));
  EXPECT_FALSE(m_gdi.Copy(None, {}, {4, 4}, None, {}, RasterOperation::Copy));
  EXPECT_FALSE(m_gdi.Stretch(None, {0, 0, 4, 4}, None, {0, 0, 4, 4}));
  EXPECT_FALSE(m_gdi.MeasureText(None, L"text"));
  EXPECT_FALSE(m_gdi.PaintIcon(None, IconHandle::None, {16, 16}));

  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  EXPECT_EQ(m_gdi.CreateCompatible(context.get(), {0, 5}), BitmapHandle::None);
  EXPECT_EQ(m_gdi.CreateCompatible(context.get(), {5, -1}), BitmapHandle::None);
  EXPECT_EQ(m_gdi.CreateShaped({0, 16, 0, 1, 32}), BitmapHandle::None);
  EXPECT_FALSE(m_gdi.Describe(BitmapHandle::None));
}

}  // namespace
}  // namespace orvane::test
