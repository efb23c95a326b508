#pragma once

#include <cstddef>
#include <memory>
#include <memory_resource>
#include <utility>

namespace orvane {

/// Memory for the many small objects of one menu: they are cut from a few large blocks, which go
/// when the last object has gone. A menu of thousands of items is made and forgotten at every
/// right-click, and a block of its own for each takes longer than what is done with it.
class Arena {
 public:
  template <class T, class... Arguments>
  std::shared_ptr<T> Make(Arguments&&... arguments) const {
    return std::allocate_shared<T>(Allocator<T>(m_memory), std::forward<Arguments>(arguments)...);
  }

 private:
  using Memory = std::pmr::monotonic_buffer_resource;

  /// Each object's control block has one, which keeps the memory.
  template <class T>
  struct Allocator {
    using value_type = T;

    explicit Allocator(std::shared_ptr<Memory> from) : memory(std::move(from)) {}
    template <class Other>
    Allocator(const Allocator<Other>& other) : memory(other.memory) {}

    T* allocate(std::size_t count) {
      return static_cast<T*>(memory->allocate(count * sizeof(T), alignof(T)));
    }
    void deallocate(T*, std::size_t) noexcept {}
    bool operator==(const Allocator& other) const { return memory == other.memory; }

    std::shared_ptr<Memory> memory;
  };

  static constexpr std::size_t FirstBlock =
      8192;  // a menu of some ten items; each next one is larger

  std::shared_ptr<Memory> m_memory = std::make_shared<Memory>(FirstBlock);
};

}  // namespace orvane
