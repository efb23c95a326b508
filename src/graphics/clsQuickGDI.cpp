#include "graphics/clsQuickGDI.h"

#include "graphics/ColConst.h"

namespace orvane {

void clsQuickGDI::DrawRect(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2) {
  if (m_target != DeviceContext::None) m_gdi.Box(m_target, {X1, Y1, X2, Y2});
}

PenHandle clsQuickGDI::GetPen(std::int32_t nWidth, Colour Clr) {
  return m_gdi.SolidPen(nWidth, Clr);
}

std::int32_t clsQuickGDI::hPrint(std::int32_t x, std::int32_t y, const std::wstring& szText,
                                 Colour colour, std::int32_t right, std::int32_t bottom) {
  if (m_target == DeviceContext::None) return 0;
  const bool transparent = m_gdi.ExchangeTransparency(m_target, true);
  const Colour previous = m_gdi.ExchangeTextColour(m_target, colour);
  const std::int32_t height = m_gdi.PrintText(m_target, szText, {x, y, right, bottom});
  m_gdi.ExchangeTextColour(m_target, previous);
  m_gdi.ExchangeTransparency(m_target, transparent);
  return height;
}

void clsQuickGDI::ThreedBox(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2,
                            bool Sunken) {
  if (m_target == DeviceContext::None) return;
  const auto leftTop = Sunken ? ColConst::BtnShadow : ColConst::BtnHighlight;
  const auto rightBottom = Sunken ? ColConst::BtnHighlight : ColConst::BtnShadow;
  DrawCorner(leftTop, {X1, Y2}, {X1, Y1}, {X2, Y1});
  DrawCorner(rightBottom, {X2, Y1}, {X2, Y2}, {X1, Y2});
}

void clsQuickGDI::DrawCorner(std::int32_t colourIndex, Point from, Point corner, Point to) {
  const UniquePen pen(m_gdi, GetPen(1, m_gdi.SystemColour(colourIndex)));
  if (!pen) return;
  const Selected selected(m_gdi, m_target, pen.get());
  const Point points[] = {from, corner, to};
  if (selected) m_gdi.Lines(m_target, points);
}

}  // namespace orvane
