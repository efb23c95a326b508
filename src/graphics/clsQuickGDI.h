#pragma once

#include <cstdint>
#include <string>

#include "platform/Gdi.h"

namespace orvane {

/// Rectangles, text and frames on one device context. Without a target nothing is drawn.
class clsQuickGDI {
 public:
  explicit clsQuickGDI(Gdi& gdi) : m_gdi(gdi) {}

  /// The target of all drawing; None is no target.
  DeviceContext TargethDC() const { return m_target; }
  void TargethDC(DeviceContext target) { m_target = target; }

  /// A rectangle with the selected pen and brush.
  void DrawRect(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2);

  /// A solid pen, the caller's to free.
  PenHandle GetPen(std::int32_t nWidth, Colour Clr);

  /// Prints transparent text, "&" underlining the next letter, and returns its height; 0 when
  /// nothing was drawn.
  std::int32_t hPrint(std::int32_t x, std::int32_t y, const std::wstring& szText, Colour colour,
                      std::int32_t right, std::int32_t bottom);

  /// A frame that stands out of the surface or is sunk in it.
  void ThreedBox(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2, bool Sunken);

 private:
  void DrawCorner(std::int32_t colourIndex, Point from, Point corner, Point to);

  Gdi& m_gdi;
  DeviceContext m_target = DeviceContext::None;
};

}  // namespace orvane
