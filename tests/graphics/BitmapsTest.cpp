#include "graphics/Bitmaps.h"

#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/MenuBitmaps.h"

namespace orvane::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Blue = Rgb(0, 0, 255);
constexpr std::int32_t WindowColour = 5;

class BitmapsTest : public AnyGdi {
 protected:
  IconHandle AnyIcon() {
#ifdef _WIN32
    if (IsReal()) return win32::FromNative<IconHandle>(LoadIconW(nullptr, IDI_APPLICATION));
#endif
    return IconHandle{0x10001};
  }

  /// Copies the upper left of a bitmap to the canvas.
  void Show(BitmapHandle bitmap, Canvas& view) {
    const UniqueContext context(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, context.get(), bitmap);
    m_gdi.Copy(view.Context(), {}, view.Extent(), context.get(), {}, RasterOperation::Copy);
  }

  Gdi& m_gdi = TheGdi();
};

INSTANTIATE_TEST_SUITE_P(, BitmapsTest, EveryGdi(), NameOfGdi);

TEST_P(BitmapsTest, ScaledBitmapHasTheDisplaysCellAndTheSourcesDepth) {
  const Size cell = m_gdi.DisplayFontCell().value();
  Canvas picture(m_gdi, {16, 16});
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  for (const DeviceContext like : {context.get(), picture.Context()}) {
    const UniqueBitmap source(m_gdi, m_gdi.CreateCompatible(like, {16, 16}));
    const auto before = m_gdi.Describe(source.get()).value();
    const UniqueBitmap scaled(m_gdi, ScaleBMP(m_gdi, source.get(), false));
    const auto shape = m_gdi.Describe(scaled.get());
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->width, cell.width);
    EXPECT_EQ(shape->height, cell.height);
    EXPECT_EQ(shape->bitsPerPixel, before.bitsPerPixel);
    EXPECT_EQ(shape->bytesPerRow, (before.bitsPerPixel * cell.width + 15) / 16 * 2);
  }
  EXPECT_EQ(ScaleBMP(m_gdi, BitmapHandle::None, true), BitmapHandle::None);
}

TEST_P(BitmapsTest, ScaledBitmapShowsTheWholePicture) {
  UniqueBitmap picture;
  {
    Canvas canvas(m_gdi, {16, 16});
    picture = UniqueBitmap(m_gdi, m_gdi.CreateCompatible(canvas.Context(), {16, 16}));
    canvas.Clear(Red);
    canvas.Fill({8, 0, 16, 16}, Blue);
    const UniqueContext context(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, context.get(), picture.get());
    m_gdi.Copy(context.get(), {}, {16, 16}, canvas.Context(), {}, RasterOperation::Copy);
  }
  const UniqueBitmap scaled(m_gdi, ScaleBMP(m_gdi, picture.release(), true));
  ASSERT_TRUE(scaled);
  const Size cell = m_gdi.DisplayFontCell().value();
  Canvas view(m_gdi, cell);
  Show(scaled.get(), view);
  EXPECT_EQ(view.BoundsOf(Red), (Rect{0, 0, (cell.width + 1) / 2, cell.height}));
  EXPECT_EQ(view.BoundsOf(Blue), (Rect{(cell.width + 1) / 2, 0, cell.width, cell.height}));
}

TEST_P(BitmapsTest, IconStandsOnASquareOfTheNextColour) {
  const Colour ground = m_gdi.SystemColour(WindowColour);
  Canvas surface(m_gdi, {1, 1});
  const struct {
    std::int32_t size, flags, drawn;
  } rows[] = {{16, 0, 16}, {16, SmallerIcon, 14}, {32, SmallerIcon, 28}};
  for (const auto& row : rows) {
    const UniqueBitmap bitmap(m_gdi, IconToBitmap(m_gdi, surface.Context(), AnyIcon(),
                                                  ColConst::Menu, row.size, row.flags));
    ASSERT_TRUE(bitmap);
    Canvas view(m_gdi, {row.size, row.size});
    Show(bitmap.get(), view);
    const Rect square = view.BoundsOf(ground);
    EXPECT_LE(square.right, row.drawn);
    EXPECT_LE(square.bottom, row.drawn);
    if (!IsReal()) {  // where the icon leaves the corners free
      EXPECT_EQ(square, (Rect{0, 0, row.drawn, row.drawn}));
    }
    EXPECT_NE(view.Pixel(row.drawn / 2, row.drawn / 2), ground) << "the icon";
  }
  EXPECT_EQ(IconToBitmap(m_gdi, surface.Context(), IconHandle::None, 4, 16, 0), BitmapHandle::None);
}

TEST_P(BitmapsTest, MenuBitmapsByTheirKeys) {
  Memory().resources.erase(104);
  clsCollection bitmaps;
  LoadMenuBitmaps(m_gdi, bitmaps);
  std::wstring keys;
  for (const auto& node : bitmaps) {
    keys += std::to_wstring(node->m_lKey);
    EXPECT_TRUE(m_gdi.Describe(ToHandle<BitmapHandle>(node->m_lData)));
    const auto shape = m_gdi.Describe(ToHandle<BitmapHandle>(node->m_lData2));
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->width, 16);
  }
  EXPECT_EQ(keys, IsReal() ? L"213456789" : L"21356789") << "a missing resource has no node";
  DeleteMenuBitmaps(m_gdi, bitmaps);
  EXPECT_EQ(bitmaps.Count(), 0);
}

}  // namespace
}  // namespace orvane::test
