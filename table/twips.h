// Pointer offsets inside a piece, from twips to pixels.
#pragma once

#include <cmath>

#include "desktop/units.h"

namespace thistle {

/// An offset in twips, rounded to a whole number with halves going to the even neighbour, as whole
/// pixels towards zero. Needs the default rounding mode of the processor.
inline float ToPixels(float offset) {
  return std::trunc(std::nearbyint(offset) / static_cast<float>(desktop::kTwipsPerPixel));
}

}  // namespace thistle
