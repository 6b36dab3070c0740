// Where everything stands, in pixels, and what lies over what.
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

TEST(Places, FixedElementsOfTheTable) {
  AtTable play;
  const auto& table = play.table();
  EXPECT_EQ(table.Width, 632);
  EXPECT_EQ(table.Height, 406);
  const std::pair<const Element*, Rectangle> places[] = {
      {&table.Shape1, {2, 152, 628, 116}},          {&table.Dice[0], {312, 40, 92, 105}},
      {&table.Dice[1], {416, 8, 92, 105}},          {&table.Dice[2], {520, 24, 92, 105}},
      {&table.CupStanding, {0, 24, 91, 117}},       {&table.CupCentre, {64, 8, 89, 137}},
      {&table.CupLeft, {24, 8, 111, 140}},          {&table.CupRight, {80, 8, 111, 142}},
      {&table.CupThrow, {168, 0, 118, 150}},        {&table.Label2[0], {8, 272, 169, 25}},
      {&table.Label2[1], {8, 296, 121, 25}},        {&table.Label2[2], {8, 324, 121, 25}},
      {&table.Label2[3], {8, 352, 121, 25}},        {&table.Label2[4], {8, 380, 121, 25}},
      {&table.Label3[0], {128, 296, 41, 17}},       {&table.Label3[1], {128, 324, 41, 17}},
      {&table.Label3[2], {128, 352, 41, 17}},       {&table.Label3[3], {128, 380, 41, 17}},
      {&table.Instruction[0], {420, 280, 208, 34}}, {&table.Instruction[1], {420, 314, 208, 38}},
      {&table.Command1, {480, 376, 89, 25}},
  };
  for (const auto& [element, place] : places) ExpectAt(*element, place);
}

TEST(Places, SquaresSlotsAndPiles) {
  AtTable play;
  const auto& table = play.table();
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
    EXPECT_EQ(table.HomeLeft[n], place.left);
    EXPECT_EQ(table.HomeTop[n], place.top);
  }
  for (int p = 0; p < 90; ++p) {
    const int left = 8 + 104 * (p / 15) + 8 * (p % 5);
    const int top = 160 + 8 * (p % 15 / 5);
    ExpectAt(table.Payout[p], {static_cast<float>(left), static_cast<float>(top), 59, 31});
  }
  ExpectAt(table.Payout[89], {560, 176, 59, 31});
}

TEST(Places, OpeningForm) {
  simulated::Store store;
  simulated::Play play(store);
  ASSERT_TRUE(play.Start());
  const auto& splash = play.frame->Splash;
  EXPECT_EQ(splash.Width, 632);
  EXPECT_EQ(splash.Height, 406);
  ExpectAt(splash.fraMainFrame, {8, 0, 615, 297});
  ExpectAt(splash.Image1, {16, 24, 128, 128});
  ExpectAt(splash.lblCompanyProduct, {144, 24, 468, 36});
  ExpectAt(splash.lblWarning, {144, 80, 468, 45});
  ExpectAt(splash.lblProductName, {144, 128, 468, 63});
  ExpectAt(splash.Instructions, {8, 312, 150, 81});
  ExpectAt(splash.cmdOptions, {163, 312, 150, 81});
  ExpectAt(splash.PlayGame, {318, 312, 150, 81});
  ExpectAt(splash.ExitButton, {473, 312, 150, 81});
}

TEST(Places, LayersOfTheOpenTable) {
  // Runs of elements from back to front: the pieces on show have come to the front at the load.
  struct Run {
    std::string_view name;
    std::vector<int> indices;
  };
  std::vector<Run> runs{{"Shape1", {0}},
                        {"Dice", {0, 2, 1}},
                        {"CupThrow", {0}},
                        {"CupStanding", {0}},
                        {"CupLeft", {0}},
                        {"CupRight", {0}},
                        {"CupCentre", {0}},
                        {"Image1", {0, 1, 2, 3, 4, 5}},
                        {"Label1", {0, 1, 2, 3, 4, 5}},
                        {"Label2", {1, 2, 3, 4, 0}},
                        {"Label3", {0, 1, 2, 3}}};
  Run hidden{"Money", {}};
  Run shown{"Money", {}};
  for (int n = 0; n < 60; ++n) (n % 20 < std::array{13, 12, 10}[n / 20] ? shown : hidden).indices.push_back(n);
  Run slots{"Payout", {}};
  for (int p = 0; p < 90; ++p) slots.indices.push_back(p);
  for (const Run& run : {hidden, Run{"Instruction", {0, 1}}, slots, shown}) runs.push_back(run);

  AtTable play;
  const auto& layers = play.table().Graphics();
  std::size_t at = 0;
  for (const auto& [name, indices] : runs)
    for (const int index : indices) {
      ASSERT_LT(at, layers.size());
      EXPECT_EQ(layers[at]->Name, name) << at;
      EXPECT_EQ(layers[at]->Index, index) << at;
      ++at;
    }
  EXPECT_EQ(at, layers.size());
  EXPECT_EQ(play.table().Controls(), std::vector<Element*>{&play.table().Command1});
}

}  // namespace
