// How a game starts, how turn follows turn, and what happens when the money is gone.
#include "game/frmGame.h"
#include "game/texts.h"

namespace thistle {

void frmGame::RunToItsEnd(void (frmGame::*handler)()) {
  ++running_;
  (this->*handler)();
  if (--running_ > 0 || !newGameWaits_) return;
  newGameWaits_ = false;
  StartNewGame();
}

void frmGame::NewGame() {
  // Waits in progress look at this flag as soon as the event that called here is over.
  if (running_ > 0) {
    newGameWaits_ = true;
    return;
  }
  StartNewGame();
}

void frmGame::StartNewGame() {
  module1_.desktop.ReleaseMouse();
  SendAllHome();
  FreshStake();
  SetUpTurn();
}

void frmGame::SendAllHome() {
  for (int n = 0; n < kPieces; ++n)
    if (!IsHome(n)) SendHome(n);
}

void frmGame::FreshStake() {
  module1_.MoneyCount = {13, 12, 10};
  module1_.MoneyDealt = true;
  ShowMoney();
}

void frmGame::SetUpTurn() {
  for (desktop::Element* element :
       {&CupLeft, &CupRight, &CupCentre, &CupThrow, &Instruction[0], &Instruction[1], &Command1})
    element->Visible = false;
  NextTurn();
}

void frmGame::NextTurn() {
  ClearBets();
  if (module1_.MoneyValue[kDenominations] == 0 && !Hurrying()) OfferFreshStake();
  EnableMoney();
  Instruction[0].Visible = true;
  ShowChange();
}

void frmGame::ClearBets() {
  BetValue = {};
  BetPieces = {};
  for (auto& caption : Label1) caption.Caption.clear();
}

void frmGame::OfferFreshStake() {
  Play("peoplelaugh");
  if (module1_.Ask(texts::kNoMoneyLeft)) {
    FreshStake();
    return;
  }
  module1_.frmMain.Close();
}

void frmGame::CupStanding_Click() {
  DisableMoney();
  Command1.Visible = false;
  CupStanding.Enabled = false;
  Instruction[0].Visible = false;
  Instruction[1].Visible = false;
  ThrowDice();
  PayBets();
  NextTurn();
}

}  // namespace thistle
