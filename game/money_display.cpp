// What the piles and the value labels show of the money.
#include "game/frmGame.h"
#include "game/texts.h"

namespace thistle {

void frmGame::ShowMoney() {
  for (int n = 0; n < kPieces; ++n) {
    const int slot = n % kPiecesOfAKind;
    Money[n].Visible = module1_.MoneyCount[Denomination(n)] >= slot + 1;
  }
  StackMoney();
  ShowTotals();
}

void frmGame::StackMoney() {
  for (int n = 0; n < kPieces; ++n)
    if (Money[n].Visible && Money[n].Top == HomeTop[n]) BringToFront(Money[n]);
}

void frmGame::ShowTotals() {
  auto& MoneyValue = module1_.MoneyValue;
  MoneyValue[kDenominations] = 0;
  for (int d = 0; d < kDenominations; ++d) {
    MoneyValue[d] = PieceValue[d] * module1_.MoneyCount[d];
    MoneyValue[kDenominations] += MoneyValue[d];
  }
  for (int i = 0; i <= kDenominations; ++i) Label3[i].Caption = texts::Pounds(MoneyValue[i]);
}

void frmGame::EnableMoney() {
  for (auto& piece : Money)
    if (piece.Visible) piece.Enabled = true;
}

void frmGame::DisableMoney() {
  for (auto& piece : Money) piece.Enabled = false;
}

}  // namespace thistle
