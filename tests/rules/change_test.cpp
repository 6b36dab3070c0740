// "Get Change": when it is on offer, and the exchange.
#include <gtest/gtest.h>

#include <set>

#include "tests/simulated/ledger.h"
#include "tests/simulated/recorder.h"

namespace {

using simulated::AtTable;
using simulated::Ledger;
using simulated::Lines;
using simulated::OnSquare;
using Counts = std::array<std::int64_t, 3>;

TEST(Change, BreaksDownFromTheTopClickByClick) {
  struct Row {
    Counts after;
    double seconds;
  };
  // The button is on offer before each click, and gone after the last.
  const std::vector<std::vector<Row>> games{
      {{{13, 12, 10}, 0},
       {{12, 13, 15}, 2.25},
       {{11, 14, 20}, 2.25},
       {{10, 16, 20}, 0.75},
       {{9, 18, 20}, 0.75},
       {{8, 20, 20}, 0.75}},
      {{{1, 0, 3}, 0}, {{0, 1, 8}, 2.25}, {{0, 0, 13}, 1.5}},
      {{{2, 19, 19}, 0}, {{1, 20, 24}, 2.25}},
      {{{1, 19, 20}, 0}, {{0, 21, 20}, 0.75}},
      {{{1, 20, 19}, 0}, {{1, 19, 24}, 1.5}, {{0, 21, 24}, 0.75}},
      {{{0, 2, 18}, 0}, {{0, 1, 23}, 1.5}},
      {{{0, 0, 50}, 0}},
      {{{0, 1, 20}, 0}},
  };
  for (const auto& game : games) {
    AtTable play(game[0].after);
    const Ledger ledger(play);
    for (std::size_t click = 1; click < game.size(); ++click) {
      ASSERT_TRUE(play.table().Command1.Visible);
      const double start = play.desktop.Clock();
      ASSERT_TRUE(play.ClickChange());
      EXPECT_EQ(play.money().MoneyCount, game[click].after);
      EXPECT_NEAR(play.desktop.Clock() - start, game[click].seconds, 1e-9);
    }
    EXPECT_FALSE(play.table().Command1.Visible);
  }
}

TEST(Change, PieceByPiece) {
  AtTable play({1, 0, 3});
  simulated::Recorder recorder(play);
  recorder.WatchPieces();
  recorder.WatchTotal();
  recorder.Watch("new coin", [&] { return std::string(play.table().Money[43].Enabled ? "live" : "dead"); });
  recorder.Start();
  ASSERT_TRUE(play.ClickChange());
  EXPECT_EQ(recorder.lines, (Lines{"0.000 Money(0)=gone", "0.000 total=£3",           //
                                   "0.250 Money(20)=in its pile", "0.250 total=£8",   //
                                   "0.500 Money(21)=in its pile", "0.500 total=£13",  //
                                   "0.750 Money(21)=gone", "0.750 total=£8",          //
                                   "1.000 Money(43)=in its pile", "1.000 total=£9",   //
                                   "1.250 Money(44)=in its pile", "1.250 total=£10",  //
                                   "1.500 Money(45)=in its pile", "1.500 total=£11",  //
                                   "1.750 Money(46)=in its pile", "1.750 total=£12",  //
                                   "2.000 Money(47)=in its pile", "2.000 total=£13",  //
                                   "2.250 new coin=live"}));
}

TEST(Change, SecondClickRunsInsideTheFirst) {
  for (int rest = 1; rest <= 9; ++rest) {
    AtTable play({4, 1, 2});
    const Ledger ledger(play);
    play.desktop.InRest(rest, [&] { play.ClickChange(); });
    ASSERT_TRUE(play.ClickChange());
    EXPECT_EQ(play.money().MoneyCount, (Counts{2, 3, 12})) << rest;
    // The rest of the wait that was broken into runs out meanwhile.
    EXPECT_NEAR(play.desktop.Clock(), 2 * 2.25 - 0.125, 1e-9);
  }
}

TEST(Change, PiecesAndCupWaitForItsEnd) {
  AtTable play({1, 1, 3});
  const Ledger ledger(play);
  // The left button is down on the cup before the exchange starts from the keyboard.
  play.desktop.Press(45, 80);
  play.desktop.SetFocus(play.table(), play.table().Command1);
  play.desktop.InRest(1, [&] { play.desktop.Release(45, 80); });
  int tried = 0;
  for (int rest = 3; rest <= 17; rest += 2)
    play.desktop.InRest(rest, [&] {
      ++tried;
      ASSERT_TRUE(play.Press(20) && play.Move(OnSquare(0)));
      EXPECT_EQ(play.desktop.InHand(), nullptr);
      ASSERT_TRUE(play.Release(OnSquare(0)) && play.Drag(41, OnSquare(3)) && play.ThrowCup());
    });
  ASSERT_TRUE(play.Do([&] { play.desktop.Space(); }));
  EXPECT_EQ(tried, 8);
  EXPECT_EQ(play.desktop.drawn, 3);
  EXPECT_EQ(play.money().MoneyCount, (Counts{0, 2, 8}));
  ASSERT_TRUE(play.Drag(41, OnSquare(3)));
  EXPECT_EQ(play.table().BetValue[3], 1);
}

TEST(Change, WhoeverLeavesInTheMiddleOfItKeepsItsOutcome) {
  constexpr int kNever = 1000;
  // Clicks at some rests, each inside the exchange before; then the frame is closed at one rest after the other.
  const auto play = [](const std::set<int>& clicks, int closing, bool& ended) {
    AtTable run;
    for (const int rest : clicks)
      if (rest < closing) run.desktop.InRest(rest, [&run] { run.ClickChange(); });
    run.desktop.InRest(closing, [&run] { run.Do([&run] { run.desktop.CloseFrame(); }); });
    run.ClickChange();
    ended = run.ended;
    return ended ? simulated::StashOf(run.store) : run.money().MoneyCount;
  };
  for (const std::set<int>& clicks :
       {std::set<int>{}, {2}, {5, 8}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {9, 14, 20}}) {
    bool ended = true;
    int closing = 1;
    for (; ended; ++closing) {
      std::set<int> made(clicks.begin(), clicks.lower_bound(closing));
      const Counts kept = play(made, closing, ended);
      bool left = false;
      EXPECT_EQ(kept, play(made, kNever, left)) << made.size() << " clicks, left at rest " << closing;
    }
    EXPECT_GT(closing, 9);
  }
}

}  // namespace
