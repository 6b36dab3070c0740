// Turn after turn: from press to next turn, the start of a game, and the end of the money.
#include <gtest/gtest.h>

#include "tests/simulated/ledger.h"
#include "tests/simulated/recorder.h"

namespace {

using simulated::AtTable;
using simulated::kGap;
using simulated::Ledger;
using simulated::Lines;
using simulated::OnSquare;
using Counts = std::array<std::int64_t, 3>;

constexpr const char* kNoMoneyLeft = "You Have No Money Left\r\nWould You Like Another £200 ?";

/// Stakes all three coins of a table that has nothing else, and loses them.
bool LoseAll(simulated::Play& play) {
  play.DealThrow(1, 2, 3);
  return play.Bet(2, 0, 5) && play.Bet(2, 4, 5) && play.Bet(2, 4, 40) && play.ThrowCup();
}

TEST(Turn, FromPressToNextTurn) {
  AtTable play;
  const Ledger ledger(play);
  simulated::Recorder recorder(play);
  recorder.WatchCaptions();
  recorder.WatchTotal();
  recorder.WatchPayouts();
  recorder.WatchControls();
  play.desktop.Idle(1);
  play.DealThrow(0, 0, 3);
  recorder.Start();
  ASSERT_TRUE(play.Press(12));
  EXPECT_EQ(recorder.lines, (Lines{"0.000 total=£190", "0.000 Command1=hidden"}));
  recorder.Start();
  ASSERT_TRUE(play.Move(kGap) && play.Move(OnSquare(3)));
  EXPECT_EQ(recorder.lines, (Lines{"0.000 pointer=no drop", "0.000 pointer=arrow"}));
  recorder.Start();
  ASSERT_TRUE(play.Release(OnSquare(3)));
  EXPECT_EQ(recorder.lines, (Lines{"0.000 Label1(3)=£10 Bet", "0.000 Instruction(1)=shown"}));
  recorder.Start();
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(recorder.lines, (Lines{"0.000 Instruction=hidden", "0.000 Instruction(1)=hidden", "0.000 cup=dead",
                                   "0.000 money=dead", "0.000 SHAKEDICE", "2.920 ROLLDICE", "3.170 ROLLDICEEND",
                                   "3.220 Label1(3)=WIN £10", "4.220 Payout(45)=TenPound", "4.220 ELEVATOR",
                                   "4.970 total=£200", "5.470 Label1(3)=", "5.470 total=£210", "5.470 Payout(45)=gone",
                                   "5.470 Instruction=shown", "5.470 Command1=shown", "5.470 money=live"}));
  EXPECT_EQ(play.table().DiceSquare, (std::array{0, 0, 3}));
  for (const auto& die : play.table().Dice) EXPECT_TRUE(die.Visible);
}

TEST(Turn, ManyInARowKeepEachPound) {
  AtTable play;
  Ledger ledger(play);
  play.desktop.whileAsked = [&] {
    EXPECT_EQ(ledger.pounds(), 0);
    ledger.Give(200);
  };
  play.desktop.answers.assign(100, true);
  for (int turn = 0; turn < 60; ++turn) {
    for (int i = 0; i < 3 + turn % 9; ++i)
      play.Bet((turn + i) % 3, (turn * 5 + i * i) % 6, static_cast<float>(i) * 10, 50);
    ASSERT_TRUE(play.ThrowCup());
    if (turn % 3 == 0) play.ClickChange();
    ASSERT_EQ(play.money().MoneyValue[3], ledger.pounds());
    ASSERT_FALSE(HasFailure()) << "turn " << turn;
  }
}

TEST(Turn, CupIsLiveOnTheEmptyMatOnlyAfterTheLoad) {
  AtTable play;
  const Ledger ledger(play);
  EXPECT_TRUE(play.table().CupStanding.Enabled);
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(play.desktop.drawn, 9);
  EXPECT_FALSE(play.table().CupStanding.Enabled);
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(play.desktop.drawn, 9);
  EXPECT_EQ(play.money().MoneyValue[3], 200);
}

TEST(Turn, RightButtonOrReleaseBesideTheCupThrowNothing) {
  AtTable play;
  play.desktop.Press(45, 80, desktop::kRightButton);
  play.desktop.Release(45, 80, desktop::kRightButton);
  play.desktop.Drag(45, 80, 45, 20);
  play.desktop.Drag(150, 80, 45, 80);
  EXPECT_EQ(play.desktop.drawn, 3);
}

TEST(Money, GoneIsOfferedAgainWithoutLimit) {
  AtTable play({0, 0, 3});
  for (std::size_t refills = 1; refills <= 3; ++refills) {
    play.desktop.answers = {true};
    bool asked = false;
    play.desktop.whileAsked = [&] {
      asked = true;
      EXPECT_EQ(play.desktop.sounds.back().what, "PEOPLELAUGH");
      EXPECT_EQ(play.desktop.sounds.back().time, play.desktop.Clock());
      for (const auto& caption : play.table().Label1) EXPECT_EQ(caption.Caption, "");
      EXPECT_EQ(play.table().Label3[3].Caption, "£0");
    };
    ASSERT_TRUE(LoseAll(play));
    EXPECT_TRUE(asked);
    ASSERT_EQ(play.desktop.questions.size(), 1 + refills);
    EXPECT_EQ(play.desktop.questions.back().what, kNoMoneyLeft);
    EXPECT_EQ(play.desktop.titles.back(), "Thistle and Lantern");
    EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
    EXPECT_EQ(play.table().Label3[3].Caption, "£200");
    EXPECT_TRUE(play.table().Money[12].Enabled && play.table().Command1.Visible);
    // Down to three coins again, as if the rest were lost.
    play.money().MoneyCount = {0, 0, 3};
  }
}

TEST(Money, GoneAndRefusedEndsTheRunWithNothingLeft) {
  AtTable play({0, 0, 3});
  play.desktop.answers = {false};
  EXPECT_FALSE(LoseAll(play));
  EXPECT_TRUE(play.ended);
  EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
  for (const char* key : {"Stash0", "Stash1", "Stash2"})
    EXPECT_EQ(play.store.at(std::string("Thistle and Lantern/Settings/") + key), "0");

  simulated::Play next(play.store);
  ASSERT_TRUE(next.StartAtTable());
  EXPECT_TRUE(next.desktop.questions.empty());
  EXPECT_EQ(next.money().MoneyCount, (Counts{13, 12, 10}));
}

TEST(Money, NoQuestionWhileAnyIsLeftOrAllIsStillStaked) {
  AtTable play({1, 0, 3});
  play.desktop.questions.clear();
  ASSERT_TRUE(LoseAll(play));
  EXPECT_EQ(play.money().MoneyValue[3], 10);
  // The last note goes onto the mat, and comes back doubled.
  ASSERT_TRUE(play.Bet(0, 2));
  EXPECT_EQ(play.money().MoneyValue[3], 0);
  play.DealThrow(2, 0, 0);
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_TRUE(play.desktop.questions.empty());
  EXPECT_EQ(play.money().MoneyCount, (Counts{2, 0, 0}));
}

TEST(Offer, OfEarlierMoney) {
  struct Row {
    Counts stored;
    const char* question;
  };
  const Row rows[] = {
      {{0, 0, 1}, "You Have £1 Left From a Previous Game\r\nWould You Like To Start With This Amount ?"},
      {{25, 3, 7}, "You Have £272 Left From a Previous Game\r\nWould You Like To Start With This Amount ?"}};
  for (const auto& row : rows)
    for (const bool taken : {true, false}) {
      simulated::Store store = simulated::Stashed(row.stored[0], row.stored[1], row.stored[2]);
      simulated::Play play(store);
      play.desktop.answers = {taken};
      play.desktop.whileAsked = [&] {
        // The table is on show behind it, with a throw and without money.
        EXPECT_EQ(play.desktop.frame().Children().back(), &play.table());
        EXPECT_EQ(play.table().Label3[3].Caption, "");
        EXPECT_FALSE(play.table().Money[0].Visible);
        EXPECT_EQ(play.desktop.drawn, 3);
      };
      ASSERT_TRUE(play.StartAtTable());
      ASSERT_EQ(play.desktop.questions.size(), 1U);
      EXPECT_EQ(play.desktop.questions[0].what, row.question);
      EXPECT_EQ(play.desktop.titles[0], "Thistle and Lantern");
      EXPECT_EQ(play.money().MoneyCount, taken ? row.stored : (Counts{13, 12, 10}));
      play.Do([&] { play.desktop.CloseFrame(); });
      EXPECT_EQ(store["Thistle and Lantern/Settings/Stash0"], taken ? std::to_string(row.stored[0]) : "13");
    }
}

TEST(NewGame, ClearsTheMatAndLeavesTheCupLive) {
  AtTable play;
  const Ledger ledger(play);
  ASSERT_TRUE(play.Bet(0, 0) && play.Bet(1, 0, 40, 40) && play.Bet(2, 5));
  const auto dice = play.table().DiceFrame;
  play.desktop.answers = {true};
  play.desktop.Menu("mnuNewGame");
  for (int n = 0; n < 60; ++n) EXPECT_TRUE(play.IsHome(n));
  EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
  EXPECT_EQ(play.table().DiceFrame, dice);
  EXPECT_TRUE(play.table().Command1.Visible);
  EXPECT_TRUE(play.table().CupStanding.Enabled);
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_FALSE(play.table().CupStanding.Enabled);
}

TEST(Description, TellsTotalsStakesAndThrow) {
  AtTable play({2, 1, 3});
  play.DealThrow(3, 5, 1);
  ASSERT_TRUE(play.Bet(1, 2));
  std::string during;
  play.desktop.After(1, [&] { during = play.table().Description(); });
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(
      during,
      "Your money: £23. Ten Pound Notes: £20. Five Pound Notes: £0. One Pound Coins: £3. diamond: £5 Bet. The dice "
      "are being thrown.");
  EXPECT_EQ(play.table().Description(),
            "Your money: £23. Ten Pound Notes: £20. Five Pound Notes: £0. One Pound Coins: £3. Dice: club, lantern, "
            "spade.");
}

}  // namespace
