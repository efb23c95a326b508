#include "graphics/Bitmaps.h"

#include "common/AnyGdi.h"
#include "graphics/ColConst.h"
#include "graphics/MenuBitmaps.h"

namespace orvane::test {
namespace {

constexpr Colour Red = Rgb(255, 0, 0);
constexpr Colour Blue = Rgb(0, 0, 255);
constexpr Colour Mask = Rgb(255, 0, 255);
constexpr std::int32_t WindowColour = 5;

class BitmapsTest : public AnyGdi {
 protected:
  IconHandle AnyIcon() {
#ifdef _WIN32
    if (IsReal()) return win32::FromNative<IconHandle>(LoadIconW(nullptr, IDI_APPLICATION));
#endif
    return IconHandle{0x10001};
  }

  Gdi& m_gdi = TheGdi();
};

INSTANTIATE_TEST_SUITE_P(, BitmapsTest, EveryGdi(), NameOfGdi);

TEST_P(BitmapsTest, ScaledBitmapHasTheDisplaysCell) {
  const Size cell = m_gdi.DisplayFontCell().value();
  Canvas picture(m_gdi, {16, 16});
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const UniqueBitmap mono(m_gdi, m_gdi.CreateCompatible(context.get(), {16, 16}));
  const UniqueBitmap deep(m_gdi, m_gdi.CreateCompatible(picture.Context(), {16, 16}));
  for (const auto* source : {&mono, &deep}) {
    const auto before = m_gdi.Describe(source->get()).value();
    const UniqueBitmap scaled(m_gdi, ScaleBMP(m_gdi, source->get(), false));
    const auto shape = m_gdi.Describe(scaled.get());
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->width, cell.width);
    EXPECT_EQ(shape->height, cell.height);
    EXPECT_EQ(shape->bitsPerPixel, before.bitsPerPixel);
    EXPECT_EQ(shape->bytesPerRow, (before.bitsPerPixel * cell.width + 15) / 16 * 2);
  }
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
  const UniqueContext context(m_gdi, m_gdi.CreateContext());
  const Selected selected(m_gdi, context.get(), scaled.get());
  m_gdi.Copy(view.Context(), {}, cell, context.get(), {}, RasterOperation::Copy);
  EXPECT_EQ(view.BoundsOf(Red), (Rect{0, 0, (cell.width + 1) / 2, cell.height}));
  EXPECT_EQ(view.BoundsOf(Blue), (Rect{(cell.width + 1) / 2, 0, cell.width, cell.height}));
}

TEST_P(BitmapsTest, NothingToScale) {
  EXPECT_EQ(ScaleBMP(m_gdi, BitmapHandle::None, false), BitmapHandle::None);
  EXPECT_EQ(ScaleBMP(m_gdi, BitmapHandle::None, true), BitmapHandle::None);
}

TEST_P(BitmapsTest, IconStandsOnASquareOfTheNextColour) {
  const Colour ground = m_gdi.SystemColour(WindowColour);
  Canvas surface(m_gdi, {1, 1});
  const struct {
    std::int32_t size, flags, drawn;
  } rows[] = {{16, 0, 16}, {16, SmallerIcon, 14}, {32, 0, 32}, {32, SmallerIcon, 28}};
  for (const auto& row : rows) {
    const UniqueBitmap bitmap(m_gdi, IconToBitmap(m_gdi, surface.Context(), AnyIcon(),
                                                  ColConst::Menu, row.size, row.flags));
    ASSERT_TRUE(bitmap);
    Canvas view(m_gdi, {row.size, row.size});
    const UniqueContext context(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, context.get(), bitmap.get());
    m_gdi.Copy(view.Context(), {}, {row.size, row.size}, context.get(), {}, RasterOperation::Copy);
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
  EXPECT_EQ(keys, L"213456789");
  DeleteMenuBitmaps(m_gdi, bitmaps);
  EXPECT_EQ(bitmaps.Count(), 0);
}

class MemoryBitmaps : public testing::Test {
 protected:
  ~MemoryBitmaps() override {
    EXPECT_EQ(m_gdi.Live(), 0u);
    EXPECT_EQ(m_gdi.Mistakes(), std::vector<std::string>());
  }
  memory::Faults m_faults;
  memory::Gdi m_gdi{m_faults};
};

TEST_F(MemoryBitmaps, ScaledRowsArePaddedTo16Bits) {
  const struct {
    std::uint16_t depth;
    std::int32_t bytesPerRow;
  } rows[] = {{1, 2}, {4, 4}, {16, 16}, {24, 24}, {32, 32}};
  for (const auto& row : rows) {
    const UniqueBitmap source(m_gdi, m_gdi.CreateShaped({16, 16, row.depth * 2, 1, row.depth}));
    const UniqueBitmap scaled(m_gdi, ScaleBMP(m_gdi, source.get(), false));
    const auto shape = m_gdi.Describe(scaled.get());
    ASSERT_TRUE(shape);
    EXPECT_EQ(shape->width, 8);
    EXPECT_EQ(shape->height, 16);
    EXPECT_EQ(shape->bytesPerRow, row.bytesPerRow);
  }
}

TEST_F(MemoryBitmaps, SmallerIconLeavesItsStripAsItIs) {
  Canvas surface(m_gdi, {1, 1});
  const UniqueBitmap bitmap(m_gdi, IconToBitmap(m_gdi, surface.Context(), IconHandle{1},
                                                ColConst::Menu, 16, SmallerIcon));
  for (int i = 0; i < 16; ++i) {
    EXPECT_EQ(m_gdi.Pixel(bitmap.get(), {14, i}), memory::Gdi::Undefined);
    EXPECT_EQ(m_gdi.Pixel(bitmap.get(), {i, 15}), memory::Gdi::Undefined);
  }
}

TEST_F(MemoryBitmaps, MissingResourceHasNoNode) {
  m_gdi.resources.erase(104);
  m_gdi.systemColours[4] = Rgb(9, 8, 7);
  clsCollection bitmaps;
  LoadMenuBitmaps(m_gdi, bitmaps);
  EXPECT_EQ(bitmaps.Count(), 8);
  EXPECT_FALSE(bitmaps.ItemViaKey(4));
  EXPECT_EQ(m_gdi.Pixel(ToHandle<BitmapHandle>(bitmaps.ItemViaKey(7)->m_lData2), {0, 0}),
            Rgb(9, 8, 7));
  DeleteMenuBitmaps(m_gdi, bitmaps);
}

}  // namespace
}  // namespace orvane::test
