// Shapes, copies, text and icons.

#include <windows.h>

#include "win32/Gdi.h"
#include "win32/NativeHandles.h"

namespace orvane::win32 {
namespace {

HDC Native(DeviceContext context) {
  return ToNative<HDC>(context);
}

RECT Native(const Rect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}

int LengthOf(const std::wstring& text) {
  return static_cast<int>(text.size());
}

}  // namespace

bool Gdi::Box(DeviceContext context, const Rect& rect) {
  return Rectangle(Native(context), rect.left, rect.top, rect.right, rect.bottom) != FALSE;
}

bool Gdi::Fill(DeviceContext context, const Rect& rect, BrushHandle brush) {
  const RECT area = Native(rect);
  return FillRect(Native(context), &area, ToNative<HBRUSH>(brush)) != 0;
}

bool Gdi::Lines(DeviceContext context, std::span<const Point> points) {
  if (points.empty()) return true;
  POINT before;
  if (!MoveToEx(Native(context), points[0].x, points[0].y, &before)) return false;
  bool drawn = true;
  for (const Point& point : points.subspan(1))
    drawn = LineTo(Native(context), point.x, point.y) && drawn;
  MoveToEx(Native(context), before.x, before.y, nullptr);
  return drawn;
}

bool Gdi::Copy(DeviceContext target, Point to, Size size, DeviceContext source, Point from,
               RasterOperation operation) {
  return BitBlt(Native(target), to.x, to.y, size.width, size.height, Native(source), from.x, from.y,
                static_cast<DWORD>(operation)) != FALSE;
}

bool Gdi::Stretch(DeviceContext target, const Rect& to, DeviceContext source, const Rect& from) {
  const int mode = SetStretchBltMode(Native(target), COLORONCOLOR);
  const BOOL copied = StretchBlt(Native(target), to.left, to.top, to.right - to.left,
                                 to.bottom - to.top, Native(source), from.left, from.top,
                                 from.right - from.left, from.bottom - from.top, SRCCOPY);
  if (mode != 0) SetStretchBltMode(Native(target), mode);
  return copied != FALSE;
}

std::int32_t Gdi::PrintText(DeviceContext context, const std::wstring& text, const Rect& rect) {
  RECT area = Native(rect);
  return DrawTextW(Native(context), text.c_str(), LengthOf(text), &area, 0);
}

std::optional<Size> Gdi::MeasureText(DeviceContext context, const std::wstring& text) {
  SIZE extent;
  if (!GetTextExtentPoint32W(Native(context), text.c_str(), LengthOf(text), &extent))
    return std::nullopt;
  return Size{extent.cx, extent.cy};
}

std::optional<Size> Gdi::DisplayFontCell() {
  // A fresh memory context has the display's font, and costs a hundredth of an information context.
  const UniqueContext context(*this, CreateContext());
  TEXTMETRICW metrics;
  if (!GetTextMetricsW(Native(context.get()), &metrics)) return std::nullopt;
  return Size{metrics.tmMaxCharWidth, metrics.tmHeight};
}

bool Gdi::PaintIcon(DeviceContext context, IconHandle icon, Size size) {
  return DrawIconEx(Native(context), 0, 0, ToNative<HICON>(icon), size.width, size.height, 0,
                    nullptr, DI_NORMAL) != FALSE;
}

}  // namespace orvane::win32
