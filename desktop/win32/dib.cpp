#include "desktop/win32/dib.h"

#include <new>

namespace desktop::win32 {

Dib MakeDib(common::Size size) {
  BITMAPINFO info{};
  info.bmiHeader = {.biSize = sizeof info.bmiHeader,
                    .biWidth = size.width,
                    .biHeight = -size.height,
                    .biPlanes = 1,
                    .biBitCount = 32,
                    .biCompression = BI_RGB,
                    .biSizeImage = 0,
                    .biXPelsPerMeter = 0,
                    .biYPelsPerMeter = 0,
                    .biClrUsed = 0,
                    .biClrImportant = 0};
  void* pixels = nullptr;
  Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  if (!bitmap) throw std::bad_alloc();
  return {std::move(bitmap), static_cast<std::uint32_t*>(pixels)};
}

}  // namespace desktop::win32
