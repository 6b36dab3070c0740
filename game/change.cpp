// "Get Change": breaking notes down, and when that is on offer.
#include "game/frmGame.h"
#include "game/pace.h"

namespace thistle {

namespace {

constexpr int kTen = 0;
constexpr int kFive = 1;
constexpr int kOne = 2;

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
  ++exchanging_;
  MakeChange();
  --exchanging_;
}

void frmGame::MakeChange() {
  const auto& count = module1_.MoneyCount;
  if (count[kTen] != 0 && count[kFive] < kPiecesOfAKind) Exchange(kTen, kFive, 2);
  if (count[kFive] != 0 && count[kOne] < kPiecesOfAKind) Exchange(kFive, kOne, 5);
  EnableMoney();
  ShowChange();
}

void frmGame::Exchange(int from, int to, int pieces) {
  --module1_.MoneyCount[from];
  ShowMoney();
  FixedDelay(pace::kExchangeStep);
  for (int i = 0; i < pieces; ++i) {
    ++module1_.MoneyCount[to];
    ShowMoney();
    FixedDelay(pace::kExchangeStep);
  }
}

}  // namespace thistle
