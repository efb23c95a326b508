#include "graphics/Bitmaps.h"

#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/PictureStore.h"
#include "memory/Desktop.h"

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
    const UniqueBitmap scaled = ScaleBMP(m_gdi, source.get());
    const auto shape = m_gdi.Describe(scaled.get());
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->width, cell.width);
    EXPECT_EQ(shape->height, cell.height);
    EXPECT_EQ(shape->bitsPerPixel, before.bitsPerPixel);
    EXPECT_EQ(shape->bytesPerRow, (before.bitsPerPixel * cell.width + 15) / 16 * 2);
  }
  EXPECT_FALSE(ScaleBMP(m_gdi, BitmapHandle::None));
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
  const UniqueBitmap scaled = ScaleBMP(m_gdi, picture.get());
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
    const UniqueBitmap bitmap =
        IconToBitmap(m_gdi, surface.Context(), AnyIcon(), ColConst::Menu, row.size, row.flags);
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
  EXPECT_FALSE(IconToBitmap(m_gdi, surface.Context(), IconHandle::None, 4, 16, 0));
}

TEST_P(BitmapsTest, EveryBitmapOfTheModule) {
  memory::Desktop desktop;
  PictureStore pictures(m_gdi, desktop.icons, desktop.files);
  for (std::int32_t key = 1; key <= 9; ++key) {
    const PictureStore::Node node = pictures.Find(static_cast<Picture>(key));
    EXPECT_TRUE(m_gdi.Describe(PictureStore::CheckMark(node))) << key;
    const auto shape = m_gdi.Describe(PictureStore::Full(node));
    ASSERT_TRUE(shape) << key;
    EXPECT_EQ(shape->width, 16);
  }
}

}  // namespace
}  // namespace orvane::test
