// "Get Change": when it is on offer, and the exchange.
#include <gtest/gtest.h>

#include "tests/simulated/ledger.h"
#include "tests/simulated/recorder.h"

namespace {

using simulated::AtTable;
using simulated::Ledger;
using simulated::Lines;
using Counts = std::array<std::int64_t, 3>;

TEST(Change, BreaksDownFromTheTopClickByClick) {
  // What each click makes of the money, and in how many seconds. The button is on offer before it, and gone at last.
  const std::vector<std::vector<std::pair<Counts, double>>> games{
      {{{11, 14, 20}, 0}, {{10, 16, 20}, 0.75}, {{9, 18, 20}, 0.75}, {{8, 20, 20}, 0.75}},
      {{{1, 0, 3}, 0}, {{0, 1, 8}, 2.25}, {{0, 0, 13}, 1.5}},
      {{{2, 19, 19}, 0}, {{1, 20, 24}, 2.25}},
      {{{1, 19, 20}, 0}, {{0, 21, 20}, 0.75}},
      {{{1, 20, 19}, 0}, {{1, 19, 24}, 1.5}, {{0, 21, 24}, 0.75}},
      {{{0, 2, 18}, 0}, {{0, 1, 23}, 1.5}},
      {{{0, 0, 50}, 0}},
      {{{0, 1, 20}, 0}},
  };
  for (const auto& game : games) {
    AtTable play(game[0].first);
    const Ledger ledger(play);
    for (std::size_t click = 1; click < game.size(); ++click) {
      ASSERT_TRUE(play.table().Command1.Visible);
      const double start = play.desktop.Clock();
      ASSERT_TRUE(play.ClickChange());
      EXPECT_EQ(play.money().MoneyCount, game[click].first);
      EXPECT_NEAR(play.desktop.Clock() - start, game[click].second, 1e-9);
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

TEST(Change, WhoeverLeavesInTheMiddleOfItKeepsItsOutcome) {
  // Clicks at the first rests from one on, each inside the exchange before; then the frame is closed, or it is not.
  const auto play = [](int first, int last, bool close) {
    AtTable run;
    for (int rest = first; rest <= last; ++rest) run.desktop.InRest(rest, [&run] { run.ClickChange(); });
    if (close) run.desktop.InRest(last + 1, [&run] { run.Do([&run] { run.desktop.CloseFrame(); }); });
    run.ClickChange();
    return close ? simulated::StashOf(run.store) : run.money().MoneyCount;
  };
  for (int first = 1; first <= 8; ++first)
    for (int last = first - 1; last <= 12; ++last)
      EXPECT_EQ(play(first, last, true), play(first, last, false)) << first << " to " << last;
}

}  // namespace
