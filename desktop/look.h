// Colours and type of what stands on a form.
#pragma once

#include <cstdint>

namespace desktop {

/// A colour as #RRGGBB.
struct Colour {
  std::uint32_t rgb = 0;
  bool operator==(const Colour&) const = default;
};

/// The forms have one type family; only size and style differ.
struct Font {
  double points = 11.25;
  bool bold = true;
  bool italic = false;
  bool underline = false;
  bool operator==(const Font&) const = default;

  /// Height in pixels: the layout counts 96 pixels to the inch on every screen.
  constexpr double PixelSize() const { return points * 96 / 72; }
};

enum class Align { Left, Centre, Right };

}  // namespace desktop
