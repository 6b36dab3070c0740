// What a throw does to the bets, step by step and in time.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulated/ledger.h"
#include "tests/simulated/recorder.h"

namespace {

using simulated::AtTable;
using simulated::Lines;

constexpr double kShortThrow = 2.92 + 6 * 0.05;

/// Throws, and returns what the settlement changes, its first moment being 0.
Lines Settle(simulated::Play& play, std::array<int, 3> dice, const std::function<void(simulated::Recorder&)>& watch) {
  simulated::Recorder recorder(play);
  watch(recorder);
  play.DealThrow(dice[0], dice[1], dice[2]);
  recorder.Start(kShortThrow);
  EXPECT_TRUE(play.ThrowCup());
  play.desktop.afterEvent = [] {};
  std::erase_if(recorder.lines, [](const std::string& line) { return line.starts_with('-'); });
  return recorder.lines;
}

void WatchCaptions(simulated::Recorder& recorder) { recorder.WatchCaptions(); }

TEST(Settlement, TripleAfterALostSquare) {
  AtTable play;
  const simulated::Ledger ledger(play);
  ASSERT_TRUE(play.Bet(2, 4) && play.Bet(1, 4, 40) && play.Bet(2, 0) && play.Bet(0, 0, 30, 50));
  const Lines lines = Settle(play, {4, 4, 4}, [](auto& recorder) {
    recorder.WatchCaptions();
    recorder.WatchPieces();
    recorder.WatchPayouts();
    recorder.WatchTotal();
  });
  EXPECT_EQ(
      lines,
      (Lines{"0.000 Label1(0)=YOU LOSE",
             "1.000 Money(12)=gone",  // the last placed goes first
             "1.500 Money(48)=gone", "1.500 APPLAUSE", "3.375 Label1(4)=WIN £18", "4.375 Payout(60)=TenPound",
             "4.375 ELEVATOR", "4.625 Payout(61)=FivePound", "4.625 ELEVATOR", "4.875 Payout(62)=OnePound",
             "4.875 ELEVATOR", "5.125 Payout(63)=OnePound", "5.125 ELEVATOR", "5.375 Payout(64)=OnePound",
             "5.375 ELEVATOR", "6.125 Money(31)=in its pile", "6.125 total=£188",
             // With the stakes home the piles are drawn afresh.
             "6.625 Money(48)=in its pile", "6.625 Money(49)=gone", "6.625 total=£189", "7.125 Money(49)=in its pile",
             "7.125 Payout(64)=gone", "7.125 total=£190", "7.625 Money(50)=in its pile", "7.625 Payout(63)=gone",
             "7.625 total=£191", "8.125 Money(51)=in its pile", "8.125 Payout(62)=gone", "8.125 total=£192",
             "8.625 Money(32)=in its pile", "8.625 Payout(61)=gone", "8.625 total=£197", "9.125 Label1(0)=",
             "9.125 Label1(4)=", "9.125 Money(12)=in its pile", "9.125 Payout(60)=gone", "9.125 total=£207"}));
  EXPECT_EQ(ledger.pounds(), 200 - 11 + 18);
}

TEST(Settlement, OutcomesOfAStake) {
  struct Row {
    std::array<int, 3> stake;  ///< pieces of each denomination
    int matches;
    const char* caption;
    std::array<int, 3> paid;  ///< pieces of each denomination
    double seconds;
  };
  const Row rows[] = {
      {{0, 0, 1}, 0, "YOU LOSE", {0, 0, 0}, 1},       {{5, 0, 0}, 0, "YOU LOSE", {0, 0, 0}, 3},
      {{0, 0, 1}, 1, "WIN £1", {0, 0, 1}, 2.25},      {{0, 0, 5}, 1, "WIN £5", {0, 1, 0}, 4.25},
      {{0, 1, 4}, 1, "WIN £9", {0, 1, 4}, 7.25},      {{0, 0, 5}, 2, "WIN £10", {1, 0, 0}, 4.25},
      {{2, 1, 2}, 2, "WIN £54", {5, 0, 4}, 10.25},    {{0, 0, 3}, 3, "WIN £9", {0, 1, 4}, 8.125},
      {{4, 0, 1}, 3, "WIN £123", {12, 0, 3}, 16.625}, {{5, 0, 0}, 3, "WIN £150", {15, 0, 0}, 16.625},
  };
  for (const auto& row : rows)
    for (const int square : {0, 2, 5}) {
      SCOPED_TRACE(testing::Message() << row.caption << " on " << square);
      AtTable play;
      auto& table = play.table();
      const simulated::Ledger ledger(play);
      // With the sound off the pace is the same.
      play.money().SoundOn = square != 2;
      play.desktop.sounds.clear();
      float dx = 5;
      for (int d = 0; d < 3; ++d)
        for (int i = 0; i < row.stake[d]; ++i, dx += 10) ASSERT_TRUE(play.Bet(d, square, dx, 5));
      const int other = (square + 1) % 6;
      play.DealThrow(row.matches > 1 ? square : other, row.matches > 0 ? square : other,
                     row.matches > 2 ? square : other);
      std::array<int, 3> most{};
      bool captioned = false;
      play.desktop.afterEvent = [&, before = std::move(play.desktop.afterEvent)] {
        before();
        captioned = captioned || table.Label1[square].Caption == row.caption;
        std::array<int, 3> now{};
        for (const auto& payout : table.Payout)
          if (payout.Visible)
            ++now[payout.Picture->name == "TenPound" ? 0 : payout.Picture->name == "FivePound" ? 1 : 2];
        most = std::max(most, now);
      };
      ASSERT_TRUE(play.ThrowCup());
      EXPECT_TRUE(captioned);
      EXPECT_EQ(play.desktop.sounds.empty(), square == 2);
      EXPECT_EQ(most, row.paid);
      EXPECT_NEAR(play.desktop.Clock(), kShortThrow + row.seconds, 1e-9);
    }
}

TEST(Settlement, PayoutsLieInRowsOfFiveOverTheirSquare) {
  AtTable play;
  for (int p = 0; p < 90; ++p) {
    EXPECT_EQ(play.table().Payout[p].Left, 8 + 104 * (p / 15) + 8 * (p % 5)) << p;
    EXPECT_EQ(play.table().Payout[p].Top, 160 + 8 * (p % 15 / 5)) << p;
  }
}

TEST(Settlement, TripleOnASquareWithoutABetIsSilent) {
  AtTable play;
  ASSERT_TRUE(play.Bet(2, 1));
  EXPECT_EQ(Settle(play, {2, 2, 2}, WatchCaptions), (Lines{"0.000 Label1(1)=YOU LOSE", "1.000 Label1(1)="}));
}

TEST(Settlement, AfterALostSquareThePilesLieInFrontAgain) {
  AtTable play;
  ASSERT_TRUE(play.Bet(2, 0) && play.Bet(2, 1));
  const auto& order = play.table().Graphics();
  const Lines lines = Settle(play, {0, 2, 3}, [&](auto& recorder) {
    recorder.WatchCaptions();
    recorder.Watch("front", [&] { return std::string(order.back()->Name); });
  });
  const Lines wanted{"0.000 Label1(0)=WIN £1", "1.000 front=Payout", "1.250 Label1(1)=YOU LOSE", "2.250 front=Money"};
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 5),
            (Lines{wanted[0], wanted[1], "1.000 ELEVATOR", wanted[2], wanted[3]}));
}

}  // namespace
