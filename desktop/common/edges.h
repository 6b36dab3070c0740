// Borders, grooves and button edges as lists of filled rectangles, in device pixels.
#pragma once

#include <vector>

#include "desktop/common/scale.h"
#include "desktop/look.h"

namespace desktop::common {

struct Filled {
  Rect place;
  Tint tint;
  bool operator==(const Filled&) const = default;
};

/// To be filled one after the other.
using Edges = std::vector<Filled>;

/// A panel's groove, lit from above and from the left. `line` is the thickness of its lines.
Edges PanelEdges(const Rect& panel, Colour ground, int line);

/// A fixed dialog's border, `border` of the layout's pixels wide on each side of a form of this size: raised, lit from
/// above and from the left.
Edges BorderEdges(Size form, int border, const Scale& scale);

/// The layout's pixels that a ring takes on each side around what it tells of.
inline constexpr int kRingWidth = 4;

/// The ring that shows where the keyboard is: dark between two light lines, to be seen on any ground. `ring` is its
/// outer edge, in the layout's pixels.
Edges RingEdges(const Rect& ring, const Scale& scale);

struct ButtonState {
  bool pressed = false;
  bool focused = false;
  bool enabled = true;
};

/// What lies over the face of a button: how it is shaded, its edges, and the dots of the focus.
Edges ButtonEdges(const Rect& button, const ButtonLook& look, const ButtonState& state, int line);

}  // namespace desktop::common
