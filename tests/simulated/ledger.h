// Bookkeeping beside the game: after every event each pound must be found somewhere.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "tests/simulated/play.h"

namespace simulated {

/// Adds up piles, mat, the piece in hand and what the bank has laid out. A payout that comes into
/// view is the bank's, a piece that leaves a lost square is lost; nothing else may change the
/// sum. Between events of the player the table must also be in order.
class Ledger {
 public:
  explicit Ledger(Play& play) : play_(play), pounds_(Found()) {
    Remember();
    play_.desktop.afterEvent = [this, before = std::move(play_.desktop.afterEvent)] {
      before();
      Look();
    };
  }

  /// The bank gives the player money that no square has won.
  void Give(std::int64_t pounds) { pounds_ += pounds; }
  std::int64_t pounds() const { return pounds_; }

 private:
  static std::int64_t ValueOf(int piece) { return std::array{10, 5, 1}[static_cast<std::size_t>(piece / 20)]; }

  static std::int64_t ValueOf(const desktop::Element& payout) {
    if (!payout.Visible) return 0;
    return payout.Picture->name == "TenPound" ? 10 : payout.Picture->name == "FivePound" ? 5 : 1;
  }

  static int SquareAt(const desktop::Element& piece) { return static_cast<int>(piece.Left - 6) / 104; }

  bool InHand(int piece) { return play_.desktop.InHand() == &play_.table().Money[piece]; }

  std::int64_t Found() {
    const auto& count = play_.money().MoneyCount;
    std::int64_t found = 10 * count[0] + 5 * count[1] + count[2];
    for (int n = 0; n < 60; ++n)
      if (InHand(n) || !play_.IsHome(n)) found += ValueOf(n);
    for (const auto& payout : play_.table().Payout) found += ValueOf(payout);
    return found;
  }

  void Remember() {
    const auto& table = play_.table();
    for (int n = 0; n < 60; ++n)
      doomed_[n] = !play_.IsHome(n) && !InHand(n) && table.Label1[SquareAt(table.Money[n])].Caption == "YOU LOSE";
    for (int p = 0; p < 90; ++p) paid_[p] = table.Payout[p].Visible;
  }

  void Look() {
    const auto& table = play_.table();
    for (int p = 0; p < 90; ++p)
      if (!paid_[p]) pounds_ += ValueOf(table.Payout[p]);
    for (int n = 0; n < 60; ++n)
      if (doomed_[n] && play_.IsHome(n)) pounds_ -= ValueOf(n);
    const std::int64_t missing = pounds_ - Found();
    // The first instruction stays on show during an exchange, whose piece is out of the piles.
    const bool exchange = play_.desktop.waits > 0 && table.Instruction[0].Visible;
    EXPECT_GE(missing, 0);
    EXPECT_LE(missing, exchange ? 10 * play_.desktop.waits : 0) << "at " << play_.desktop.Clock();
    Remember();
    if (play_.desktop.waits == 0) CheckOrder();
  }

  void CheckOrder() {
    const auto& table = play_.table();
    std::array<int, 3> shown{};
    for (int n = 0; n < 60; ++n) {
      const auto& piece = table.Money[n];
      EXPECT_TRUE(piece.Enabled || !piece.Visible) << n;
      shown[n / 20] += piece.Visible && play_.IsHome(n) && !InHand(n) ? 1 : 0;
    }
    std::int64_t total = 0;
    for (int d = 0; d < 3; ++d) {
      const std::int64_t count = play_.money().MoneyCount[d];
      total += ValueOf(20 * d) * count;
      EXPECT_LE(shown[d], count) << d;
      EXPECT_EQ(table.Label3[d].Caption, "£" + std::to_string(ValueOf(20 * d) * count));
    }
    EXPECT_EQ(play_.money().MoneyValue[3], total);
    EXPECT_EQ(table.Label3[3].Caption, "£" + std::to_string(total));
    EXPECT_TRUE(std::ranges::none_of(table.Payout, &desktop::Element::Visible));
    EXPECT_TRUE(table.Instruction[0].Visible);
    const bool staked = std::ranges::any_of(table.BetValue, [](int stake) { return stake != 0; });
    EXPECT_EQ(table.Instruction[1].Visible, staked);
    for (int s = 0; s < 6; ++s) CheckSquare(s);
  }

  void CheckSquare(int s) {
    const auto& table = play_.table();
    const auto& pieces = table.BetPieces[s];
    std::int64_t stake = 0;
    for (int place = 1; place <= 5; ++place) {
      const int n = pieces[place];
      if (place > pieces[0]) {
        EXPECT_EQ(n, 0) << "square " << s << ", place " << place;
        continue;
      }
      stake += ValueOf(n);
      const auto& piece = table.Money[n];
      const auto [left, top] = OnSquare(s, 0, 0);
      EXPECT_TRUE(piece.Visible && piece.Left >= left && piece.Left + piece.Width <= left + 100 && piece.Top >= top &&
                  piece.Top + piece.Height <= top + 92)
          << n;
    }
    EXPECT_EQ(table.BetValue[s], stake);
    EXPECT_EQ(table.Label1[s].Caption, stake == 0 ? "" : "£" + std::to_string(stake) + " Bet");
  }

  Play& play_;
  std::int64_t pounds_;
  std::array<bool, 60> doomed_{};  ///< on a lost square
  std::array<bool, 90> paid_{};
};

}  // namespace simulated
