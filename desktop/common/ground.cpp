#include "desktop/common/ground.h"

#include <cmath>

namespace desktop::common {

namespace {

constexpr Colour kPale{0xFFFFE1};

/// Relative luminance below which black text becomes hard to read: a contrast of 4.5 to 1.
constexpr double kDarkest = 0.175;

double Luminance(Colour colour) {
  const auto linear = [colour](int shift) {
    const double part = (colour.rgb >> shift & 0xFF) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

}  // namespace

Colour TextGround(Colour tooltip) { return Luminance(tooltip) > kDarkest ? tooltip : kPale; }

}  // namespace desktop::common
