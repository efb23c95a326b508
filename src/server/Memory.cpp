// The module's C++ memory, which comes from a heap of its own. The process's heap gives the end of
// what is freed back to the system and takes it again at the next right-click, page by page: for a
// menu of 1,000 entries that took longer than everything else. Here the first megabytes stay, as
// address space of which only what was once used takes real memory. And what goes wrong in this
// heap does not reach the host's.

#include <windows.h>

#include <cstddef>
#include <new>

#include "server/Module.h"

namespace {

constexpr SIZE_T KeptBytes = 4 << 20;  // a menu of some 5,000 entries

/// Made by the module's first allocation, hence destroyed after everything static that allocates.
class ModuleHeap {
 public:
  ModuleHeap() : m_own(HeapCreate(0, KeptBytes, 0)), m_heap(m_own ? m_own : GetProcessHeap()) {}
  // At the end of the process another thread may have died within the heap.
  ~ModuleHeap() {
    if (m_own && !orvane::server::Module::ProcessEnds()) HeapDestroy(m_own);
  }
  ModuleHeap(const ModuleHeap&) = delete;
  ModuleHeap& operator=(const ModuleHeap&) = delete;

  static HANDLE Get() {
    static const ModuleHeap heap;
    return heap.m_heap;
  }

 private:
  HANDLE m_own;
  HANDLE m_heap;
};

}  // namespace

// The library's other forms, for arrays and without exceptions, end in these.

void* operator new(std::size_t size) {
  if (void* memory = HeapAlloc(ModuleHeap::Get(), 0, size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  if (memory) HeapFree(ModuleHeap::Get(), 0, memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  ::operator delete(memory);
}
