#pragma once

#include <cstdint>
#include <string>

#include "platform/Handles.h"

namespace orvane {

/// What the painter asks of the menu whose entries it paints.
class MenuItemLookup {
 public:
  /// The entry's caption; empty for an unknown identifier.
  virtual std::wstring OwnerDrawMenu_GetCaption(std::int32_t lId) = 0;
  /// The entry's picture; None without one.
  virtual BitmapHandle OwnerDrawMenu_HasBitmap(std::int32_t lId) = 0;

 protected:
  virtual ~MenuItemLookup() = default;
};

}  // namespace orvane
