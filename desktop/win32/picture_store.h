// The pixels of the carried pictures, decoded once for each size in use.
#pragma once

#include <windows.h>

#include <map>
#include <tuple>

#include "desktop/common/area_average.h"
#include "desktop/picture.h"
#include "desktop/win32/handles.h"

struct IWICImagingFactory;

namespace desktop::win32 {

class PictureStore {
 public:
  /// COM is initialised, and stays so as long.
  PictureStore();
  ~PictureStore();

  /// The picture in this size, in device pixels; its colours are multiplied by its opacity. In the sizes in which it is
  /// carried these are the pixels of the file; otherwise the largest file is reduced, once. One that does not load is a
  /// program built wrongly: it shows in magenta.
  HBITMAP Sized(const Picture& picture, common::Size size);

 private:
  common::Pixels Load(const Picture& picture, common::Size size);

  Com<IWICImagingFactory> factory_;
  std::map<std::tuple<const Picture*, int, int>, Bitmap> bitmaps_;
};

}  // namespace desktop::win32
