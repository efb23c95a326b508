#include "host/LeakCount.h"

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace orvane::host {
namespace {

// The process's GDI handle table hangs on its environment block: 65,536 entries of 24 bytes, whose
// byte 14 is the object's type, 0 for a free one.
std::size_t CountGdiObjects() {
  std::uintptr_t block = 0;
  __asm__("movq %%gs:0x60, %0" : "=r"(block));
  const auto* table = *reinterpret_cast<const std::uint8_t* const*>(block + 0xF8);
  std::size_t count = 0;
  for (std::size_t i = 0; i < 65536; ++i) {
    if (table[i * 24 + 14] != 0) ++count;
  }
  return count;
}

std::size_t HighestUserHandle() {
  HMENU menus[32];
  std::size_t highest = 0;
  for (HMENU& menu : menus) {
    menu = CreateMenu();
    highest = std::max<std::size_t>(highest, LOWORD(reinterpret_cast<std::uintptr_t>(menu)));
  }
  for (const HMENU menu : menus) DestroyMenu(menu);
  return highest;
}

std::size_t CountHeapBlocks(std::size_t ignoredSize) {
  HANDLE heaps[64];
  const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
  std::size_t blocks = 0;
  for (DWORD i = 0; i < count; ++i) {
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heaps[i], &entry)) {
      if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) && entry.cbData != ignoredSize) ++blocks;
    }
  }
  return blocks;
}

std::size_t HighestKernelHandle() {
  HANDLE events[16];
  std::uintptr_t highest = 0;
  for (HANDLE& event : events) {
    event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    highest = std::max(highest, reinterpret_cast<std::uintptr_t>(event));
  }
  for (const HANDLE event : events) CloseHandle(event);
  return highest;
}

std::size_t FirstFreeThreadSlot() {
  const DWORD slot = TlsAlloc();
  TlsFree(slot);
  return slot;
}

}  // namespace

LeakCount LeakCount::Now(std::size_t ignoredBlockSize) {
  return {CountGdiObjects(), HighestUserHandle(), HighestKernelHandle(),
          CountHeapBlocks(ignoredBlockSize), FirstFreeThreadSlot()};
}

}  // namespace orvane::host
