#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace orvane::win32 {

/// Closes a handle of Windows with the given function: UniqueHandle<&CloseHandle>. The invalid
/// values 0 and -1 both count as none.
template <auto Close>
struct HandleCloser {
  void operator()(void* handle) const { Close(handle); }
};

template <auto Close>
using UniqueHandle = std::unique_ptr<void, HandleCloser<Close>>;

using UniqueKernelHandle = UniqueHandle<&CloseHandle>;
using UniqueFindHandle = UniqueHandle<&FindClose>;

/// A handle from a call that answers -1 when it fails.
template <class Unique>
Unique TakeHandle(HANDLE handle) {
  return Unique(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

}  // namespace orvane::win32
