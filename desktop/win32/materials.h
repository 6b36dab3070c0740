// What everything in the window is painted with.
#pragma once

#include "desktop/common/scale.h"
#include "desktop/win32/fonts.h"
#include "desktop/win32/picture_store.h"

namespace desktop::win32 {

/// Scale and type are those of the screen on which the window stands.
struct Materials {
  common::Scale scale;
  Fonts fonts{scale};
  PictureStore pictures;

  void SetScale(common::Scale now) {
    scale = now;
    fonts = Fonts(now);
  }
};

}  // namespace desktop::win32
