#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace orvane {

// Menu pictures are made here; none when one could not be made in full.

/// A bitmap resource with one colour replaced; module 0 is the component itself.
UniqueBitmap ReplaceBitmapColour(Gdi& gdi, std::int32_t lResId, Colour lFromRGB, Colour lToRGB,
                                 std::uintptr_t hInstance = 0);

/// The bitmap at the size of one character cell of the display's font, about that of a check mark.
UniqueBitmap ScaleBMP(Gdi& gdi, BitmapHandle bitmap);

/// With this flag IconToBitmap draws at seven eighths of the size, 14 of 16 pixels. What lies
/// outside is as the new bitmap holds it.
constexpr std::int32_t SmallerIcon = 1;

/// The icon on a square in the system colour that follows `colourIndex`, in a bitmap of `size` x
/// `size` pixels, of the kind that the memory context holds.
UniqueBitmap IconToBitmap(Gdi& gdi, DeviceContext context, IconHandle icon,
                          std::int32_t colourIndex, std::int32_t size, std::int32_t flags);

}  // namespace orvane
