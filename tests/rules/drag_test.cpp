// The gesture: where a piece ends, and what the figures say at every moment of it.
#include <gtest/gtest.h>

#include "table/twips.h"
#include "tests/simulated/ledger.h"

namespace {

using desktop::kRightButton;
using desktop::PointerShape;
using simulated::kGap;
using simulated::OnSquare;
using simulated::Spot;

constexpr int kNote = 12;  // the rightmost of each pile
constexpr int kFive = 31;
constexpr int kCoin = 49;
constexpr int kNowhere = -1;

class Drag : public testing::Test {
 protected:
  /// The pieces listed on a square.
  std::vector<int> Listed(int square) {
    const auto& row = table.BetPieces[square];
    return {row.begin() + 1, row.begin() + 1 + row[0]};
  }
  std::string Total() { return table.Label3[3].Caption; }
  void ExpectUntouched() {
    EXPECT_EQ(Total(), "£200");
    EXPECT_EQ(play.money().MoneyCount, (std::array<std::int64_t, 3>{13, 12, 10}));
    for (int n = 0; n < 60; ++n) EXPECT_TRUE(play.IsHome(n)) << n;
    EXPECT_TRUE(table.Command1.Visible);
    EXPECT_EQ(table.MousePointer, PointerShape::Default);
  }

  simulated::AtTable play;
  thistle::frmGame& table = play.table();
  simulated::Ledger ledger{play};
};

TEST_F(Drag, EndsOnTheSquareUnderThePointerOrAtHome) {
  const std::pair<Spot, int> rows[] = {
      {{6, 156}, 0},    {{5, 156}, kNowhere}, {{6, 155}, kNowhere},    {{105.9F, 255}, 0},    {{106, 200}, kNowhere},
      {{110, 200}, 1},  {{50, 255}, 0},       {{50, 256}, kNowhere},   {{625, 200}, 5},       {{626, 200}, kNowhere},
      {OnSquare(2), 2}, {OnSquare(3), 3},     {{2000, 200}, kNowhere}, {{300, -90}, kNowhere}};
  for (const auto& [at, square] : rows)
    for (const int n : {kNote, kFive, kCoin, 0}) {
      SCOPED_TRACE(testing::Message() << at.x << ", " << at.y << ", piece " << n);
      ASSERT_TRUE(play.Press(n));
      EXPECT_EQ(table.MousePointer, PointerShape::Default);
      EXPECT_FALSE(table.Command1.Visible);
      EXPECT_EQ(Total(), n < 20 ? "£190" : n < 40 ? "£195" : "£199");
      ASSERT_TRUE(play.Move(at));
      EXPECT_EQ(table.MousePointer, square == kNowhere ? PointerShape::NoDrop : PointerShape::Default);
      ASSERT_TRUE(play.Release(at));
      if (square != kNowhere) {
        EXPECT_EQ(Listed(square), std::vector{n});
        EXPECT_EQ(table.Label1[square].Caption, n < 20 ? "£10 Bet" : n < 40 ? "£5 Bet" : "£1 Bet");
        EXPECT_TRUE(table.CupStanding.Enabled && table.Instruction[1].Visible && !table.Command1.Visible);
        ASSERT_TRUE(play.Drag(n, kGap));
        EXPECT_FALSE(table.CupStanding.Enabled || table.Instruction[1].Visible);
      }
      ExpectUntouched();
    }
}

TEST(Offsets, RoundHalfToEvenAndFallTowardsZero) {
  const std::pair<float, float> offsets[] = {{14.4F, 0}, {14.5F, 0},   {14.6F, 1},   {29.5F, 2},   {44.5F, 2}, {45, 3},
                                             {-15, -1},  {-29.5F, -2}, {-44.5F, -2}, {-45.5F, -3}, {899, 59}};
  for (const auto& [twips, pixels] : offsets) EXPECT_EQ(thistle::ToPixels(twips), pixels) << twips;
}

TEST_F(Drag, FullSquareSendsAPieceHome) {
  for (int i = 0; i < 4; ++i) ASSERT_TRUE(play.Bet(2, 2, 5 + 15 * static_cast<float>(i), 40));
  ASSERT_TRUE(play.Drag(kNote, OnSquare(2, 5, 5)));
  EXPECT_EQ(table.Label1[2].Caption, "£14 Bet");

  ASSERT_TRUE(play.Press(kFive) && play.Move(OnSquare(2)));
  EXPECT_EQ(table.MousePointer, PointerShape::NoDrop);
  ASSERT_TRUE(play.Release(OnSquare(2)));
  EXPECT_TRUE(play.IsHome(kFive));
  EXPECT_FALSE(table.Command1.Visible);  // there is no change while there is a bet

  // From another square too, and then the stake there is gone.
  ASSERT_TRUE(play.Drag(kFive, OnSquare(4)) && play.Drag(kFive, OnSquare(2)));
  EXPECT_TRUE(play.IsHome(kFive));
  EXPECT_EQ(table.Label1[4].Caption, "");
  EXPECT_EQ(Total(), "£186");

  // A piece lifted off the full square has left it, and may come back: a press alone puts it at the end.
  ASSERT_TRUE(play.Press(47));
  EXPECT_EQ(Listed(2), (std::vector{49, 48, 46, kNote}));
  EXPECT_EQ(table.Label1[2].Caption, "£13 Bet");
  ASSERT_TRUE(play.Release(play.Grip(47)));
  EXPECT_EQ(Listed(2), (std::vector{49, 48, 46, kNote, 47}));
  ASSERT_TRUE(play.Drag(49, OnSquare(3)));
  EXPECT_EQ(Listed(2), (std::vector{48, 46, kNote, 47}));
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

TEST_F(Drag, MouseTakenAwaySendsThePieceHome) {
  const std::function<void()> losses[] = {
      [&] { play.desktop.LoseMouse(); },
      [&] { play.frame->MenuClick("mnuNewGame"); },  // its question opens while the piece is in hand
      [&] { table.NewGame(); },
  };
  for (const auto& lose : losses) {
    ASSERT_TRUE(play.Drag(kCoin, OnSquare(5)) && play.Press(kCoin) && play.Move(OnSquare(1)));
    play.desktop.answers = {false};
    lose();
    ExpectUntouched();
    ASSERT_TRUE(play.Release(OnSquare(2)));
    ExpectUntouched();
    EXPECT_FALSE(table.CupStanding.Enabled);
  }
}

TEST_F(Drag, ClosingTheFrameCountsThePieceInHand) {
  ASSERT_TRUE(play.Bet(0, 3) && play.Press(kFive));
  EXPECT_FALSE(play.Do([&] { play.desktop.CloseFrame(); }));
  EXPECT_EQ(play.money().MoneyCount, (std::array<std::int64_t, 3>{12, 12, 10}));
}

}  // namespace
