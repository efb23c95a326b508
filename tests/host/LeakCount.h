#pragma once

#include <cstddef>

namespace orvane::host {

/// What this process holds of the system, counted where Wine counts nothing for us.
struct LeakCount {
  std::size_t gdiObjects = 0;   // exact
  std::size_t userHandles = 0;  // highest slot in use: grows with each leaked menu or window
  std::size_t heapBlocks = 0;   // exact, over all heaps

  static LeakCount Now();
};

}  // namespace orvane::host
