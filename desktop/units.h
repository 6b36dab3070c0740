// Units of length: the layout's twips and the screen's pixels.
#pragma once

namespace desktop {

/// Twips to one pixel. Forms are designed in twips and never scaled, so the ratio is fixed.
inline constexpr int kTwipsPerPixel = 15;

/// A length of a form's layout, in pixels. `twips` must be a multiple of 15 to give a whole pixel.
constexpr float Pixels(int twips) { return static_cast<float>(twips) / kTwipsPerPixel; }

}  // namespace desktop
