#include "graphics/Bitmaps.h"

#include <utility>

#include "support/Trace.h"

namespace orvane {
namespace {

/// Rows padded to 16 bits.
BitmapShape Resized(BitmapShape shape, Size size) {
  shape.width = size.width;
  shape.height = size.height;
  shape.bytesPerRow = (shape.bitsPerPixel * size.width + 15) / 16 * 2;
  return shape;
}

UniqueBitmap Scaled(Gdi& gdi, BitmapHandle bitmap) {
  const auto cell = gdi.DisplayFontCell();
  const UniqueContext from(gdi, gdi.CreateContext());
  const UniqueContext to(gdi, gdi.CreateContext());
  const auto shape = gdi.Describe(bitmap);
  if (!cell || !from || !to || !shape) return {};
  Log(L"tm.tmMaxCharWidth=", cell->width, L"  tm.tmHeight=", cell->height);

  UniqueBitmap scaled(gdi, gdi.CreateShaped(Resized(*shape, *cell)));
  if (!scaled) {
    Log(L"GetLastError=", Hex(static_cast<std::int32_t>(gdi.LastError())));
    return {};
  }
  Log(L"hBitmap2=", Hex(scaled.get()));
  const Selected source(gdi, from.get(), bitmap);
  const Selected target(gdi, to.get(), scaled.get());
  const bool drawn = source && target &&
                     gdi.Stretch(to.get(), {0, 0, cell->width, cell->height}, from.get(),
                                 {0, 0, shape->width, shape->height});
  return drawn ? std::move(scaled) : UniqueBitmap();
}

}  // namespace

UniqueBitmap ReplaceBitmapColour(Gdi& gdi, std::int32_t lResId, Colour lFromRGB, Colour lToRGB,
                                 std::uintptr_t hInstance) {
  TraceScope scope(L"ReplaceBitmapColour");
  Log(L"lResId=", lResId, L"  lFromRGB=", Hex(static_cast<std::int32_t>(lFromRGB)), L"  lToRGB=",
      Hex(static_cast<std::int32_t>(lToRGB)), L"  hInstance=",
      Hex(static_cast<std::int32_t>(hInstance)));
  UniqueBitmap bitmap(gdi, gdi.LoadMapped(hInstance, lResId, lFromRGB, lToRGB));
  Log(L"ReplaceBitmapColour=", Hex(bitmap.get()));
  return bitmap;
}

UniqueBitmap ScaleBMP(Gdi& gdi, BitmapHandle bitmap) {
  TraceScope scope(L"ScaleBMP");
  Log(L"hBitmap1=", Hex(bitmap));
  return Scaled(gdi, bitmap);
}

UniqueBitmap IconToBitmap(Gdi& gdi, DeviceContext context, IconHandle icon,
                          std::int32_t colourIndex, std::int32_t size, std::int32_t flags) {
  TraceScope scope(L"IconToBitmap");
  const std::int32_t drawn = (flags & SmallerIcon) != 0 ? size - size / 8 : size;
  UniqueBitmap bitmap(gdi, gdi.CreateCompatible(context, {size, size}));
  const UniqueBrush brush(gdi, gdi.SolidBrush(gdi.SystemColour(colourIndex + 1)));
  if (!bitmap || !brush) return {};

  const Selected selected(gdi, context, bitmap.get());
  const bool complete = selected && gdi.Fill(context, {0, 0, drawn, drawn}, brush.get()) &&
                        gdi.PaintIcon(context, icon, {drawn, drawn});
  return complete ? std::move(bitmap) : UniqueBitmap();
}

}  // namespace orvane
