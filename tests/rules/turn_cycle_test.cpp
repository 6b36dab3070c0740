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
  recorder.WatchCup();
  play.DealThrow(0, 0, 3);
  recorder.Start();
  ASSERT_TRUE(play.Press(12));
  EXPECT_EQ(recorder.lines, (Lines{"0.000 total=£190", "0.000 change=hidden"}));
  recorder.Start();
  ASSERT_TRUE(play.Move(kGap) && play.Release(OnSquare(3)));
  EXPECT_EQ(recorder.lines, (Lines{"0.000 pointer=no drop", "0.000 pointer=arrow", "0.000 Label1(3)=£10 Bet",
                                   "0.000 Instruction(1)=shown"}));
  recorder.Start();
  ASSERT_TRUE(play.ThrowCup());
  EXPECT_EQ(recorder.lines, (Lines{"0.000 Instruction(0)=hidden",
                                   "0.000 Instruction(1)=hidden",
                                   "0.000 cup=dead",
                                   "0.000 money=dead",
                                   "0.000 cup=CupCentre",
                                   "0.000 SHAKEDICE",
                                   "0.700 cup=CupRight",
                                   "0.860 cup=CupLeft",
                                   "1.020 cup=CupRight",
                                   "1.180 cup=CupLeft",
                                   "1.340 cup=CupRight",
                                   "1.500 cup=CupLeft",
                                   "1.660 cup=CupRight",
                                   "1.820 cup=CupLeft",
                                   "1.980 cup=CupRight",
                                   "2.140 cup=CupLeft",
                                   "2.300 cup=CupRight",
                                   "2.460 cup=CupLeft",
                                   "2.620 cup=CupThrow",
                                   "2.920 cup=CupStanding",
                                   "2.920 ROLLDICE",
                                   "3.170 ROLLDICEEND",
                                   "3.220 Label1(3)=WIN £10",
                                   "4.220 Payout(45)=TenPound",
                                   "4.220 ELEVATOR",
                                   "4.970 total=£200",
                                   "5.470 Label1(3)=",
                                   "5.470 total=£210",
                                   "5.470 Payout(45)=gone",
                                   "5.470 Instruction(0)=shown",
                                   "5.470 change=shown",
                                   "5.470 money=live"}));
  EXPECT_EQ(play.table().DiceSquare, (std::array{0, 0, 3}));
}

TEST(Turn, RightButtonOrReleaseBesideTheCupThrowNothing) {
  AtTable play;
  play.desktop.Press(45, 80, desktop::kRightButton);
  play.desktop.Release(45, 80, desktop::kRightButton);
  play.desktop.Drag(45, 80, 45, 20);
  play.desktop.Drag(150, 80, 45, 80);
  EXPECT_EQ(play.desktop.drawn, 3);
}

TEST(Money, GoneIsOfferedAgain) {
  AtTable play({0, 0, 3});
  play.desktop.whileAsked = [&] {
    EXPECT_EQ(play.desktop.sounds.back(), (desktop::simulated::Happening{play.desktop.Clock(), "PEOPLELAUGH"}));
    for (const auto& caption : play.table().Label1) EXPECT_EQ(caption.Caption, "");
    EXPECT_EQ(play.table().Label3[3].Caption, "£0");
  };
  play.desktop.answers = {true};
  ASSERT_TRUE(LoseAll(play));
  EXPECT_EQ(play.desktop.questions.back().what, "You Have No Money Left\r\nWould You Like Another £200 ?");
  EXPECT_EQ(play.desktop.titles.back(), "Thistle and Lantern");
  EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
}

TEST(Money, GoneAndRefusedEndsTheRunWithNothingLeft) {
  AtTable play({0, 0, 3});
  play.desktop.answers = {false};
  EXPECT_FALSE(LoseAll(play));
  EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
  for (const char* key : {"Stash0", "Stash1", "Stash2"})
    EXPECT_EQ(play.store.at(std::string("Thistle and Lantern/Settings/") + key), "0");
  simulated::Play next(play.store);
  ASSERT_TRUE(next.StartAtTable());
  EXPECT_EQ(next.money().MoneyCount, (Counts{13, 12, 10}));
}

TEST(Offer, OfEarlierMoney) {
  simulated::Store store = simulated::Stashed(25, 3, 7);
  simulated::Play play(store);
  play.desktop.answers = {true};
  play.desktop.whileAsked = [&] {
    // The table is on show behind it, with a throw and without money.
    EXPECT_EQ(play.frame->Children().back(), &play.table());
    EXPECT_EQ(play.table().Label3[3].Caption, "");
    EXPECT_FALSE(play.table().Money[0].Visible);
    EXPECT_EQ(play.desktop.drawn, 3);
  };
  ASSERT_TRUE(play.StartAtTable());
  ASSERT_EQ(play.desktop.questions.size(), 1U);
  EXPECT_EQ(play.desktop.questions[0].what,
            "You Have £272 Left From a Previous Game\r\nWould You Like To Start With This Amount ?");
  EXPECT_EQ(play.desktop.titles[0], "Thistle and Lantern");
  EXPECT_EQ(play.money().MoneyCount, (Counts{25, 3, 7}));
}

}  // namespace
