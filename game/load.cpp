// The load of the table form: constants, pictures, and the first game.
#include "Graphics/catalogue.h"
#include "game/frmGame.h"
#include "game/settings.h"
#include "game/texts.h"

namespace thistle {

frmGame::frmGame(Module1& module1) : Form("frmGame"), module1_(module1) {}

void frmGame::Form_Load() {
  LayOutTable();
  ReadStash();
  Command1.SetPicture(pictures::Wood);
  for (int n = 0; n < kPieces; ++n) {
    HomeTop[n] = Money[n].Top;
    HomeLeft[n] = Money[n].Left;
  }
  module1_.desktop.Randomize();
  RandomDice();
  module1_.PlaceForm(*this);
  for (int i = 0; i < kPiecesOfAKind; ++i) {
    Money[i].SetPicture(pictures::TenPound);
    Money[kPiecesOfAKind + i].SetPicture(pictures::FivePound);
    Money[2 * kPiecesOfAKind + i].SetPicture(pictures::OnePound);
  }
  module1_.frmMain.Show(*this);
  if (Stash[kDenominations] == 0 || !module1_.Ask(texts::MoneyFromPreviousGame(Stash[kDenominations]))) {
    NewGame();
    return;
  }
  for (int d = 0; d < kDenominations; ++d) module1_.MoneyCount[d] = Stash[d];
  module1_.MoneyDealt = true;
  ShowMoney();
  SetUpTurn();
}

void frmGame::ReadStash() {
  Stash = {};
  for (int d = 0; d < kDenominations; ++d) {
    Stash[d] = settings::PieceCount(module1_.ReadSetting(settings::kStash[d], "0"));
    Stash[kDenominations] += PieceValue[d] * Stash[d];
  }
}

}  // namespace thistle
