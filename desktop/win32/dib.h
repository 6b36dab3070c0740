// Bitmaps of four bytes a pixel in the program's own memory.
#pragma once

#include <cstdint>

#include "desktop/common/rect.h"
#include "desktop/win32/handles.h"

namespace desktop::win32 {

struct Dib {
  Bitmap bitmap;
  std::uint32_t* pixels = nullptr;  ///< row by row, from above; live as long as the bitmap
};

Dib MakeDib(common::Size size);

}  // namespace desktop::win32
