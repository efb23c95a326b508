#include "graphics/MenuPainter.h"

#include <algorithm>

#include "graphics/ColConst.h"
#include "graphics/clsQuickGDI.h"
#include "support/Trace.h"

namespace orvane {
namespace {

constexpr std::int32_t UnscaledDpi = 96;
constexpr std::int32_t CoordinateLimit = 1 << 27;  // GDI's own

Rect WithinLimits(const Rect& rect) {
  const auto limit = [](std::int32_t value) {
    return std::clamp(value, -CoordinateLimit, CoordinateLimit);
  };
  return {limit(rect.left), limit(rect.top), limit(rect.right), limit(rect.bottom)};
}

bool IsSelected(const DrawItem& item) {
  return (item.state & DrawItem::Selected) != 0;
}

std::int32_t TextColourIndex(const DrawItem& item) {
  if ((item.state & (DrawItem::Grayed | DrawItem::Disabled)) != 0) return ColConst::Scrollbar;
  return IsSelected(item) ? ColConst::HighlightText : ColConst::MenuText;
}

}  // namespace

std::wstring DoubleAmpersands(const std::wstring& name) {
  std::wstring doubled;
  for (wchar_t character : name) doubled.append(character == L'&' ? 2 : 1, character);
  return doubled;
}

Size MenuPainter::Measure(std::wstring caption, bool isFileName) {
  caption.erase(caption.find_last_not_of(L' ') + 1);
  if (!isFileName) std::erase(caption, L'&');
  Size extent;
  {
    const UniqueContext context(m_gdi, m_gdi.CreateContext());
    const Selected font(m_gdi, context.get(), Font());
    extent = m_gdi.MeasureText(context.get(), caption).value_or(Size());
  }
  Log(L"Length=", extent.width, L"  Height=", extent.height);
  return {extent.width + Pixels(25), Pixels(20)};
}

void MenuPainter::Draw(const DrawItem& item, const std::wstring& caption, bool isFileName,
                       BitmapHandle picture) {
  const Rect area = WithinLimits(item.rect);
  const Selected font(m_gdi, item.context, Font());
  DrawCaption(item, area, isFileName ? DoubleAmpersands(caption) : caption,
              picture != BitmapHandle::None);
  if (picture != BitmapHandle::None) DrawPicture(item, area, picture);
}

void MenuPainter::DrawCaption(const DrawItem& item, const Rect& area, const std::wstring& caption,
                              bool hasPicture) {
  const bool selected = IsSelected(item);
  const Colour ground = m_gdi.SystemColour(selected ? ColConst::Highlight : ColConst::Menu);
  const UniqueBrush brush(m_gdi, m_gdi.SolidBrush(ground));
  const UniquePen pen(m_gdi, m_gdi.SolidPen(1, ground));
  const Colour textColour = m_gdi.SystemColour(TextColourIndex(item));

  const Selected brushSelected(m_gdi, item.context, brush.get());
  const Selected penSelected(m_gdi, item.context, pen.get());
  clsQuickGDI drawing(m_gdi);
  drawing.TargethDC(item.context);
  if (!selected) drawing.DrawRect(area.left, area.top, Pixels(22), area.bottom);
  const std::int32_t offset = hasPicture ? Pixels(23) : 0;
  drawing.DrawRect(area.left + offset, area.top, area.right, area.bottom);
  drawing.hPrint(area.left + Pixels(25), area.top + Pixels(3), caption, textColour, area.right,
                 area.bottom);
}

void MenuPainter::DrawPicture(const DrawItem& item, const Rect& area, BitmapHandle picture) {
  const std::int32_t side = PictureSize();
  const Point at{Pixels(4), area.top + Pixels(2)};
  {
    const UniqueContext memory(m_gdi, m_gdi.CreateContext());
    const Selected selected(m_gdi, memory.get(), picture);
    const auto shape = m_gdi.Describe(picture);
    if (selected && shape && side != 16 && shape->width != side)
      m_gdi.Stretch(item.context, {at.x, at.y, at.x + side, at.y + side}, memory.get(),
                    {0, 0, shape->width, shape->height});
    else if (selected)
      m_gdi.Copy(item.context, at, {side, side}, memory.get(), {}, RasterOperation::Copy);
  }
  if (!IsSelected(item)) return;
  clsQuickGDI drawing(m_gdi);
  drawing.TargethDC(item.context);
  drawing.ThreedBox(Pixels(1), area.top, Pixels(21), area.bottom - Pixels(1), false);
}

void MenuPainter::MenuOpens() {
  m_dpi = 0;
  m_font = FontHandle::None;
  m_menuFont.reset();
}

std::int32_t MenuPainter::Dpi() {
  if (m_dpi == 0) m_dpi = std::clamp(m_gdi.Dpi(), UnscaledDpi, 10 * UnscaledDpi);
  return m_dpi;
}

std::int32_t MenuPainter::Pixels(std::int32_t unscaled) {
  return (unscaled * Dpi() + UnscaledDpi / 2) / UnscaledDpi;
}

FontHandle MenuPainter::Font() {
  if (m_font != FontHandle::None) return m_font;
  m_font = m_gdi.DesktopFont();
  if (m_font == FontHandle::None) {
    m_menuFont = UniqueFont(m_gdi, m_gdi.MenuFont(Dpi()));
    m_font = m_menuFont.get();
  }
  return m_font;
}

}  // namespace orvane
