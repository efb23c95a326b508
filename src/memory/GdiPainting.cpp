// Shapes, text and icons of the software GDI.

#include <algorithm>

#include "memory/Gdi.h"

namespace orvane::memory {
namespace {

constexpr Colour White = Rgb(255, 255, 255);

Rect Intersection(const Rect& one, const Rect& other) {
  return {std::max(one.left, other.left), std::max(one.top, other.top),
          std::min(one.right, other.right), std::min(one.bottom, other.bottom)};
}

Rect BoundsOf(const GdiBitmap& bitmap) {
  return {0, 0, bitmap.shape.width, bitmap.shape.height};
}

/// The colour as the bitmap can hold it.
Colour Nearest(const GdiBitmap& bitmap, Colour colour) {
  if (!bitmap.IsMono()) return colour & 0xFFFFFF;
  const auto light = (colour & 0xFF) + (colour >> 8 & 0xFF) + (colour >> 16 & 0xFF);
  return light * 2 > 3 * 255 ? White : 0;
}

void Paint(GdiBitmap& bitmap, const Rect& rect, Colour colour) {
  const Rect part = Intersection(rect, BoundsOf(bitmap));
  for (std::int32_t y = part.top; y < part.bottom; ++y)
    for (std::int32_t x = part.left; x < part.right; ++x) bitmap.At(x, y) = Nearest(bitmap, colour);
}

/// Whether a dot of the letter's box is set, in a cell of 8 x 16.
bool HasDot(wchar_t letter, std::int32_t x, std::int32_t y) {
  if (letter == L' ' || x < 1 || x > 6 || y < 3 || y > 12) return false;
  const auto bits = static_cast<std::uint32_t>(letter) * 2654435761u;
  return (bits >> ((x * 5 + y * 3) % 32) & 1) != 0;
}

/// The dots of a level or upright line from one point to another, the last one left out.
Rect LineDots(Point from, Point to) {
  if (from.x == to.x)
    return from.y < to.y ? Rect{from.x, from.y, from.x + 1, to.y}
                         : Rect{from.x, to.y + 1, from.x + 1, from.y + 1};
  if (from.y == to.y)
    return from.x < to.x ? Rect{from.x, from.y, to.x, from.y + 1}
                         : Rect{to.x + 1, from.y, from.x + 1, from.y + 1};
  return {};
}

}  // namespace

GdiContext* Gdi::Drawable(DeviceContext context) {
  if (m_faults.Hit()) return nullptr;
  return Find<GdiContext>(context);
}

GdiBitmap* Gdi::Surface(const GdiContext& context) {
  return context.isScreen ? nullptr : Find<GdiBitmap>(context.bitmap.now);
}

bool Gdi::Box(DeviceContext handle, const Rect& rect) {
  const auto* context = Drawable(handle);
  if (!context) return false;
  GdiBitmap* surface = Surface(*context);
  if (!surface || rect.right <= rect.left || rect.bottom <= rect.top) return true;
  Paint(*surface, rect, Find<GdiPen>(context->pen.now)->colour);
  Paint(*surface, {rect.left + 1, rect.top + 1, rect.right - 1, rect.bottom - 1},
        Find<GdiBrush>(context->brush.now)->colour);
  return true;
}

bool Gdi::Fill(DeviceContext handle, const Rect& rect, BrushHandle brush) {
  const auto* context = Drawable(handle);
  const auto* filling = Find<GdiBrush>(brush);
  if (!context || !filling) return false;
  if (GdiBitmap* surface = Surface(*context)) Paint(*surface, rect, filling->colour);
  return true;
}

bool Gdi::Lines(DeviceContext handle, std::span<const Point> points) {
  const auto* context = Drawable(handle);
  if (!context) return false;
  GdiBitmap* surface = Surface(*context);
  if (!surface) return true;
  for (std::size_t i = 1; i < points.size(); ++i)
    Paint(*surface, LineDots(points[i - 1], points[i]), Find<GdiPen>(context->pen.now)->colour);
  return true;
}

Size Gdi::FontCell(const GdiContext& context) {
  return Find<GdiFont>(context.font.now)->cell;
}

void Gdi::PrintLetter(const GdiContext& context, wchar_t letter, bool underline, const Rect& cell,
                      const Rect& clip) {
  GdiBitmap* surface = Surface(context);
  if (!surface) return;
  const Rect part = Intersection(Intersection(cell, clip), BoundsOf(*surface));
  const std::int32_t width = cell.right - cell.left;
  const std::int32_t height = cell.bottom - cell.top;
  for (std::int32_t y = part.top; y < part.bottom; ++y) {
    for (std::int32_t x = part.left; x < part.right; ++x) {
      const std::int32_t row = (y - cell.top) * 16 / height;
      const bool dot = HasDot(letter, (x - cell.left) * 8 / width, row) || (underline && row == 14);
      if (dot)
        surface->At(x, y) = Nearest(*surface, context.textColour);
      else if (!context.transparent)
        surface->At(x, y) = Nearest(*surface, context.backColour);
    }
  }
}

std::int32_t Gdi::PrintText(DeviceContext handle, const std::wstring& text, const Rect& rect) {
  const auto* context = Drawable(handle);
  if (!context) return 0;
  const Size cell = FontCell(*context);
  Point at{rect.left, rect.top};
  bool underline = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'&' && !underline) {
      underline = true;
      continue;
    }
    if (text[i] == L'\n') {
      at = {rect.left, at.y + cell.height};
    } else {
      // A second "&" is a letter of its own.
      PrintLetter(*context, text[i], underline && text[i] != L'&',
                  {at.x, at.y, at.x + cell.width, at.y + cell.height}, rect);
      at.x += cell.width;
    }
    underline = false;
  }
  return at.y + cell.height - rect.top;
}

std::optional<Size> Gdi::MeasureText(DeviceContext handle, const std::wstring& text) {
  const auto* context = Drawable(handle);
  if (!context) return std::nullopt;
  const Size cell = FontCell(*context);
  return Size{static_cast<std::int32_t>(text.size()) * cell.width, cell.height};
}

bool Gdi::PaintIcon(DeviceContext handle, IconHandle icon, Size size) {
  const auto* context = Drawable(handle);
  if (!context || icon == IconHandle::None) return false;
  GdiBitmap* surface = Surface(*context);
  if (!surface) return true;
  // The low half tells icons apart, see ShellIcons.
  const auto place = static_cast<std::uint16_t>(icon);
  const Colour colour = (place + 1u) * 2654435761u >> 8;
  const Rect part = Intersection({0, 0, size.width, size.height}, BoundsOf(*surface));
  for (std::int32_t y = 0; y < part.bottom; ++y) {
    for (std::int32_t x = 0; x < part.right; ++x) {
      const std::int32_t across = 2 * x + 1 - size.width;
      const std::int32_t down = 2 * y + 1 - size.height;
      if (across * across + down * down < size.width * size.height) surface->At(x, y) = colour;
    }
  }
  return true;
}

}  // namespace orvane::memory
