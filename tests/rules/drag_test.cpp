// The gesture: where a piece ends, and what the figures say at every moment of it.
#include <gtest/gtest.h>

#include "table/twips.h"
#include "tests/simulated/ledger.h"

namespace {

using desktop::kRightButton;
using desktop::PointerShape;
using simulated::OnSquare;

constexpr int kNote = 12;  // the rightmost of each pile
constexpr int kFive = 31;
constexpr int kCoin = 49;

class Drag : public testing::Test {
 protected:
  /// The pieces listed on a square.
  std::vector<int> Listed(int square) {
    const auto& row = table.BetPieces[square];
    return {row.begin() + 1, row.begin() + 1 + row[0]};
  }
  std::string Total() { return table.Label3[3].Caption; }

  simulated::AtTable play;
  thistle::frmGame& table = play.table();
  simulated::Ledger ledger{play};
};

TEST(Offsets, RoundHalfToEvenAndFallTowardsZero) {
  const std::pair<float, float> offsets[] = {{14.4F, 0}, {14.5F, 0},   {14.6F, 1},   {29.5F, 2},   {44.5F, 2}, {45, 3},
                                             {-15, -1},  {-29.5F, -2}, {-44.5F, -2}, {-45.5F, -3}, {899, 59}};
  for (const auto& [twips, pixels] : offsets) EXPECT_EQ(thistle::ToPixels(twips), pixels) << twips;
}

TEST_F(Drag, FullSquareSendsAPieceHome) {
  for (int i = 0; i < 4; ++i) ASSERT_TRUE(play.Bet(2, 2, 5 + 15 * static_cast<float>(i), 40));
  ASSERT_TRUE(play.Drag(kNote, OnSquare(2, 5, 5)) && play.Press(kFive) && play.Move(OnSquare(2)));
  EXPECT_EQ(table.MousePointer, PointerShape::NoDrop);
  ASSERT_TRUE(play.Release(OnSquare(2)));
  EXPECT_TRUE(play.IsHome(kFive));

  // A piece lifted off the full square has left it, and may come back: a press alone puts it at the end.
  ASSERT_TRUE(play.Press(47));
  EXPECT_EQ(Listed(2), (std::vector{49, 48, 46, kNote}));
  ASSERT_TRUE(play.Release(play.Grip(47)));
  EXPECT_EQ(Listed(2), (std::vector{49, 48, 46, kNote, 47}));
}

TEST_F(Drag, RightButtonCarriesNothing) {
  // Pressed during a drag it stops the piece until it is up again.
  ASSERT_TRUE(play.Press(kNote) && play.Move({300, 300}));
  play.desktop.Press(300, 300, kRightButton);
  EXPECT_EQ(Total(), "£190");
  ASSERT_TRUE(play.Move(OnSquare(0)));
  EXPECT_EQ(table.Money[kNote].Left, 296);
  play.desktop.Release(26, 176, kRightButton);
  EXPECT_EQ(table.Money[kNote].Left, 296);
  ASSERT_TRUE(play.Move(OnSquare(0, 30, 30)));
  EXPECT_EQ(table.Money[kNote].Left, 32);

  // The left release counts while it is down.
  play.desktop.Press(36, 186, kRightButton);
  ASSERT_TRUE(play.Move(OnSquare(4, 30, 30)) && play.Release(OnSquare(4, 30, 30)));
  play.desktop.Release(452, 186, kRightButton);
  EXPECT_EQ(Listed(4), std::vector{kNote});
}

TEST_F(Drag, ClosingTheFrameCountsThePieceInHand) {
  ASSERT_TRUE(play.Bet(0, 3) && play.Press(kFive));
  EXPECT_FALSE(play.Do([&] { play.desktop.CloseFrame(); }));
  EXPECT_EQ(play.money().MoneyCount, (std::array<std::int64_t, 3>{12, 12, 10}));
}

}  // namespace
