#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/Handles.h"

namespace orvane::win32 {

/// Windows' handle of an opaque one. USER and GDI handles have 32 significant bits, extended with
/// their sign (Windows: "Interprocess Communication Between 32-bit and 64-bit Applications").
template <class Native, class Handle>
Native ToNative(Handle handle) {
  return reinterpret_cast<Native>(static_cast<std::intptr_t>(ToNumber(handle)));
}

template <class Handle, class Native>
Handle FromNative(Native native) {
  return static_cast<Handle>(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(native)));
}

}  // namespace orvane::win32
