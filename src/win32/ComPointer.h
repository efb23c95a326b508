#pragma once

#include <utility>

namespace orvane::win32 {

/// Owner of one reference to a COM object.
template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  /// Takes a reference of its own.
  explicit ComPointer(Interface* object) : m_object(object) {
    if (m_object) m_object->AddRef();
  }
  ComPointer(ComPointer&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
  ComPointer& operator=(ComPointer&& other) noexcept {
    std::swap(m_object, other.m_object);
    return *this;
  }
  ~ComPointer() {
    if (m_object) m_object->Release();
  }

  Interface* operator->() const { return m_object; }
  Interface* Get() const { return m_object; }
  explicit operator bool() const { return m_object != nullptr; }

  /// For calls that hand out a reference; the pointer must be empty.
  Interface** Out() { return &m_object; }

 private:
  Interface* m_object = nullptr;
};

}  // namespace orvane::win32
