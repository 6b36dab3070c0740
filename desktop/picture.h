// A picture as the rules know it: a name and a size. The desktop owns the pixels.
#pragma once

#include <string_view>

namespace desktop {

/// An immutable image. Pictures are compared by address: giving one to an element copies a
/// reference, so one picture may show on many elements at once.
struct Picture {
  std::string_view name;
  int width = 0;   ///< pixels
  int height = 0;  ///< pixels
};

}  // namespace desktop
