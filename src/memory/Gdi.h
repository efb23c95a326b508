#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "memory/Faults.h"
#include "memory/GdiObjects.h"
#include "platform/Gdi.h"

namespace orvane::memory {

/// A small software GDI. Its screen has 32 bits a pixel and no surface: what is drawn there is
/// dropped. Left out: pens wider than a pixel, slanted lines, pens and brushes on monochrome
/// bitmaps beyond the nearer of black and white, palettes, clipping regions, coordinate systems. A
/// letter is a box of dots made of its number, an icon a disc in a colour made of its handle.
class Gdi : public orvane::Gdi {
 public:
  explicit Gdi(Faults& faults);

  DeviceContext CreateContext() override;
  void FreeContext(DeviceContext context) override;
  DeviceContext OpenScreen() override;
  void CloseScreen(DeviceContext screen) override;
  BitmapHandle CreateCompatible(DeviceContext context, Size size) override;
  BitmapHandle CreateShaped(const BitmapShape& shape) override;
  BitmapHandle LoadMapped(std::uintptr_t module, std::int32_t resource, Colour from,
                          Colour to) override;
  std::optional<BitmapShape> Describe(BitmapHandle bitmap) override;
  void FreeBitmap(BitmapHandle bitmap) override;
  BrushHandle SolidBrush(Colour colour) override;
  void FreeBrush(BrushHandle brush) override;
  PenHandle SolidPen(std::int32_t width, Colour colour) override;
  void FreePen(PenHandle pen) override;
  FontHandle DesktopFont() override { return desktopFont; }
  FontHandle MenuFont(std::int32_t dpi) override;
  void FreeFont(FontHandle font) override;
  PaletteHandle DefaultPalette() override;
  BitmapHandle Select(DeviceContext context, BitmapHandle bitmap) override;
  BrushHandle Select(DeviceContext context, BrushHandle brush) override;
  PenHandle Select(DeviceContext context, PenHandle pen) override;
  FontHandle Select(DeviceContext context, FontHandle font) override;
  PaletteHandle Select(DeviceContext context, PaletteHandle palette) override;
  Colour TextColour(DeviceContext context) override;
  Colour BackColour(DeviceContext context) override;
  Colour ExchangeTextColour(DeviceContext context, Colour colour) override;
  Colour ExchangeBackColour(DeviceContext context, Colour colour) override;
  bool ExchangeTransparency(DeviceContext context, bool transparent) override;
  Colour SystemColour(std::int32_t index) override;
  std::optional<Colour> TranslateColour(Colour colour, PaletteHandle palette) override;
  std::int32_t Dpi() override { return dpi; }
  bool Box(DeviceContext context, const Rect& rect) override;
  bool Fill(DeviceContext context, const Rect& rect, BrushHandle brush) override;
  bool Lines(DeviceContext context, std::span<const Point> points) override;
  bool Copy(DeviceContext target, Point to, Size size, DeviceContext source, Point from,
            RasterOperation operation) override;
  bool Stretch(DeviceContext target, const Rect& to, DeviceContext source,
               const Rect& from) override;
  std::int32_t PrintText(DeviceContext context, const std::wstring& text,
                         const Rect& rect) override;
  std::optional<Size> MeasureText(DeviceContext context, const std::wstring& text) override;
  std::optional<Size> DisplayFontCell() override;
  bool PaintIcon(DeviceContext context, IconHandle icon, Size size) override;
  std::uint32_t LastError() override { return 8; }  // not enough memory

  // For tests: the desktop's looks.
  std::int32_t dpi = 96;
  Size displayFontCell{8, 16};
  FontHandle desktopFont = FontHandle::None;
  std::array<Colour, 31> systemColours;  // as on an unchanged Windows 10
  /// The module's bitmaps 101 to 109; from the start each is 16 x 16, a square of a colour of its
  /// own in a frame, 3 pixels wide, of the mask colour RGB(255, 0, 255).
  std::map<std::int32_t, GdiBitmap> resources;

  // For tests: what is in the bitmaps, and what was done wrong.
  /// What a new bitmap is filled with: a colour that nobody would choose.
  static constexpr Colour Undefined = Rgb(0xCD, 0xAB, 0x12);
  std::optional<Colour> Pixel(BitmapHandle bitmap, Point at) const;
  void SetPixel(BitmapHandle bitmap, Point at, Colour colour);
  FontHandle AddFont(Size cell);  // counts as live
  /// Objects that were created or opened and are not freed.
  std::size_t Live() const { return m_objects.size() - StockCount; }
  /// Objects freed while selected or twice, contexts freed as what they are not.
  const std::vector<std::string>& Mistakes() const { return m_mistakes; }

 private:
  static constexpr std::size_t StockCount = 4;
  static constexpr std::int32_t MaxSide = 32767;
  static constexpr std::int64_t MaxPixels = 1 << 24;

  template <class Handle>
  Handle Add(GdiObject object);
  template <class Thing, class Handle>
  Thing* Find(Handle handle) {
    const auto found = m_objects.find(static_cast<std::uint32_t>(handle));
    return found == m_objects.end() ? nullptr : std::get_if<Thing>(&found->second);
  }
  template <class Thing, class Handle>
  void Free(Handle handle, const char* what);
  void FreeContext(DeviceContext context, bool screen);
  bool IsSelected(std::uint32_t handle) const;
  template <class Handle>
  Handle Exchange(GdiSlot<Handle>& slot, Handle handle);
  /// The context to draw on; null when it is none or the call must fail.
  GdiContext* Drawable(DeviceContext context);
  /// The bitmap of a memory context; null for the screen, which has none.
  GdiBitmap* Surface(const GdiContext& context);
  Size FontCell(const GdiContext& context);
  void PrintLetter(const GdiContext& context, wchar_t letter, bool underline, const Rect& cell,
                   const Rect& clip);

  Faults& m_faults;
  std::map<std::uint32_t, GdiObject> m_objects;
  std::uint32_t m_next = 0x01010000;
  std::vector<std::string> m_mistakes;
};

}  // namespace orvane::memory
