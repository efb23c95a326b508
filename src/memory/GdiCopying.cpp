// Copying between the bitmaps of the software GDI.

#include <algorithm>

#include "memory/Gdi.h"

namespace orvane::memory {
namespace {

constexpr Colour White = Rgb(255, 255, 255);

Colour Combine(RasterOperation operation, Colour source, Colour target) {
  switch (operation) {
    case RasterOperation::And:
      return target & source;
    case RasterOperation::Or:
      return target | source;
    case RasterOperation::AndNotSource:
      return target & ~source & 0xFFFFFF;
    default:
      return source;
  }
}

/// The source's pixel as the target's kind of bitmap sees it.
Colour Convert(Colour pixel, bool fromMono, bool toMono, Colour sourceBack,
               const GdiContext& target) {
  if (fromMono == toMono) return pixel;
  if (toMono) return pixel == sourceBack ? White : 0;
  return pixel == White ? target.backColour : target.textColour;
}

}  // namespace

bool Gdi::Copy(DeviceContext target, Point to, Size size, DeviceContext source, Point from,
               RasterOperation operation) {
  const auto* there = Drawable(target);
  const auto* here = Find<GdiContext>(source);
  if (!there || !here) return false;
  GdiBitmap* canvas = Surface(*there);
  const GdiBitmap* original = Surface(*here);
  if (!canvas || !original) return true;

  GdiBitmap picture = *original;  // the two may be one
  // Only what lies in both bitmaps; sizes and places may be anything.
  const std::int64_t right =
      std::min<std::int64_t>(size.width, canvas->shape.width - std::int64_t{to.x});
  const std::int64_t bottom =
      std::min<std::int64_t>(size.height, canvas->shape.height - std::int64_t{to.y});
  for (std::int64_t y = std::max<std::int64_t>(0, -std::int64_t{to.y}); y < bottom; ++y) {
    for (std::int64_t x = std::max<std::int64_t>(0, -std::int64_t{to.x}); x < right; ++x) {
      if (!picture.Holds(from.x + x, from.y + y)) continue;
      Colour& pixel = canvas->At(to.x + x, to.y + y);
      pixel = Combine(operation,
                      Convert(picture.At(from.x + x, from.y + y), picture.IsMono(),
                              canvas->IsMono(), here->backColour, *there),
                      pixel);
    }
  }
  return true;
}

bool Gdi::Stretch(DeviceContext target, const Rect& to, DeviceContext source, const Rect& from) {
  const auto* there = Drawable(target);
  const auto* here = Find<GdiContext>(source);
  if (!there || !here) return false;
  GdiBitmap* canvas = Surface(*there);
  GdiBitmap* picture = Surface(*here);
  if (!canvas || !picture) return true;

  const std::int64_t width = std::int64_t{to.right} - to.left;
  const std::int64_t height = std::int64_t{to.bottom} - to.top;
  for (std::int64_t y = 0; y < height; ++y) {
    for (std::int64_t x = 0; x < width; ++x) {
      const std::int64_t sourceX = from.left + x * (std::int64_t{from.right} - from.left) / width;
      const std::int64_t sourceY = from.top + y * (std::int64_t{from.bottom} - from.top) / height;
      if (!picture->Holds(sourceX, sourceY) || !canvas->Holds(to.left + x, to.top + y)) continue;
      canvas->At(to.left + x, to.top + y) =
          Convert(picture->At(sourceX, sourceY), picture->IsMono(), canvas->IsMono(),
                  here->backColour, *there);
    }
  }
  return true;
}

}  // namespace orvane::memory
