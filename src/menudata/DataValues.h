#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "menudata/clsOrvaneData.h"

namespace orvane {

/// One value that an item of some type has in the menu definition file.
struct DataValue {
  using Field = std::variant<FieldText clsOrvaneData::*, std::int32_t clsOrvaneData::*>;

  std::string_view name;  // what the readable form of the file calls it
  Field field;
};

/// The values of a type in file order; none for a type that has none or is unknown.
std::span<const DataValue> DataValuesOf(std::int32_t type);

}  // namespace orvane
