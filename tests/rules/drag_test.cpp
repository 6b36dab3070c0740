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
  struct Row {
    Spot at;
    int square;
  };
  std::vector<Row> rows{{{6, 156}, 0},           {{5, 156}, kNowhere},   {{6, 155}, kNowhere},   {{105, 255}, 0},
                        {{105.9F, 200}, 0},      {{106, 200}, kNowhere}, {{109, 200}, kNowhere}, {{110, 200}, 1},
                        {{50, 155}, kNowhere},   {{50, 255}, 0},         {{50, 256}, kNowhere},  {{50, 260}, kNowhere},
                        {{625, 200}, 5},         {{626, 200}, kNowhere}, {{300, 300}, kNowhere}, {{-50, 200}, kNowhere},
                        {{2000, 200}, kNowhere}, {{300, -90}, kNowhere}, {{50, 999}, kNowhere}};
  for (int s = 0; s < 6; ++s) rows.push_back({OnSquare(s, 50, 50), s});
  for (const auto& [at, square] : rows)
    for (const int n : {kNote, kFive, kCoin, 0, 25}) {
      SCOPED_TRACE(testing::Message() << at.x << ", " << at.y << ", piece " << n);
      ASSERT_TRUE(play.Press(n));
      EXPECT_EQ(table.MousePointer, PointerShape::Default);
      EXPECT_FALSE(table.Command1.Visible);
      EXPECT_EQ(Total(), n < 20 ? "£190" : n < 40 ? "£195" : "£199");
      ASSERT_TRUE(play.Move(at));
      EXPECT_EQ(table.MousePointer, square == kNowhere ? PointerShape::NoDrop : PointerShape::Default);
      ASSERT_TRUE(play.Release(at));
      if (square == kNowhere) {
        ExpectUntouched();
        continue;
      }
      EXPECT_EQ(Listed(square), std::vector{n});
      EXPECT_EQ(table.Label1[square].Caption, n < 20 ? "£10 Bet" : n < 40 ? "£5 Bet" : "£1 Bet");
      EXPECT_TRUE(table.CupStanding.Enabled && table.Instruction[1].Visible && !table.Command1.Visible);
      EXPECT_EQ(table.MousePointer, PointerShape::Default);
      ASSERT_TRUE(play.Drag(n, kGap));
      ExpectUntouched();
      EXPECT_FALSE(table.CupStanding.Enabled || table.Instruction[1].Visible);
      EXPECT_TRUE(table.Instruction[0].Visible);
    }
}

TEST_F(Drag, SeatsAPieceInsideTheUsableSquare) {
  struct Row {
    int piece;
    Spot corner;  ///< where the piece's corner is let go
    Spot grip;    ///< of the pointer in the piece
    int square;
    Spot seat;
  };
  const Row rows[] = {
      {kNote, {300, 140}, {30, 20}, 3, {318, 156}},  // from above and from the left
      {kNote, {380, 240}, {4, 4}, 3, {359, 217}},    // from below and from the right
      {kNote, {330, 170}, {4, 4}, 3, {330, 170}},   {kFive, {3, 230}, {5, 5}, 0, {6, 220}},
      {kFive, {600, 150}, {10, 10}, 5, {570, 156}}, {kCoin, {40, 190}, {10, 10}, 0, {40, 190}},
      {kCoin, {95, 237}, {10, 10}, 0, {86, 228}},   // in the strip that the caption covers
      {kNote, {80, 170}, {40, 10}, 1, {110, 170}},  // mostly over the neighbour
  };
  for (const auto& [piece, corner, grip, square, seat] : rows) {
    const Spot from{table.HomeLeft[piece] + grip.x, table.HomeTop[piece] + grip.y};
    play.desktop.Drag(from.x, from.y, corner.x + grip.x, corner.y + grip.y);
    EXPECT_EQ(Listed(square), std::vector{piece});
    EXPECT_EQ(table.Money[piece].Left, seat.x);
    EXPECT_EQ(table.Money[piece].Top, seat.y);
    ASSERT_TRUE(play.Drag(piece, kGap));
  }
}

TEST_F(Drag, OffsetsRoundHalfToEvenAndFallTowardsZero) {
  const std::pair<float, float> offsets[] = {{14.4F, 0},   {14.5F, 0},   {14.6F, 1},   {29.5F, 2},
                                             {44.5F, 2},   {45, 3},      {-14, 0},     {-15, -1},
                                             {-29.5F, -2}, {-44.5F, -2}, {-45.5F, -3}, {899, 59}};
  for (const auto& [twips, pixels] : offsets) EXPECT_EQ(thistle::ToPixels(twips), pixels) << twips;

  auto& piece = table.Money[3];
  table.MouseDown(piece, 1, 300, 150);
  table.MouseMove(piece, 1, 450, 150);
  EXPECT_EQ(piece.Left, 218);
  EXPECT_EQ(piece.Top, 288);
  table.MouseMove(piece, 1, 314.5F, 179.5F);
  EXPECT_EQ(piece.Left, 218);
  EXPECT_EQ(piece.Top, 290);
  table.MouseUp(piece, 1, 300, 150);
  ExpectUntouched();
}

TEST_F(Drag, FullSquareSendsAPieceHome) {
  for (int i = 0; i < 4; ++i) ASSERT_TRUE(play.Bet(2, 2, 5 + 15 * static_cast<float>(i), 40));
  ASSERT_TRUE(play.Press(kNote));
  ASSERT_TRUE(play.Move(OnSquare(2)));
  EXPECT_EQ(table.MousePointer, PointerShape::Default);
  ASSERT_TRUE(play.Release(OnSquare(2)));
  EXPECT_EQ(table.Label1[2].Caption, "£14 Bet");

  ASSERT_TRUE(play.Press(kFive));
  ASSERT_TRUE(play.Move(OnSquare(2)));
  EXPECT_EQ(table.MousePointer, PointerShape::NoDrop);
  ASSERT_TRUE(play.Release(OnSquare(2)));
  EXPECT_TRUE(play.IsHome(kFive));
  EXPECT_EQ(table.Label1[2].Caption, "£14 Bet");
  EXPECT_EQ(Total(), "£186");

  // From another square too, and then the stake there is gone.
  ASSERT_TRUE(play.Drag(kFive, OnSquare(4)) && play.Drag(kFive, OnSquare(2)));
  EXPECT_TRUE(play.IsHome(kFive));
  EXPECT_EQ(table.Label1[4].Caption, "");
  EXPECT_EQ(Total(), "£186");

  // A piece lifted off the full square has left it, and may come back.
  ASSERT_TRUE(play.Drag(kNote, OnSquare(2, 60, 60)));
  EXPECT_EQ(Listed(2), (std::vector{49, 48, 47, 46, kNote}));
}

TEST_F(Drag, KeepsTheOrderOfASquare) {
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(play.Drag(49 - i, OnSquare(1, 5 + 18 * static_cast<float>(i))));
  EXPECT_EQ(Listed(1), (std::vector{49, 48, 47, 46, 45}));
  ASSERT_TRUE(play.Press(47));
  EXPECT_EQ(Listed(1), (std::vector{49, 48, 46, 45}));
  EXPECT_EQ(table.Label1[1].Caption, "£4 Bet");
  EXPECT_EQ(Total(), "£195");
  ASSERT_TRUE(play.Release(OnSquare(3)));
  EXPECT_EQ(Listed(3), std::vector{47});
  // A press alone puts a piece at the end.
  ASSERT_TRUE(play.Press(49));
  ASSERT_TRUE(play.Release(play.Grip(49)));
  EXPECT_EQ(Listed(1), (std::vector{48, 46, 45, 49}));
  ASSERT_TRUE(play.Drag(45, kGap));
  EXPECT_EQ(Listed(1), (std::vector{48, 46, 49}));
  EXPECT_EQ(Total(), "£196");
}

TEST_F(Drag, PieceZeroIsAPieceLikeAnyOther) {
  ASSERT_TRUE(play.Drag(0, OnSquare(0)) && play.Drag(1, OnSquare(0, 70)));
  EXPECT_EQ(Listed(0), (std::vector{0, 1}));
  ASSERT_TRUE(play.Drag(0, OnSquare(5)));
  EXPECT_EQ(Listed(0), std::vector{1});
  EXPECT_EQ(Listed(5), std::vector{0});
}

TEST_F(Drag, OnlyStakeInHandTakesTheCupWithIt) {
  ASSERT_TRUE(play.Bet(1, 3));
  ASSERT_TRUE(play.Press(kFive));
  EXPECT_FALSE(table.CupStanding.Enabled || table.Instruction[1].Visible);
  EXPECT_EQ(table.Label1[3].Caption, "");
  ASSERT_TRUE(play.Release(OnSquare(0)));
  EXPECT_TRUE(table.CupStanding.Enabled && table.Instruction[1].Visible);
  EXPECT_EQ(table.Label1[0].Caption, "£5 Bet");
  ASSERT_TRUE(play.Bet(2, 3));
  ASSERT_TRUE(play.Press(kFive));
  EXPECT_TRUE(table.CupStanding.Enabled && table.Instruction[1].Visible);
  ASSERT_TRUE(play.Release(kGap));
}

TEST_F(Drag, PressAloneOnAPileChangesNothing) {
  ASSERT_TRUE(play.Press(6));
  ASSERT_TRUE(play.Release(play.Grip(6)));
  ExpectUntouched();
}

TEST_F(Drag, RightButtonCarriesNothing) {
  const Spot grip = play.Grip(kNote);
  play.desktop.Press(grip.x, grip.y, kRightButton);
  play.desktop.Move(50, 200);
  play.desktop.Release(50, 200, kRightButton);
  ExpectUntouched();

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
  ASSERT_TRUE(play.Release(kGap));
  ExpectUntouched();
}

TEST_F(Drag, LeftReleaseCarriesThePieceAlsoWithTheRightButtonDown) {
  ASSERT_TRUE(play.Press(kNote) && play.Move(OnSquare(0, 30, 30)));
  play.desktop.Press(36, 186, kRightButton);
  ASSERT_TRUE(play.Move(OnSquare(4, 30, 30)) && play.Release(OnSquare(4, 30, 30)));
  EXPECT_EQ(Listed(4), std::vector{kNote});
  play.desktop.Release(452, 186, kRightButton);
  EXPECT_EQ(Listed(4), std::vector{kNote});
}

TEST_F(Drag, MouseTakenAwaySendsThePieceHome) {
  const std::function<void()> losses[] = {
      [&] { play.desktop.LoseMouse(); },
      [&] { play.desktop.Menu("mnuExit"); },
      [&] { play.frame->MenuClick("mnuNewGame"); },  // its question opens while the piece is in hand
      [&] { play.desktop.SetState(desktop::WindowState::Minimised); },
      [&] { play.desktop.Press(26, 176); },  // the release before was never delivered
  };
  for (const auto& lose : losses)
    for (const bool staked : {false, true}) {
      if (staked) {
        ASSERT_TRUE(play.Drag(kCoin, OnSquare(5)));
      }
      ASSERT_TRUE(play.Press(kCoin) && play.Move(OnSquare(1)));
      play.desktop.answers = {false};
      lose();
      ExpectUntouched();
      ASSERT_TRUE(play.Release(OnSquare(2)));
      ExpectUntouched();
      EXPECT_FALSE(table.CupStanding.Enabled && staked);
      play.desktop.SetState(desktop::WindowState::Normal);
    }
}

TEST_F(Drag, NewGameTakesThePieceOutOfTheHand) {
  ASSERT_TRUE(play.Bet(0, 3) && play.Press(kFive) && play.Move(OnSquare(2)));
  table.NewGame();
  EXPECT_EQ(play.desktop.InHand(), nullptr);
  ASSERT_TRUE(play.Release(OnSquare(4)));
  ExpectUntouched();
  EXPECT_TRUE(table.CupStanding.Enabled);
  ASSERT_TRUE(play.Bet(2, 4));
  EXPECT_EQ(Listed(4), std::vector{kCoin});
}

TEST_F(Drag, ClosingTheFrameCountsThePieceInHand) {
  ASSERT_TRUE(play.Bet(0, 3) && play.Press(kFive));
  play.Do([&] { play.desktop.CloseFrame(); });
  ASSERT_TRUE(play.ended);
  EXPECT_EQ(play.money().MoneyCount, (std::array<std::int64_t, 3>{12, 12, 10}));
}

}  // namespace
