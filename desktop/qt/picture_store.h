// The pixels of the carried pictures, decoded once for each size in use.
#pragma once

#include <QPixmap>
#include <map>
#include <tuple>

#include "desktop/common/rect.h"
#include "desktop/picture.h"

namespace desktop::qt {

class PictureStore {
 public:
  /// The picture in this size, in device pixels. In the sizes in which it is carried these are the pixels of the
  /// file; otherwise a larger file is reduced, once. One that does not load is a program built wrongly: it shows in
  /// magenta, and is told on the terminal.
  const QPixmap& Sized(const Picture& picture, common::Size size);

 private:
  std::map<std::tuple<const Picture*, int, int>, QPixmap> pixmaps_;
};

}  // namespace desktop::qt
