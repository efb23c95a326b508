#pragma once

#include <cstdint>

#include "platform/Gdi.h"

namespace orvane {

/// What the desktop says of an entry that is to be painted.
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
