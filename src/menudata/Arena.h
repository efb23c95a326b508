#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace orvane {

/// Memory for the many small things of one menu: it is cut from a few large blocks, which go when
/// the arena and the last object have gone. A menu of thousands of items is made and forgotten at
/// every right-click, and a block of its own for each takes longer than what is done with it.
class Arena {
 public:
  /// The object keeps the memory.
  template <class T, class... Arguments>
  std::shared_ptr<T> Make(Arguments&&... arguments) const {
    return std::allocate_shared<T>(Allocator<T>(m_memory), std::forward<Arguments>(arguments)...);
  }

  /// Bytes for anything that does not outlive an object made here.
  void* Take(std::size_t bytes) const { return m_memory->Take(bytes); }

 private:
  class Memory {
   public:
    void* Take(std::size_t bytes) {
      bytes = (bytes + Alignment - 1) / Alignment * Alignment;
      if (bytes > m_left) Grow(bytes);
      m_left -= bytes;
      return std::exchange(m_next, m_next + bytes);
    }

   private:
    static constexpr std::size_t Alignment = alignof(std::max_align_t);

    void Grow(std::size_t least) {
      const std::size_t size = std::max(least, m_size);
      m_blocks.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
      m_next = m_blocks.back().get();
      m_left = size;
      m_size = std::min(2 * m_size, LargestBlock);
    }

    static constexpr std::size_t FirstBlock = 8192;  // a menu of some ten items
    static constexpr std::size_t LargestBlock = 1 << 18;

    std::vector<std::unique_ptr<std::byte[]>> m_blocks;
    std::byte* m_next = nullptr;
    std::size_t m_left = 0;
    std::size_t m_size = FirstBlock;  // of the next block
  };

  /// Each object's control block has one, which keeps the memory.
  template <class T>
  struct Allocator {
    using value_type = T;

    explicit Allocator(std::shared_ptr<Memory> from) : memory(std::move(from)) {}
    template <class Other>
    Allocator(const Allocator<Other>& other) : memory(other.memory) {}

    T* allocate(std::size_t count) { return static_cast<T*>(memory->Take(count * sizeof(T))); }
    void deallocate(T*, std::size_t) noexcept {}
    bool operator==(const Allocator& other) const { return memory == other.memory; }

    std::shared_ptr<Memory> memory;
  };

  std::shared_ptr<Memory> m_memory = std::make_shared<Memory>();
};

}  // namespace orvane
