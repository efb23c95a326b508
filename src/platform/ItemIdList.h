#pragma once

#include <cstddef>
#include <vector>

namespace orvane {

/// An item-identifier list of the shell (ITEMIDLIST), held by value: the bytes with their closing
/// two zeros. Without bytes it is none; the desktop itself is two zero bytes.
struct ItemIdList {
  std::vector<std::byte> bytes;

  explicit operator bool() const { return !bytes.empty(); }
  bool operator==(const ItemIdList&) const = default;
};

}  // namespace orvane
