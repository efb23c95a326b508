#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "menudata/clsOrvaneData.h"

namespace orvane {

/// A value that an item of some type has in the menu definition file.
using DataField = std::variant<FieldText clsOrvaneData::*, std::int32_t clsOrvaneData::*>;

/// The values of a type in file order; none for a type that has none or is unknown.
std::span<const DataField> DataValuesOf(std::int32_t type);

}  // namespace orvane
