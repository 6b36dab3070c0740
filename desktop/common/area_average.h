// Pictures in other sizes.
#pragma once

#include <cstdint>
#include <vector>

#include "desktop/common/rect.h"

namespace desktop::common {

/// A picture of four bytes a pixel, row by row. Its colours are multiplied by its opacity.
struct Pixels {
  Size size;
  std::vector<std::uint32_t> values;
};

/// The upper left part of a picture that is at least as large.
Pixels Cut(const Pixels& picture, Size wanted);

/// The picture in another size: each pixel is the mean of what it covers.
Pixels AreaAveraged(const Pixels& picture, Size wanted);

}  // namespace desktop::common
