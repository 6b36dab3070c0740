// The pixels of the carried pictures, decoded once for the scale in use.
#pragma once

#include <QPixmap>
#include <QSize>
#include <map>
#include <tuple>

#include "desktop/picture.h"

namespace desktop::qt {

class PictureStore {
 public:
  PictureStore();

  /// The picture in device pixels for a screen of `ratio` device pixels to the layout's pixel, to be
  /// drawn pixel for pixel. At 1 and 2 these are the pixels of the carried file; between, the larger
  /// file is reduced once.
  const QPixmap& At(const Picture& picture, double ratio);

  /// The picture stretched to `size` device pixels.
  const QPixmap& Stretched(const Picture& picture, QSize size);

 private:
  const QPixmap& Sized(const Picture& picture, QSize size);

  std::map<std::tuple<const Picture*, int, int>, QPixmap> pixmaps_;
};

/// The pixel to which a length of the layout reaches on a screen of `ratio`.
inline int Device(float pixels, double ratio) { return qRound(static_cast<double>(pixels) * ratio); }

}  // namespace desktop::qt
