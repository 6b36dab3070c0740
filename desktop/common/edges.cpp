#include "desktop/common/edges.h"

#include <iterator>

namespace desktop::common {

namespace {

/// A frame `line` thick, inside the edges of `box`: above and to the left in one tint, below and to the right
/// in another.
void Outline(Edges& edges, const Rect& box, int line, Tint upper, Tint lower) {
  edges.push_back({{box.left, box.top, box.width, line}, upper});
  edges.push_back({{box.left, box.top, line, box.height}, upper});
  edges.push_back({{box.left, box.Bottom() - line, box.width, line}, lower});
  edges.push_back({{box.Right() - line, box.top, line, box.height}, lower});
}

/// The ground's own colour in the shade.
Colour Darker(Colour ground) {
  const auto part = [ground](int shift) { return (ground.rgb >> shift & 0xFF) * 5 / 8 << shift; };
  return {part(16) | part(8) | part(0)};
}

/// One dot in three on each side.
void Dots(Edges& edges, const Rect& box, int line, Tint tint) {
  const int step = 3 * line;
  for (int x = box.left + line; x < box.Right() - line; x += step) edges.push_back({{x, box.top, line, line}, tint});
  for (int x = box.left + 2 * line; x < box.Right() - line; x += step)
    edges.push_back({{x, box.Bottom() - line, line, line}, tint});
  for (int y = box.top + line; y < box.Bottom() - line; y += step) edges.push_back({{box.left, y, line, line}, tint});
  for (int y = box.top + 2 * line; y < box.Bottom() - line; y += step)
    edges.push_back({{box.Right() - line, y, line, line}, tint});
}

}  // namespace

Edges PanelEdges(const Rect& panel, Colour ground, int line) {
  Edges edges;
  const Tint white{{0xFFFFFF}};
  const Tint dark{Darker(ground)};
  Outline(edges, {panel.left + line, panel.top + line, panel.width - line, panel.height - line}, line, white, white);
  Outline(edges, {panel.left, panel.top, panel.width - line, panel.height - line}, line, dark, dark);
  return edges;
}

Edges BorderEdges(Size form, int border, const Scale& scale) {
  constexpr Colour kUpper[] = {{0xE3E3E3}, {0xFFFFFF}, {0xF0F0F0}};
  constexpr Colour kLower[] = {{0x696969}, {0xA0A0A0}, {0xF0F0F0}};
  constexpr int kInnermost = static_cast<int>(std::size(kUpper)) - 1;
  Edges edges;
  for (int i = 0; i < border; ++i) {
    const Rect edge = scale.Device(Rect::Between(i, i, form.width - i, form.height - i));
    const int shade = std::min(i, kInnermost);
    Outline(edges, edge, scale.Device(i + 1) - scale.Device(i), {kUpper[shade]}, {kLower[shade]});
  }
  return edges;
}

Edges RingEdges(const Rect& ring, const Scale& scale) {
  constexpr Tint kLight{{0xFFFFFF}};
  constexpr Tint kDark{{0x000000}};
  Edges edges;
  for (int i = 0; i < kRingWidth; ++i) {
    const Rect outer = scale.Device(ring.Grown(-i));
    const Rect inner = scale.Device(ring.Grown(-i - 1));
    const Tint tint = i == 0 || i == kRingWidth - 1 ? kLight : kDark;
    edges.push_back({Rect::Between(outer.left, outer.top, outer.Right(), inner.top), tint});
    edges.push_back({Rect::Between(outer.left, inner.Bottom(), outer.Right(), outer.Bottom()), tint});
    edges.push_back({Rect::Between(outer.left, inner.top, inner.left, inner.Bottom()), tint});
    edges.push_back({Rect::Between(inner.Right(), inner.top, outer.Right(), inner.Bottom()), tint});
  }
  return edges;
}

Edges ButtonEdges(const Rect& button, const ButtonLook& look, const ButtonState& state, int line) {
  Edges edges;
  if (state.pressed) edges.push_back({button, look.Pressed});
  if (!state.enabled) edges.push_back({button, look.Disabled});
  const Tint& upper = state.pressed ? look.Shaded : look.Lit;
  const Tint& lower = state.pressed ? look.Lit : look.Shaded;
  // The four sides of the edge do not overlap, as they let the face shine through.
  const Rect edge = button.Grown(-line);
  edges.push_back({{edge.left, edge.top, edge.width, line}, upper});
  edges.push_back({{edge.left, edge.top + line, line, edge.height - line}, upper});
  edges.push_back({{edge.left + line, edge.Bottom() - line, edge.width - line, line}, lower});
  edges.push_back({{edge.Right() - line, edge.top + line, line, edge.height - 2 * line}, lower});
  Outline(edges, button, line, look.Rim, look.Rim);
  if (state.focused) Dots(edges, button.Grown(-3 * line), line, look.Focus);
  return edges;
}

}  // namespace desktop::common
