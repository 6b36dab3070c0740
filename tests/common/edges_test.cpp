// Edges as filled rectangles.
#include "desktop/common/edges.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using namespace desktop::common;

/// The colour that comes to lie on a pixel, or 0.
std::uint32_t At(const Edges& edges, int x, int y) {
  std::uint32_t colour = 0;
  for (const auto& [place, tint] : edges)
    if (place.Meets({x, y, 1, 1})) colour = tint.Over.rgb;
  return colour;
}

TEST(Edges, APanelsGrooveIsLitFromAboveAndFromTheLeft) {
  for (const int line : {1, 2}) {
    const Edges edges = PanelEdges({10, 20, 60, 40}, {0xFFFF80}, line);
    for (const auto& [x, y] : {std::pair{30, 20}, {10, 40}, {30, 60 - 2 * line}, {70 - 2 * line, 40}})
      EXPECT_EQ(At(edges, x, y), 0x9F9F50U) << x << ", " << y;
    for (const auto& [x, y] : {std::pair{30, 20 + line}, {10 + line, 40}, {30, 60 - line}, {70 - line, 40}})
      EXPECT_EQ(At(edges, x, y), 0xFFFFFFU) << x << ", " << y;
    EXPECT_EQ(At(edges, 40, 40), 0U);
  }
}

TEST(Edges, ABorderOfAnyWidthIsRaised) {
  for (const int border : {0, 1, 3, 5}) {
    const Edges edges = BorderEdges({50, 40}, border, Scale(1));
    EXPECT_EQ(At(edges, border, border), 0U);
    EXPECT_EQ(At(edges, 49 - border, 39 - border), 0U);
    for (int line = 0; line < border; ++line) {
      constexpr std::uint32_t kUpper[] = {0xE3E3E3, 0xFFFFFF, 0xF0F0F0, 0xF0F0F0, 0xF0F0F0};
      constexpr std::uint32_t kLower[] = {0x696969, 0xA0A0A0, 0xF0F0F0, 0xF0F0F0, 0xF0F0F0};
      EXPECT_EQ(At(edges, line, 20), kUpper[line]);
      EXPECT_EQ(At(edges, 20, line), kUpper[line]);
      EXPECT_EQ(At(edges, 49 - line, 20), kLower[line]);
      EXPECT_EQ(At(edges, 20, 39 - line), kLower[line]);
    }
  }
  // At an odd scale the lines share what the border has.
  const Edges scaled = BorderEdges({50, 40}, 3, Scale(1.5));
  EXPECT_NE(At(scaled, 4, 30), 0U);
  EXPECT_EQ(At(scaled, 5, 30), 0U);
}

TEST(Edges, AButtonsStateIsSeenOnItsEdges) {
  constexpr desktop::ButtonLook kLook{.Rim = {{1}},
                                      .Lit = {{2}, 170},
                                      .Shaded = {{3}, 150},
                                      .Focus = {{4}},
                                      .Pressed = {{5}, 56},
                                      .Disabled = {{6}, 112},
                                      .DeadCaption = {7}};
  for (const int line : {1, 2}) {
    const Rect button{0, 0, 60, 40};
    const auto look = [&](const ButtonState& state, int x, int y) {
      return At(ButtonEdges(button, kLook, state, line), x * line, y * line);
    };
    const int right = 60 / line - 1;
    for (const bool pressed : {false, true}) {
      const ButtonState state{.pressed = pressed};
      EXPECT_EQ(look(state, 0, 9), 1U);
      EXPECT_EQ(look(state, 1, 9), pressed ? 3U : 2U);
      EXPECT_EQ(look(state, right - 1, 9), pressed ? 2U : 3U);
      EXPECT_EQ(look(state, right, 9), 1U);
      EXPECT_EQ(look(state, 10, 10), pressed ? 5U : 0U);
    }
    EXPECT_EQ(look({.enabled = false}, 10, 10), 6U);
    std::map<std::uint32_t, int> top;
    for (int x = 4; x < 13; ++x) ++top[look({.focused = true}, x, 3)];
    EXPECT_EQ(top, (std::map<std::uint32_t, int>{{0U, 6}, {4U, 3}})) << "one dot in three";
    EXPECT_EQ(look({}, 4, 3), 0U);
  }
}

TEST(Edges, TheRingHasFourLinesWithoutGapsAtEachScale) {
  for (const double ratio : {1., 1.25, 1.5, 1.75, 2., 3.}) {
    const Scale scale(ratio);
    const Rect ring = scale.Device(Rect{3, 5, 50, 40});
    const auto edges = RingEdges({3, 5, 50, 40}, scale);
    for (const auto& [x, y] : {std::pair{1, 20}, {48, 20}, {20, 1}, {20, 38}})
      EXPECT_EQ(At(edges, scale.Device(3 + x), scale.Device(5 + y)), 0x000000U) << ratio;
    int covered = 0;
    for (const auto& edge : edges) covered += edge.place.width * edge.place.height;
    const Rect inside = scale.Device(Rect{7, 9, 42, 32});
    EXPECT_EQ(covered, ring.width * ring.height - inside.width * inside.height) << ratio;
  }
}

}  // namespace
