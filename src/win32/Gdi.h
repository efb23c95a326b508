#pragma once

#include "platform/Gdi.h"

namespace orvane::win32 {

/// Windows' GDI.
class Gdi : public orvane::Gdi {
 public:
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
  FontHandle DesktopFont() override;
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
  std::int32_t Dpi() override;
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
  std::uint32_t LastError() override;
};

}  // namespace orvane::win32
