// The table played by keys: the walk, what each key does there, and what it may not do.
#include <gtest/gtest.h>

#include "desktop/common/telling.h"
#include "desktop/common/walk.h"
#include "tests/simulated/ledger.h"

namespace {

using desktop::Key;
using simulated::AtTable;
using simulated::Play;

class Keys : public testing::Test {
 protected:
  /// False once the process has ended.
  bool Press(std::initializer_list<Key> keys) {
    return std::ranges::all_of(keys, [this](Key key) { return play.Do([&] { play.desktop.PressKey(key); }); });
  }
  std::string At() const {
    const auto stop = desktop::common::StopWithKeyboard(table);
    return stop ? stop->Name : "nowhere";
  }
  /// Where each of the keys leads, one after the other.
  std::string Walk(std::initializer_list<Key> keys) {
    std::string walk;
    for (const Key key : keys) {
      Press({key});
      walk += (walk.empty() ? "" : " > ") + At();
    }
    return walk;
  }
  /// What lies on a square, in words.
  std::string Value(int square) { return table.Stops()[static_cast<std::size_t>(3 + square)].Value; }

  AtTable play;
  const thistle::frmGame& table = play.table();
  simulated::Ledger ledger{play};
};

TEST_F(Keys, TabVisitsWhatCanBeUsedNow) {
  EXPECT_FALSE(desktop::common::RingOf(table)) << "nothing looks different before the first key";
  EXPECT_EQ(Walk({Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab}),
            "Ten Pound Notes > Five Pound Notes > One Pound Coins > dice cup > Get Change > Ten Pound Notes");
  EXPECT_EQ(table.Focus, nullptr);
  EXPECT_EQ(Walk({Key::BackTab}), "Get Change");
  EXPECT_EQ(table.Focus, &table.Command1);
  ASSERT_TRUE(Press({Key::Tab, Key::Three, Key::Tab, Key::Tab}));
  EXPECT_EQ(Walk({Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab, Key::Tab}),
            "heart > spade > diamond > club > thistle > lantern > dice cup > Ten Pound Notes");
}

TEST_F(Keys, ArrowsLeadToTheNeighbour) {
  ASSERT_TRUE(Press({Key::Down, Key::One}));
  EXPECT_EQ(At(), "Ten Pound Notes") << "from nowhere an arrow leads to the first";
  EXPECT_EQ(Walk({Key::Down, Key::Down, Key::Down, Key::Up, Key::Up}),
            "Five Pound Notes > One Pound Coins > One Pound Coins > Five Pound Notes > Ten Pound Notes");
  EXPECT_EQ(Walk({Key::Up, Key::Right, Key::Up, Key::Down, Key::Left, Key::Down}),
            "diamond > club > dice cup > heart > heart > Ten Pound Notes");
}

TEST_F(Keys, TheRingIsAroundWhatHasTheKeyboardUntilTheMouseIsUsed) {
  using desktop::common::RingOf;
  ASSERT_TRUE(Press({Key::Tab, Key::Five, Key::Up}));
  EXPECT_EQ(RingOf(table), (desktop::common::Rect{210, 152, 108, 116}));
  play.desktop.ClickAt(630, 150);
  EXPECT_FALSE(RingOf(table));
  ASSERT_TRUE(Press({Key::Right, Key::Up}));
  EXPECT_EQ(RingOf(table)->left, 0) << "it stays on the form";
  play.desktop.InRest(1, [&] { EXPECT_FALSE(RingOf(table)) << "the cup is in the hand"; });
  ASSERT_TRUE(Press({Key::Space}));
  EXPECT_TRUE(RingOf(table));
}

TEST_F(Keys, ADigitBetsAPieceWhereTheOthersShow) {
  ASSERT_TRUE(Press({Key::Tab, Key::Tab, Key::Four, Key::Four, Key::Four, Key::Four, Key::Four}));
  EXPECT_EQ(table.BetPieces[3], (std::array{5, 31, 30, 29, 28, 27})) << "the frontmost each time";
  EXPECT_EQ(Value(3), "£25 bet, 5 of 5 pieces");
  for (int place = 1; place <= 5; ++place) EXPECT_EQ(table.Money[table.BetPieces[3][place]].Left, 313 + 9 * place);
  EXPECT_FALSE(table.Refused);
  ASSERT_TRUE(Press({Key::Four}));
  EXPECT_EQ(table.Refused, 3);
  EXPECT_EQ(play.money().MoneyCount[1], 7) << "it has gone home";
  EXPECT_TRUE(play.IsHome(26));
}

TEST_F(Keys, OnASquareTheyAddTakeBackAndMove) {
  ASSERT_TRUE(play.Bet(0, 3) && Press({Key::Tab, Key::Tab, Key::Tab, Key::Two}));
  play.desktop.PressKey(Key::Two, true);
  ASSERT_TRUE(Press({Key::Up, Key::Up, Key::Up, Key::Left}));
  ASSERT_EQ(At(), "spade");
  ASSERT_TRUE(Press({Key::Enter, Key::Plus, Key::Six, Key::Two}));
  EXPECT_EQ(Value(1), "£2 bet, 2 of 5 pieces");
  EXPECT_EQ(Value(5), "£1 bet, 1 of 5 pieces");
  ASSERT_TRUE(Press({Key::Delete}));
  EXPECT_EQ(Value(1), "£1 bet, 1 of 5 pieces");
  ASSERT_TRUE(Press({Key::Backspace, Key::Backspace}));
  EXPECT_EQ(Value(1), "no bet");
  EXPECT_EQ(play.money().MoneyCount, (std::array<std::int64_t, 3>{12, 12, 9}));
}

TEST_F(Keys, EscTakesBackWhatWasLaidLast) {
  ASSERT_TRUE(play.Bet(0, 4) && play.Bet(2, 0) && Press({Key::Tab, Key::Tab, Key::Five}));
  for (const int left : {11, 10, 0, 0}) {
    ASSERT_TRUE(Press({Key::Escape}));
    EXPECT_EQ(table.BetValue[0] + table.BetValue[4], left);
  }
}

TEST_F(Keys, WhatTheMouseMayNotDoAKeyMayNotDo) {
  const std::initializer_list<Key> all{Key::Tab,    Key::One, Key::Up, Key::Enter, Key::Plus, Key::Six,   Key::Down,
                                       Key::Delete, Key::Up,  Key::Up, Key::Up,    Key::Up,   Key::Space, Key::Escape};
  ASSERT_TRUE(Press({Key::Tab, Key::Two}));
  const auto keepsBets = [&] {
    const auto before = table.BetPieces;
    Press(all);
    EXPECT_EQ(table.BetPieces, before);
  };
  ASSERT_TRUE(play.Press(49));
  keepsBets();
  EXPECT_EQ(play.desktop.InHand(), &table.Money[49]) << "the mouse has a piece";
  ASSERT_TRUE(play.Release(simulated::kGap));
  for (int rest = 1; rest < 60; rest += 7) play.desktop.InRest(rest, keepsBets);
  ASSERT_TRUE(play.ThrowCup());
  const int sounds = static_cast<int>(play.desktop.sounds.size());
  for (int rest = play.desktop.rests + 1; rest < play.desktop.rests + 9; ++rest)
    play.desktop.InRest(rest, [&] {
      keepsBets();
      EXPECT_EQ(Walk({Key::Tab, Key::Tab, Key::BackTab}), "Get Change > Get Change > Get Change");
    });
  ASSERT_TRUE(play.ClickChange());
  play.desktop.whileAsked = keepsBets;
  play.desktop.answers = {false};
  play.desktop.Menu("mnuNewGame");
  EXPECT_EQ(play.desktop.sounds.size(), sounds) << "no throw has begun";
}

TEST_F(Keys, AWholeTurnIsToldAsItHappens) {
  desktop::common::Telling telling(table);
  EXPECT_NE(telling.News().find("Total: £200."), std::string::npos) << "at first all of it";
  std::string told;
  play.desktop.afterEvent = [&, before = play.desktop.afterEvent] {
    before();
    const std::string news = telling.News();
    if (!news.empty()) told += news + "\n";
  };
  play.DealThrow(0, 0, 5);
  ASSERT_TRUE(Press({Key::Tab, Key::One, Key::Four, Key::Up, Key::Up, Key::Enter}));
  EXPECT_EQ(
      told,
      "heart: £10 bet, 1 of 5 pieces. Total: £190.\nclub: £10 bet, 1 of 5 pieces. Total: £180.\n"
      "The dice are being thrown.\nDice: heart, heart, lantern. heart: WIN £20.\nclub: YOU LOSE.\nTotal: £210.\n");
}

}  // namespace
