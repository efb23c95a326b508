#pragma once

#include <utility>

namespace orvane {

/// Sole owner of a handle that its noun releases: UniqueResource<Menus, MenuHandle,
/// &Menus::Destroy>. Move-only; Handle{} is "none".
template <class Owner, class Handle, auto Release>
class UniqueResource {
 public:
  UniqueResource() = default;
  UniqueResource(Owner& owner, Handle handle) : m_owner(&owner), m_handle(handle) {}
  UniqueResource(UniqueResource&& other) noexcept
      : m_owner(other.m_owner), m_handle(other.release()) {}
  UniqueResource& operator=(UniqueResource&& other) noexcept {
    if (this != &other) {
      reset();
      m_owner = other.m_owner;
      m_handle = other.release();
    }
    return *this;
  }
  ~UniqueResource() { reset(); }

  Handle get() const { return m_handle; }
  explicit operator bool() const { return m_handle != Handle{}; }

  /// Gives the handle up without releasing it.
  Handle release() { return std::exchange(m_handle, Handle{}); }

  void reset() {
    if (m_handle != Handle{}) (m_owner->*Release)(release());
  }

 private:
  Owner* m_owner = nullptr;
  Handle m_handle{};
};

}  // namespace orvane
