#pragma once

#include <windows.h>

#include <new>

namespace orvane::server {

/// Runs the body of a COM method and lets nothing out of it: the host is somebody's desktop.
/// `otherwise` is the answer to an exception that is not a lack of memory.
template <class Body>
HRESULT Guarded(HRESULT otherwise, const Body& body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return otherwise;
  }
}

}  // namespace orvane::server
