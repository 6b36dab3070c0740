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

struct ButtonState {
  bool pressed = false;
  bool focused = false;
  bool enabled = true;
};

/// What lies over the face of a button: how it is shaded, its edges, and the dots of the focus.
Edges ButtonEdges(const Rect& button, const ButtonLook& look, const ButtonState& state, int line);

}  // namespace desktop::common
