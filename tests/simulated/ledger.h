// Bookkeeping beside the game: after every event each pound must be found somewhere.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "tests/simulated/play.h"

namespace simulated {

/// Adds up piles, mat, the piece in hand and what the bank has laid out. A payout that comes into
/// view is the bank's, a piece that leaves a lost square is lost; nothing else may change the sum.
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
    const bool exchange = play_.desktop.Waits() > 0 && table.Instruction[0].Visible;
    EXPECT_GE(missing, 0);
    EXPECT_LE(missing, exchange ? 10 * play_.desktop.Waits() : 0) << "at " << play_.desktop.Clock();
    Remember();
  }

  Play& play_;
  std::int64_t pounds_;
  std::array<bool, 60> doomed_{};  ///< on a lost square
  std::array<bool, 90> paid_{};
};

}  // namespace simulated
