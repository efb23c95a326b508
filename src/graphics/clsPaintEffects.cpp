#include "graphics/clsPaintEffects.h"

#include "support/Trace.h"

namespace orvane {
namespace {

constexpr Colour Black = Rgb(0, 0, 0);
constexpr Colour White = Rgb(255, 255, 255);

/// A bitmap in a memory context of its own; all is taken apart again with the object.
class Layer {
 public:
  /// `kind` is the context whose kind of bitmap it holds.
  Layer(Gdi& gdi, DeviceContext kind, Size size, PaletteHandle palette)
      : Layer(gdi, UniqueContext(gdi, gdi.CreateContext()), kind, size, palette) {}

  /// A fresh memory context holds monochrome bitmaps.
  static Layer Monochrome(Gdi& gdi, Size size) {
    UniqueContext context(gdi, gdi.CreateContext());
    const DeviceContext kind = context.get();
    return Layer(gdi, std::move(context), kind, size, PaletteHandle::None);
  }

  explicit operator bool() const { return static_cast<bool>(m_bitmapSelected); }
  DeviceContext get() const { return m_context.get(); }

 private:
  Layer(Gdi& gdi, UniqueContext context, DeviceContext kind, Size size, PaletteHandle palette)
      : m_context(std::move(context)),
        m_bitmap(gdi, gdi.CreateCompatible(kind, size)),
        m_bitmapSelected(gdi, m_context.get(), m_bitmap.get()),
        m_paletteSelected(gdi, m_context.get(), palette) {}

  UniqueContext m_context;
  UniqueBitmap m_bitmap;
  Selected<BitmapHandle> m_bitmapSelected;
  Selected<PaletteHandle> m_paletteSelected;
};

/// One masked copy, step by step in off-screen memory, so that the destination is written once.
class MaskedCopy {
 public:
  MaskedCopy(Gdi& gdi, DeviceContext screen, Size size, PaletteHandle palette)
      : m_gdi(gdi),
        m_size(size),
        m_background(gdi, screen, size, palette),
        m_picture(gdi, screen, size, palette),
        m_mask(Layer::Monochrome(gdi, size)) {}

  bool Paint(DeviceContext target, Point to, DeviceContext source, Point from, Colour mask) {
    return m_background && m_picture && m_mask &&
           Copy(m_background.get(), target, RasterOperation::Copy, to) &&
           TakePicture(source, from) && MakeMask(mask) && BlackenTransparent() &&
           // What is transparent stays of the background, the rest becomes black and is then
           // filled.
           Copy(m_background.get(), m_mask.get(), RasterOperation::And) &&
           Copy(m_background.get(), m_picture.get(), RasterOperation::Or) &&
           m_gdi.Copy(target, to, m_size, m_background.get(), {}, RasterOperation::Copy);
  }

 private:
  bool Copy(DeviceContext to, DeviceContext from, RasterOperation operation, Point at = {}) {
    return m_gdi.Copy(to, {}, m_size, from, at, operation);
  }

  bool TakePicture(DeviceContext source, Point from) {
    // A monochrome source takes its two colours from here.
    m_gdi.ExchangeBackColour(m_picture.get(), m_gdi.BackColour(source));
    m_gdi.ExchangeTextColour(m_picture.get(), m_gdi.TextColour(source));
    return Copy(m_picture.get(), source, RasterOperation::Copy, from);
  }

  /// White where the picture has the mask colour, black elsewhere.
  bool MakeMask(Colour mask) {
    m_gdi.ExchangeBackColour(m_picture.get(), mask);
    m_gdi.ExchangeTextColour(m_picture.get(), White);
    return Copy(m_mask.get(), m_picture.get(), RasterOperation::Copy);
  }

  bool BlackenTransparent() {
    m_gdi.ExchangeTextColour(m_picture.get(), Black);
    m_gdi.ExchangeBackColour(m_picture.get(), White);
    return Copy(m_picture.get(), m_mask.get(), RasterOperation::AndNotSource);
  }

  Gdi& m_gdi;
  Size m_size;
  Layer m_background;
  Layer m_picture;
  Layer m_mask;
};

}  // namespace

void clsPaintEffects::PaintTransparentDC(DeviceContext hdcDest, std::int32_t xDest,
                                         std::int32_t yDest, std::int32_t Width,
                                         std::int32_t Height, DeviceContext hdcSrc,
                                         std::int32_t xSrc, std::int32_t ySrc, Colour clrMask,
                                         PaletteHandle hPal) {
  TraceScope scope(L"PaintTransparentDC");
  const PaletteHandle palette = PaletteOr(hPal);
  const UniqueScreen screen(m_gdi, m_gdi.OpenScreen());
  const auto mask = m_gdi.TranslateColour(clrMask, palette);
  if (!screen || !mask || Width < 1 || Height < 1) return;
  MaskedCopy copy(m_gdi, screen.get(), {Width, Height}, palette);
  copy.Paint(hdcDest, {xDest, yDest}, hdcSrc, {xSrc, ySrc}, *mask);
}

void clsPaintEffects::PaintTransparentStdPic(DeviceContext hdcDest, std::int32_t xDest,
                                             std::int32_t yDest, std::int32_t Width,
                                             std::int32_t Height, const StdPicture& picSource,
                                             std::int32_t xSrc, std::int32_t ySrc, Colour clrMask,
                                             PaletteHandle hPal) {
  TraceScope scope(L"PaintTransparentStdPic");
  Log(L"picSource.Type=", picSource.Type);
  if (picSource.Type != StdPicture::Bitmap) return;
  const UniqueContext source(m_gdi, m_gdi.CreateContext());
  const Selected bitmap(m_gdi, source.get(), picSource.Handle);
  const Selected palette(m_gdi, source.get(), PaletteOr(hPal));
  if (bitmap)
    PaintTransparentDC(hdcDest, xDest, yDest, Width, Height, source.get(), xSrc, ySrc, clrMask,
                       hPal);
}

}  // namespace orvane
