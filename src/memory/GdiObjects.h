#pragma once

#include <cstddef>
#include <cstdint>
#include <variant>
#include <vector>

#include "platform/Gdi.h"

namespace orvane::memory {

/// The objects of the software GDI. A pixel is a full colour whatever the bitmap's depth says, only
/// monochrome ones keep to black and white.
struct GdiBitmap {
  BitmapShape shape;
  std::vector<Colour> pixels;

  bool IsMono() const { return shape.bitsPerPixel == 1; }
  bool Holds(std::int64_t x, std::int64_t y) const {
    return x >= 0 && y >= 0 && x < shape.width && y < shape.height;
  }
  Colour& At(std::int64_t x, std::int64_t y) {
    return pixels[static_cast<std::size_t>(y * shape.width + x)];
  }
};

struct GdiBrush {
  Colour colour = 0;
};

struct GdiPen {
  Colour colour = 0;
};

struct GdiFont {
  Size cell;
};

/// What is selected, and what was selected before it: selecting that, or what the context started
/// with, always works.
template <class Handle>
struct GdiSlot {
  Handle now{};
  Handle before{};
};

struct GdiContext {
  bool isScreen = false;
  GdiSlot<BitmapHandle> bitmap;
  GdiSlot<BrushHandle> brush;
  GdiSlot<PenHandle> pen;
  GdiSlot<FontHandle> font;
  GdiSlot<PaletteHandle> palette;
  Colour textColour = 0;
  Colour backColour = Rgb(255, 255, 255);
  bool transparent = false;
};

using GdiObject = std::variant<GdiBitmap, GdiBrush, GdiPen, GdiFont, GdiContext>;

}  // namespace orvane::memory
