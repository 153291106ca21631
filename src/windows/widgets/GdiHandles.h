// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <type_traits>

#include "windows/files/Win32.h"

/// What the system draws with, each given back by the function that ends it.
namespace dayvane::widgets {

template <auto End>
struct Ender {
  template <class Drawn>
  void operator()(Drawn* handle) const {
    End(handle);
  }
};

template <class Handle, auto End>
using Drawing = std::unique_ptr<std::remove_pointer_t<Handle>, Ender<End>>;

using Font = Drawing<HFONT, &DeleteObject>;
using Brush = Drawing<HBRUSH, &DeleteObject>;
using Bitmap = Drawing<HBITMAP, &DeleteObject>;
using Icon = Drawing<HICON, &DestroyIcon>;
using MenuHandle = Drawing<HMENU, &DestroyMenu>;
using Accelerators = Drawing<HACCEL, &DestroyAcceleratorTable>;
using ImageListHandle = Drawing<HIMAGELIST, &ImageList_Destroy>;

}  // namespace dayvane::widgets
