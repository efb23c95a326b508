#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/Handles.h"
#include "platform/UniqueResource.h"

namespace orvane {

using Colour = std::uint32_t;  // 0x00BBGGRR

constexpr Colour Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8 | blue << 16;
}

struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

struct Size {
  std::int32_t width = 0;
  std::int32_t height = 0;
};

struct Rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;   // the first column outside
  std::int32_t bottom = 0;  // the first row outside
};

struct BitmapShape {
  std::int32_t width = 0;
  std::int32_t height = 0;
  std::int32_t bytesPerRow = 0;
  std::uint16_t planes = 1;
  std::uint16_t bitsPerPixel = 0;
};

/// How a copied pixel meets the one that is there (Windows: ternary raster operations).
enum class RasterOperation : std::uint32_t {
  Copy = 0x00CC0020,          // SRCCOPY
  And = 0x008800C6,           // SRCAND
  Or = 0x00EE0086,            // SRCPAINT
  AndNotSource = 0x00220326,  // destination AND NOT source
};

/// Drawing. Whatever is created or opened here is the caller's to free, after taking it out of
/// every context; the Unique names below do that. A handle is None and a bool false when Windows
/// refuses, outputs then untouched. Lengths are pixels.
class Gdi {
 public:
  virtual ~Gdi() = default;

  /// A memory context compatible with the screen, with a bitmap of one monochrome pixel.
  virtual DeviceContext CreateContext() = 0;
  virtual void FreeContext(DeviceContext context) = 0;
  virtual DeviceContext OpenScreen() = 0;
  virtual void CloseScreen(DeviceContext screen) = 0;

  /// A bitmap of the kind that the context holds: monochrome for a fresh memory context.
  virtual BitmapHandle CreateCompatible(DeviceContext context, Size size) = 0;
  /// A bitmap of any depth, its content undefined. Only depth 1 and the screen's can be drawn on.
  virtual BitmapHandle CreateShaped(const BitmapShape& shape) = 0;
  /// The module's bitmap resource, of at most 256 colours, with one of them replaced. Module 0 is
  /// the component itself.
  virtual BitmapHandle LoadMapped(std::uintptr_t module, std::int32_t resource, Colour from,
                                  Colour to) = 0;
  virtual std::optional<BitmapShape> Describe(BitmapHandle bitmap) = 0;
  virtual void FreeBitmap(BitmapHandle bitmap) = 0;

  virtual BrushHandle SolidBrush(Colour colour) = 0;
  virtual void FreeBrush(BrushHandle brush) = 0;
  virtual PenHandle SolidPen(std::int32_t width, Colour colour) = 0;
  virtual void FreePen(PenHandle pen) = 0;

  /// The font that the desktop window says is its own; None when it has none. Not the caller's.
  virtual FontHandle DesktopFont() = 0;
  /// The font of the system's menus for a screen of that many dots per inch.
  virtual FontHandle MenuFont(std::int32_t dpi) = 0;
  virtual void FreeFont(FontHandle font) = 0;

  /// The palette every context starts with. Not the caller's.
  virtual PaletteHandle DefaultPalette() = 0;

  // Each returns what was selected before; None when nothing changed. A palette is realised too.
  virtual BitmapHandle Select(DeviceContext context, BitmapHandle bitmap) = 0;
  virtual BrushHandle Select(DeviceContext context, BrushHandle brush) = 0;
  virtual PenHandle Select(DeviceContext context, PenHandle pen) = 0;
  virtual FontHandle Select(DeviceContext context, FontHandle font) = 0;
  virtual PaletteHandle Select(DeviceContext context, PaletteHandle palette) = 0;

  virtual Colour TextColour(DeviceContext context) = 0;
  virtual Colour BackColour(DeviceContext context) = 0;
  // Each returns what was set before.
  virtual Colour ExchangeTextColour(DeviceContext context, Colour colour) = 0;
  virtual Colour ExchangeBackColour(DeviceContext context, Colour colour) = 0;
  virtual bool ExchangeTransparency(DeviceContext context, bool transparent) = 0;

  /// The system colour of an index (COLOR_*), as it is now; 0 for an unknown one.
  virtual Colour SystemColour(std::int32_t index) = 0;
  /// A colour as automation gives it - RGB, a palette's entry (0x01......) or a system colour
  /// (0x800000..) - as RGB.
  virtual std::optional<Colour> TranslateColour(Colour colour, PaletteHandle palette) = 0;
  /// Dots per inch of the screen on which a menu opens now; 96 is the unscaled screen.
  virtual std::int32_t Dpi() = 0;

  /// Outlined with the pen, filled with the brush; without the rectangle's right column and bottom
  /// row.
  virtual bool Box(DeviceContext context, const Rect& rect) = 0;
  virtual bool Fill(DeviceContext context, const Rect& rect, BrushHandle brush) = 0;
  /// A line from point to point; the last one is not drawn.
  virtual bool Lines(DeviceContext context, std::span<const Point> points) = 0;

  /// Copies `size` from `from` of the source to `to`. From colour to monochrome the source's back
  /// colour becomes white and all else black; from monochrome to colour black becomes the target's
  /// text colour and white its back colour.
  virtual bool Copy(DeviceContext target, Point to, Size size, DeviceContext source, Point from,
                    RasterOperation operation) = 0;
  /// Copies a rectangle into one of another size; lines that do not fit are left out.
  virtual bool Stretch(DeviceContext target, const Rect& to, DeviceContext source,
                       const Rect& from) = 0;

  /// Prints text at the top left of the rectangle, cut at its edges, "&" underlining the next
  /// letter. The height of the text; 0 when it failed.
  virtual std::int32_t PrintText(DeviceContext context, const std::wstring& text,
                                 const Rect& rect) = 0;
  /// The extent of one line of text in the selected font; "&" is a letter like any other.
  virtual std::optional<Size> MeasureText(DeviceContext context, const std::wstring& text) = 0;
  /// Width of the widest character and height of the display's own font.
  virtual std::optional<Size> DisplayFontCell() = 0;

  /// Draws the icon with its mask at the context's top left.
  virtual bool PaintIcon(DeviceContext context, IconHandle icon, Size size) = 0;

  /// Windows error code of the last call, if that failed.
  virtual std::uint32_t LastError() = 0;
};

using UniqueContext = UniqueResource<Gdi, DeviceContext, &Gdi::FreeContext>;
using UniqueScreen = UniqueResource<Gdi, DeviceContext, &Gdi::CloseScreen>;
using UniqueBitmap = UniqueResource<Gdi, BitmapHandle, &Gdi::FreeBitmap>;
using UniqueBrush = UniqueResource<Gdi, BrushHandle, &Gdi::FreeBrush>;
using UniquePen = UniqueResource<Gdi, PenHandle, &Gdi::FreePen>;
using UniqueFont = UniqueResource<Gdi, FontHandle, &Gdi::FreeFont>;

/// Selects a drawing object into a context for a block; declare it after the object's owner, so
/// that the object is out of the context again before it is freed. False when it is not selected.
template <class Handle>
class Selected {
 public:
  Selected(Gdi& gdi, DeviceContext context, Handle handle)
      : m_gdi(gdi), m_context(context), m_previous(gdi.Select(context, handle)) {}
  ~Selected() {
    if (*this) m_gdi.Select(m_context, m_previous);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

  explicit operator bool() const { return m_previous != Handle{}; }

 private:
  Gdi& m_gdi;
  DeviceContext m_context;
  Handle m_previous;
};

}  // namespace orvane
