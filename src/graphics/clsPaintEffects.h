#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace orvane {

/// A picture object as automation hands it over.
struct StdPicture {
  static constexpr std::int32_t Bitmap = 1;  // PICTYPE_BITMAP

  std::int32_t Type = 0;
  BitmapHandle Handle = BitmapHandle::None;  // not ours
};

/// Copies pictures with one colour made transparent. A copy that cannot be made in full leaves the
/// destination as it is.
class clsPaintEffects {
 public:
  explicit clsPaintEffects(Gdi& gdi) : m_gdi(gdi), m_defaultPalette(gdi.DefaultPalette()) {}

  /// `clrMask` is the transparent colour, in automation's form; without `hPal` the system's
  /// default palette serves.
  void PaintTransparentDC(DeviceContext hdcDest, std::int32_t xDest, std::int32_t yDest,
                          std::int32_t Width, std::int32_t Height, DeviceContext hdcSrc,
                          std::int32_t xSrc, std::int32_t ySrc, Colour clrMask,
                          PaletteHandle hPal = PaletteHandle::None);

  /// The same from a picture; nothing is painted when it is no bitmap.
  void PaintTransparentStdPic(DeviceContext hdcDest, std::int32_t xDest, std::int32_t yDest,
                              std::int32_t Width, std::int32_t Height, const StdPicture& picSource,
                              std::int32_t xSrc, std::int32_t ySrc, Colour clrMask,
                              PaletteHandle hPal = PaletteHandle::None);

 private:
  PaletteHandle PaletteOr(PaletteHandle hPal) const {
    return hPal == PaletteHandle::None ? m_defaultPalette : hPal;
  }

  Gdi& m_gdi;
  PaletteHandle m_defaultPalette;
};

}  // namespace orvane
