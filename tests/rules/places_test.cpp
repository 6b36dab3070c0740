// Where everything on the table stands, in pixels.
#include <gtest/gtest.h>

#include "tests/simulated/play.h"

namespace {

using desktop::Element;
using simulated::AtTable;

struct Rectangle {
  float left, top, width, height;
};

void ExpectAt(const Element& element, const Rectangle& place) {
  const std::string which = std::string(element.Name) + " " + std::to_string(element.Index);
  EXPECT_EQ(element.Left, place.left) << which;
  EXPECT_EQ(element.Top, place.top) << which;
  EXPECT_EQ(element.Width, place.width) << which;
  EXPECT_EQ(element.Height, place.height) << which;
}

TEST(Places, OfTheTable) {
  AtTable play;
  const auto& table = play.table();
  const std::pair<const Element*, Rectangle> places[] = {
      {&table.Shape1, {2, 152, 628, 116}},     {&table.Dice[0], {312, 40, 92, 105}},
      {&table.Dice[1], {416, 8, 92, 105}},     {&table.Dice[2], {520, 24, 92, 105}},
      {&table.CupStanding, {0, 24, 91, 117}},  {&table.CupCentre, {64, 8, 89, 137}},
      {&table.CupLeft, {24, 8, 111, 140}},     {&table.CupRight, {80, 8, 111, 142}},
      {&table.CupThrow, {168, 0, 118, 150}},   {&table.Label3[3], {128, 380, 41, 17}},
      {&table.Command1, {480, 376, 89, 25}},   {&table.Payout[0], {8, 160, 59, 31}},
      {&table.Payout[21], {120, 168, 59, 31}}, {&table.Payout[89], {560, 176, 59, 31}},
  };
  for (const auto& [element, place] : places) ExpectAt(*element, place);
  for (int i = 0; i < 6; ++i) {
    const auto left = static_cast<float>(6 + 104 * i);
    ExpectAt(table.Image1[i], {left, 156, 100, 100});
    ExpectAt(table.Label1[i], {left, 248, 100, 16});
  }
  constexpr Rectangle kPiles[] = {{184, 288, 59, 31}, {184, 322, 56, 28}, {184, 352, 20, 20}};
  for (int n = 0; n < 60; ++n) {
    auto place = kPiles[n / 20];
    place.left += static_cast<float>(8 * (n % 20));
    ExpectAt(table.Money[n], place);
  }
}

TEST(Places, LayersFromBackToFront) {
  AtTable play;
  std::string names;
  std::string_view last;
  for (const auto* element : play.table().Graphics())
    if (element->Name != last) names += std::string(last = element->Name) + " ";
  // The pieces on show have come to the front at the load.
  EXPECT_EQ(names,
            "Shape1 Dice CupThrow CupStanding CupLeft CupRight CupCentre Image1 Label1 Label2 Label3 Money Instruction "
            "Payout Money ");
}

}  // namespace
