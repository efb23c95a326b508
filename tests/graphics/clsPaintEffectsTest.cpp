#include "graphics/clsPaintEffects.h"

#include <iterator>
#include <random>
#include <vector>

#include "common/AnyGdi.h"

namespace orvane::test {
namespace {

constexpr Colour Mask = Rgb(255, 0, 255);

class PaintEffectsTest : public AnyGdi {
 protected:
  /// Fills the canvas with colours that are often the mask's, and otherwise near it or anything.
  void Randomize(Canvas& canvas) {
    const Colour anything = static_cast<Colour>(m_random() & 0xFFFFFF);
    const Colour choices[] = {Mask, Mask, Rgb(255, 0, 254), Rgb(255, 0, 0), 0, anything};
    for (int y = 0; y < canvas.Extent().height; ++y)
      for (int x = 0; x < canvas.Extent().width; ++x)
        canvas.Set(x, y, choices[m_random() % std::size(choices)]);
  }
  static std::vector<Colour> Pixels(const Canvas& canvas) {
    std::vector<Colour> pixels;
    for (int y = 0; y < canvas.Extent().height; ++y)
      for (int x = 0; x < canvas.Extent().width; ++x) pixels.push_back(canvas.Pixel(x, y));
    return pixels;
  }

  Gdi& m_gdi = TheGdi();
  clsPaintEffects m_effects{m_gdi};
  std::mt19937 m_random{20261122};
};

INSTANTIATE_TEST_SUITE_P(, PaintEffectsTest, EveryGdi(), NameOfGdi);

TEST_P(PaintEffectsTest, RandomPicturesPixelByPixel) {
  for (int round = 0; round < 12; ++round) {
    Canvas source(m_gdi, {20, 14});
    Canvas target(m_gdi, {24, 18});
    Randomize(source);
    Randomize(target);
    std::vector<Colour> expected = Pixels(target);
    const Point from{round % 4, round % 3};
    const Point to{round % 5, round % 4};
    const Size size{12, 9};
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        const Colour pixel = source.Pixel(from.x + x, from.y + y);
        if (pixel != Mask) expected[static_cast<std::size_t>((to.y + y) * 24 + to.x + x)] = pixel;
      }
    }
    m_effects.PaintTransparentDC(target.Context(), to.x, to.y, size.width, size.height,
                                 source.Context(), from.x, from.y, Mask);
    EXPECT_EQ(Pixels(target), expected) << "round " << round;
  }
}

TEST_P(PaintEffectsTest, MaskAndWhatCannotBePaintedLeaveTheDestination) {
  Canvas source(m_gdi, {10, 10});
  Canvas target(m_gdi, {10, 10});
  Randomize(target);
  source.Clear(m_gdi.SystemColour(13));
  const std::vector<Colour> before = Pixels(target);
  const auto paint = [&](std::int32_t width, std::int32_t height, DeviceContext from, Colour mask) {
    m_effects.PaintTransparentDC(target.Context(), 0, 0, width, height, from, 0, 0, mask);
    EXPECT_EQ(Pixels(target), before);
  };
  paint(10, 10, source.Context(), 0x8000000D);  // that system colour
  paint(0, 10, source.Context(), Mask);
  paint(10, -1, source.Context(), Mask);
  paint(10, 10, DeviceContext::None, Mask);
  paint(10, 10, source.Context(), 0x800000FF);
  m_effects.PaintTransparentDC(DeviceContext::None, 0, 0, 10, 10, source.Context(), 0, 0, Mask);
}

TEST_P(PaintEffectsTest, PictureObjects) {
  Canvas target(m_gdi, {10, 10});
  target.Clear(Rgb(1, 2, 3));
  const UniqueBitmap bitmap(m_gdi, m_gdi.CreateCompatible(target.Context(), {10, 10}));
  {
    const UniqueContext context(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, context.get(), bitmap.get());
    const UniqueBrush mask(m_gdi, m_gdi.SolidBrush(Mask));
    const UniqueBrush ink(m_gdi, m_gdi.SolidBrush(Rgb(0, 200, 0)));
    m_gdi.Fill(context.get(), {0, 0, 10, 10}, mask.get());
    m_gdi.Fill(context.get(), {4, 4, 6, 7}, ink.get());
  }
  const auto paint = [&](StdPicture picture) {
    m_effects.PaintTransparentStdPic(target.Context(), 0, 0, 10, 10, picture, 0, 0, Mask);
  };
  paint({3, bitmap.get()});  // an icon
  paint({StdPicture::Bitmap, BitmapHandle::None});
  EXPECT_EQ(target.BoundsOf(Rgb(1, 2, 3), false), Rect());
  paint({StdPicture::Bitmap, bitmap.get()});
  EXPECT_EQ(target.BoundsOf(Rgb(1, 2, 3), false), (Rect{4, 4, 6, 7}));
  EXPECT_EQ(target.BoundsOf(Rgb(0, 200, 0)), (Rect{4, 4, 6, 7}));
}

}  // namespace
}  // namespace orvane::test
