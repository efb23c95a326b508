#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace orvane {

// The messages of an open menu, in portable form: whoever receives the platform's structure copies
// what is needed of it into one of these, passes the address of the copy as lParam, and copies the
// outputs back.

struct MenuMessage {
  static constexpr std::uint32_t DrawItem = 0x2B;     // WM_DRAWITEM
  static constexpr std::uint32_t MeasureItem = 0x2C;  // WM_MEASUREITEM
  static constexpr std::uint32_t InitMenuPopup = 0x117;
};

/// MEASUREITEMSTRUCT: itemID in, itemWidth and itemHeight out.
struct MeasureItem {
  std::int32_t id = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

/// DRAWITEMSTRUCT: itemID, itemState, hDC, rcItem.
struct DrawItem {
  static constexpr std::uint32_t Selected = 1;  // ODS_*
  static constexpr std::uint32_t Grayed = 2;
  static constexpr std::uint32_t Disabled = 4;

  std::int32_t id = 0;
  std::uint32_t state = 0;
  DeviceContext context = DeviceContext::None;
  Rect rect;
};

}  // namespace orvane
