#pragma once

#include <cstdint>

#include "menudata/clsOptions.h"

namespace orvane {

/// The pictures that an entry may ask for. 1 to 9 are the module's bitmaps, resources 101 to 109.
enum class Picture : std::int32_t {
  None = 0,
  Mark = 1,  // the product's own
  CurrentFolder = 2,
  Reset = 3,
  OwnFolder = 4,
  Add = 5,
  UnknownFile = 6,  // stands in for an icon that cannot be had
  Action = 7,
  Task = 8,
  Popup = 9,
  Designer = 999998,  // Mark, from the medium icon level on
  OwnIcon = 999999,   // the shell's icon of the entry's file
};

/// Whether an entry that asks for the picture gets one at that icon level.
bool IsShown(Picture picture, std::int32_t level);

}  // namespace orvane
