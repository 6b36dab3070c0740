// What must hold on the table after every event and before every rest, whatever the player does.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

#include "Graphics/catalogue.h"
#include "tests/simulated/play.h"

namespace storm {

using desktop::Element;

/// Stands beside the ledger, which counts the money. A breach is a failed expectation.
class Invariants {
 public:
  explicit Invariants(simulated::Play& play) : play_(play) {}

  /// The cup is live without a bet after the load of the table, and after a New Game that found
  /// bets, until the next bet or throw.
  bool freeThrow = true;

  bool Throwing() { return play_.desktop.Waits() > 0 && !table_.Instruction[0].Visible; }

  /// At any moment, in the middle of a wait too.
  void Always() {
    const auto& money = play_.money();
    for (int d = 0; d < 3; ++d) EXPECT_GE(money.MoneyCount[d], 0) << d;
    for (int d = 0; d < 3; ++d) EXPECT_EQ(money.MoneyValue[d], thistle::PieceValue[d] * money.MoneyCount[d]) << d;
    Stakes();
    Pieces();
    CupAndDice();
    if (Throwing()) Throw();
    HitTest();
  }

  /// Nothing waits, and the game is open for bets.
  void AtRest() {
    const auto& count = play_.money().MoneyCount;
    for (int n = 0; n < 60; ++n) EXPECT_FALSE(Staked(n) && play_.IsHome(n)) << "listed, but at home: " << n;
    for (const auto& piece : table_.Money) EXPECT_TRUE(piece.Enabled || !piece.Visible) << piece.Index;
    EXPECT_TRUE(std::ranges::none_of(table_.Payout, &Element::Visible) && table_.Instruction[0].Visible);
    EXPECT_EQ(table_.Instruction[1].Visible, staked_ != 0);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(table_.Label3[i].Caption, Pounds(play_.money().MoneyValue[i])) << i;
    EXPECT_TRUE(table_.CupStanding.Visible && std::ranges::all_of(table_.Dice, &Element::Visible));
    EXPECT_TRUE(std::ranges::all_of(table_.DiceFrame, [](int frame) { return frame % 4 == 0; }));
    const bool canChange = (count[1] < 20 && count[0] != 0) || (count[2] < 20 && (count[0] != 0 || count[1] != 0));
    EXPECT_EQ(table_.Command1.Visible, staked_ == 0 && !PieceInHand() && canChange);
    freeThrow = freeThrow && staked_ == 0;
    EXPECT_EQ(table_.CupStanding.Enabled, staked_ != 0 || freeThrow);
  }

 private:
  static std::string Pounds(std::int64_t pounds) { return "£" + std::to_string(pounds); }

  bool Staked(int piece) const { return (staked_ >> piece & 1) != 0; }

  const Element* PieceInHand() const {
    const Element* inHand = play_.desktop.InHand();
    return inHand && inHand->Name == "Money" ? inHand : nullptr;
  }

  void Stakes() {
    staked_ = 0;
    int listed = 0;
    for (int square = 0; square < 6; ++square) {
      const auto& pieces = table_.BetPieces[square];
      int stake = 0;
      ASSERT_TRUE(pieces[0] >= 0 && pieces[0] <= 5) << square << ": " << pieces[0];
      for (int place = 1; place <= pieces[0]; ++place, ++listed) {
        ASSERT_TRUE(pieces[place] >= 0 && pieces[place] < 60) << pieces[place];
        staked_ |= std::uint64_t{1} << pieces[place];
        stake += thistle::PieceValue[thistle::Denomination(pieces[place])];
      }
      EXPECT_EQ(table_.BetValue[square], stake) << square;
      const std::string& caption = table_.Label1[square].Caption;
      EXPECT_TRUE(Throwing() || caption == (stake == 0 ? "" : Pounds(stake) + " Bet")) << caption;
    }
    EXPECT_EQ(std::popcount(staked_), listed) << "a piece is listed twice";
  }

  void Pieces() {
    const Element* inHand = PieceInHand();
    EXPECT_TRUE(!inHand || (inHand->Visible && inHand->Enabled)) << "in hand: " << inHand->Index;
    EXPECT_TRUE(inHand || table_.MousePointer == desktop::PointerShape::Default);
    for (int n = 0; n < 60; ++n) {
      const Element& piece = table_.Money[n];
      const bool held = inHand == &piece;
      const bool onMat = piece.Left >= 6 && piece.Left < 626 && piece.Top >= 156 && piece.Top < 248;
      EXPECT_TRUE(piece.Visible || play_.IsHome(n)) << "hidden off its home: " << n;
      // A piece in hand is on no list: the press has taken it off.
      EXPECT_TRUE(play_.IsHome(n) || (held ? !Staked(n) : Staked(n) && onMat)) << "astray: " << n;
    }
  }

  void CupAndDice() {
    const auto cups = {&table_.CupStanding, &table_.CupCentre, &table_.CupLeft, &table_.CupRight, &table_.CupThrow};
    EXPECT_EQ(std::ranges::count_if(cups, [](const Element* cup) { return cup->Visible; }), 1);
    for (int die = 0; die < 3; ++die) {
      const int frame = table_.DiceFrame[die];
      ASSERT_TRUE(frame >= 0 && frame < 24) << frame;
      EXPECT_EQ(table_.DiceSquare[die], table_.FaceSquare[frame / 4]) << die;
      EXPECT_EQ(table_.Dice[die].Picture, &thistle::pictures::Anidice[frame]) << die;
    }
  }

  void Throw() {
    freeThrow = false;
    EXPECT_EQ(play_.desktop.Waits(), 1) << "a throw waits inside something, or something inside a throw";
    EXPECT_FALSE(table_.CupStanding.Enabled || table_.Command1.Visible || table_.Instruction[1].Visible);
    EXPECT_TRUE(std::ranges::none_of(table_.Money, &Element::Enabled));
  }

  /// One element a look, in turn: all of them each time would take most of the storm's time.
  void HitTest() {
    const Element& probe = *table_.Graphics()[++probed_ % table_.Graphics().size()];
    const Element* hit = table_.ElementAt(probe.Left + 4, probe.Top + 4);
    EXPECT_TRUE(!hit || (hit->Visible && hit->Enabled)) << "a hidden or dead element is hit: " << hit->Name;
    // A piece in a pile shows a strip at its left, on which it can be taken.
    const bool inPile = probe.Name == "Money" && probe.Visible && play_.IsHome(probe.Index);
    const bool open = play_.desktop.Waits() == 0 && !PieceInHand();
    EXPECT_TRUE(hit == &probe || !inPile || !open) << "covered: " << probe.Index;
  }

  simulated::Play& play_;
  const thistle::frmGame& table_ = play_.table();
  std::uint64_t staked_ = 0;  ///< a bit for each piece that is listed on a square
  std::size_t probed_ = 0;
};

}  // namespace storm
