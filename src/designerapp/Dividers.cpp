#include "designerapp/Dividers.h"

#include <algorithm>

namespace orvane::designerapp {
namespace {

constexpr double Least = 0.15, Most = 0.85, Step = 0.04;

}  // namespace

Dividers::Places Dividers::PlacesIn(SIZE area, int gap) {
  m_area = area;
  const auto left = static_cast<LONG>(area.cx * m_across);
  const auto upper = static_cast<LONG>(area.cy * m_down);
  m_places = {{0, 0, left, upper},
              {std::min(left + gap, area.cx), 0, area.cx, upper},
              {0, std::min(upper + gap, area.cy), area.cx, area.cy}};
  return m_places;
}

Dividers::Divider Dividers::At(POINT point) const {
  if (point.y >= m_places.tree.bottom)
    return point.y < m_places.findings.top ? Divider::Level : Divider::None;
  const bool isBetween = point.x >= m_places.tree.right && point.x < m_places.properties.left;
  return isBetween ? Divider::Upright : Divider::None;
}

void Dividers::MoveTo(Divider divider, POINT point) {
  if (m_area.cx <= 0 || m_area.cy <= 0) return;
  Share(divider,
        divider == Divider::Upright ? double(point.x) / m_area.cx : double(point.y) / m_area.cy);
}

void Dividers::Push(Divider divider, bool backwards) {
  const double share = divider == Divider::Upright ? m_across : m_down;
  Share(divider, share + (backwards ? -Step : Step));
}

void Dividers::Share(Divider divider, double share) {
  (divider == Divider::Upright ? m_across : m_down) = std::clamp(share, Least, Most);
}

}  // namespace orvane::designerapp
