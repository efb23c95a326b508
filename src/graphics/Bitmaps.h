#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace orvane {

// Menu pictures are made here. Each bitmap is the caller's to free; None when it could not be made
// in full.

/// A bitmap resource with one colour replaced; module 0 is the component itself.
BitmapHandle ReplaceBitmapColour(Gdi& gdi, std::int32_t lResId, Colour lFromRGB, Colour lToRGB,
                                 std::uintptr_t hInstance = 0);

/// The bitmap at the size of one character cell of the display's font, about that of a check mark.
/// `deleteSource` frees the source bitmap, whatever comes of it.
BitmapHandle ScaleBMP(Gdi& gdi, BitmapHandle bitmap, bool deleteSource);

/// With this flag IconToBitmap draws at seven eighths of the size, 14 of 16 pixels. What lies
/// outside is as the new bitmap holds it.
constexpr std::int32_t SmallerIcon = 1;

/// The icon on a square in the system colour that follows `colourIndex`, in a bitmap of `size` x
/// `size` pixels, of the kind that the memory context holds.
BitmapHandle IconToBitmap(Gdi& gdi, DeviceContext context, IconHandle icon,
                          std::int32_t colourIndex, std::int32_t size, std::int32_t flags);

}  // namespace orvane
