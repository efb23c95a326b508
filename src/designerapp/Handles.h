#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <type_traits>

namespace orvane::designerapp {

/// Gives a handle back with the given function.
template <auto Release>
struct Releaser {
  template <class Handle>
  void operator()(Handle* handle) const {
    Release(handle);
  }
};

template <class Handle, auto Release>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, Releaser<Release>>;

using UniqueFont = Unique<HFONT, &DeleteObject>;
using UniqueBitmap = Unique<HBITMAP, &DeleteObject>;
using UniqueIcon = Unique<HICON, &DestroyIcon>;
using UniqueMenu = Unique<HMENU, &DestroyMenu>;
using UniqueKeys = Unique<HACCEL, &DestroyAcceleratorTable>;
using UniqueImageList = Unique<HIMAGELIST, &ImageList_Destroy>;

}  // namespace orvane::designerapp
