// What the piles show of the money, and in which order things lie over one another.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulated/ledger.h"

namespace {

using simulated::AtTable;
using simulated::OnSquare;

/// A pile of notes, slot by slot: a piece or a gap.
std::string TenPoundNotes(simulated::Play& play) {
  std::string slots;
  for (int n = 0; n < 20; ++n) slots += play.table().Money[n].Visible && play.IsHome(n) ? 'I' : '.';
  return slots;
}

/// How many elements lie behind this one.
auto Layer(simulated::Play& play, const desktop::Element& element) {
  return std::ranges::find(play.table().Graphics(), &element) - play.table().Graphics().begin();
}

TEST(Piles, GapsAndSurplusWaitForTheNextRedraw) {
  AtTable play({27, 0, 1});
  const simulated::Ledger ledger(play);
  for (const int n : {19, 4, 5, 6, 0}) ASSERT_TRUE(play.Drag(n, OnSquare(n % 6)));
  EXPECT_EQ(TenPoundNotes(play), ".III...IIIIIIIIIIII.");
  EXPECT_EQ(play.money().MoneyCount[0], 22);

  play.DealThrow(2, 2, 2);
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(TenPoundNotes(play), std::string(20, 'I'));
  EXPECT_EQ(play.money().MoneyCount[0], 22);
}

TEST(Layers, PieceInHandThenPilesThenTheLastLetGo) {
  AtTable play;
  auto& table = play.table();
  ASSERT_TRUE(play.Drag(12, OnSquare(0, 5, 5)) && play.Drag(49, OnSquare(0, 60, 60)) && play.Press(12));
  EXPECT_EQ(table.Graphics().back(), &table.Money[12]);
  ASSERT_TRUE(play.Release(OnSquare(0, 30, 30)));
  EXPECT_LT(Layer(play, table.Image1[5]), Layer(play, table.Money[49]));
  EXPECT_LT(Layer(play, table.Money[49]), Layer(play, table.Money[12]));
  // Inside a pile each slot lies over its left neighbour, and coins over notes.
  auto previous = Layer(play, table.Money[12]);
  for (int n = 0; n < 60; ++n) {
    if (!table.Money[n].Visible || !play.IsHome(n)) continue;
    EXPECT_GT(Layer(play, table.Money[n]), previous) << n;
    previous = Layer(play, table.Money[n]);
  }
}

}  // namespace
