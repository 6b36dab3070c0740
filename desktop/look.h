// Colours and type of what stands on a form.
#pragma once

#include <cstdint>

namespace desktop {

/// A colour as #RRGGBB.
struct Colour {
  std::uint32_t rgb = 0;
  bool operator==(const Colour&) const = default;
};

/// A colour that is laid over what is there: 0 leaves that as it is, 255 covers it.
struct Tint {
  Colour Over;
  int Strength = 255;
  bool operator==(const Tint&) const = default;
};

/// What is drawn over the face of a push button.
struct ButtonLook {
  Tint Rim;            ///< the line around it
  Tint Lit;            ///< edges above and to the left; below and to the right while it is pressed
  Tint Shaded;         ///< the edges opposite
  Tint Focus;          ///< the dots around the caption of the one that has the keyboard
  Tint Pressed;        ///< over the whole face
  Tint Disabled;       ///< over the whole face
  Colour DeadCaption;  ///< of a disabled one
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
