#pragma once

#include <cstdint>

namespace orvane {

/// The header of a menu definition file. Its first and third number are kept and logged only.
struct clsFileHeader {
  std::int32_t HeaderValue1 = 0;
  std::int32_t ItemCount = 0;
  std::int32_t HeaderValue3 = 0;
};

}  // namespace orvane
