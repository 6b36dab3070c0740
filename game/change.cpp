// "Get Change": breaking notes down, when that is on offer, and what it comes to in the end.
#include <ranges>

#include "game/frmGame.h"
#include "game/pace.h"

namespace thistle {

namespace {

constexpr int kTen = 0;
constexpr int kFive = 1;
constexpr int kOne = 2;

/// One click makes these two, as far as they can be made, one after the other.
struct Breaking {
  int from;    ///< one piece of this denomination
  int to;      ///< becomes pieces of that one
  int pieces;  ///< so many
};
constexpr std::array<Breaking, 2> kBreakings{{{kTen, kFive, 2}, {kFive, kOne, 5}}};

bool CanBeMade(const Breaking& breaking, const Counts& count) {
  return count[breaking.from] != 0 && count[breaking.to] < kPiecesOfAKind;
}

}  // namespace

void frmGame::ShowChange() {
  bool matClear = true;
  for (int n = 0; n < kPieces && matClear; ++n) matClear = IsHome(n);
  const auto& count = module1_.MoneyCount;
  const bool changeTen = count[kFive] < kPiecesOfAKind && count[kTen] != 0;
  // With no £5 notes left, the first exchange of the same click provides one.
  const bool changeFive = count[kOne] < kPiecesOfAKind && (count[kTen] != 0 || count[kFive] != 0);
  Command1.Visible = matClear && (changeTen || changeFive);
}

void frmGame::Command1_Click() {
  // Clicks inside its waits run to their end first, so that the exchanges under way form a stack.
  const std::size_t mine = exchanges_.size();
  exchanges_.emplace_back();
  for (std::size_t i = 0; i < kBreakings.size(); ++i) {
    exchanges_[mine].breaking = i;
    if (CanBeMade(kBreakings[i], module1_.MoneyCount)) Exchange(kBreakings[i].from, kBreakings[i].to, mine);
  }
  EnableMoney();
  ShowChange();
  exchanges_.pop_back();
}

void frmGame::Exchange(int from, int to, std::size_t mine) {
  --module1_.MoneyCount[from];
  exchanges_[mine].owed = kBreakings[exchanges_[mine].breaking].pieces;
  ShowMoney();
  FixedDelay(pace::kExchangeStep);
  while (exchanges_[mine].owed > 0) {
    --exchanges_[mine].owed;
    ++module1_.MoneyCount[to];
    ShowMoney();
    FixedDelay(pace::kExchangeStep);
  }
}

Counts frmGame::MoneyAfterExchanges() const {
  Counts count = module1_.MoneyCount;
  for (const Exchanging& exchange : std::views::reverse(exchanges_)) {
    count[kBreakings[exchange.breaking].to] += exchange.owed;
    for (std::size_t i = exchange.breaking + 1; i < kBreakings.size(); ++i) {
      if (!CanBeMade(kBreakings[i], count)) continue;
      --count[kBreakings[i].from];
      count[kBreakings[i].to] += kBreakings[i].pieces;
    }
  }
  return count;
}

}  // namespace thistle
