#pragma once

#include <cstdint>

namespace orvane {

/// The system's colours by their platform numbers, without their prefix COLOR_, which makes macros
/// of them in windows.h.
struct ColConst {
  static constexpr std::int32_t Scrollbar = 0;
  static constexpr std::int32_t Menu = 4;
  static constexpr std::int32_t MenuText = 7;
  static constexpr std::int32_t Highlight = 13;
  static constexpr std::int32_t HighlightText = 14;
  static constexpr std::int32_t BtnShadow = 16;
  static constexpr std::int32_t BtnHighlight = 20;
};

}  // namespace orvane
