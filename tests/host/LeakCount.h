#pragma once

#include <cstddef>
#include <ostream>

namespace orvane::host {

/// What this process holds of the system, counted where Wine counts nothing for us.
struct LeakCount {
  std::size_t gdiObjects = 0;     // exact
  std::size_t userHandles = 0;    // highest slot in use: grows with each leaked menu or window
  std::size_t kernelHandles = 0;  // the same
  std::size_t heapBlocks = 0;     // exact, over all heaps: COM's task memory comes from one of them
  std::size_t threadSlots = 0;    // the first free one

  /// Heap blocks of just that size do not count.
  static LeakCount Now(std::size_t ignoredBlockSize = 0);
  bool operator==(const LeakCount&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const LeakCount& count) {
  return out << "GDI " << count.gdiObjects << ", USER " << count.userHandles << ", kernel "
             << count.kernelHandles << ", heap " << count.heapBlocks << ", TLS "
             << count.threadSlots;
}

}  // namespace orvane::host
