// What a throw does to the bets: lost stakes go, won ones are paid, and all money comes home.
#include <algorithm>

#include "Graphics/catalogue.h"
#include "game/frmGame.h"
#include "game/pace.h"
#include "game/texts.h"

namespace thistle {

namespace {

/// The three pictures a payout can show, by denomination.
constexpr std::array<const desktop::Picture*, kDenominations> kPiecePictures{&pictures::TenPound, &pictures::FivePound,
                                                                             &pictures::OnePound};

}  // namespace

void frmGame::PayBets() {
  for (int square = 0; square < kSquares; ++square)
    if (BetPieces[square][0] != 0) SettleSquare(square);
  BringStakesHome();
  ShowMoney();
  BankPayouts();
}

void frmGame::SettleSquare(int square) {
  const auto matches = static_cast<int>(std::ranges::count(DiceSquare, square));
  if (matches == kDice) {
    Play("applause");
    FixedDelay(pace::kTriple);
  }
  if (matches == 0)
    LoseStake(square);
  else
    PayWinnings(square, matches);
}

void frmGame::LoseStake(int square) {
  Label1[square].Caption = texts::kYouLose;
  FixedDelay(pace::kLoseCaption);
  for (int place = BetPieces[square][0]; place >= 1; --place) {
    FixedDelay(pace::kMovedPiece);
    const int piece = BetPieces[square][place];
    Money[piece].Visible = false;
    SendHome(piece);
  }
  StackMoney();
}

void frmGame::PayWinnings(int square, int matches) {
  const int winnings = matches * BetValue[square];
  Label1[square].Caption = texts::Win(winnings);
  FixedDelay(pace::kWinCaption);
  // Largest pieces first, whatever the stake was made of.
  int slot = kPayoutsOfSquare * square;
  LayOut(slot, pictures::TenPound, winnings / 10);
  LayOut(slot, pictures::FivePound, winnings % 10 / 5);
  LayOut(slot, pictures::OnePound, winnings % 5);
}

void frmGame::LayOut(int& slot, const desktop::Picture& piece, int count) {
  for (int i = 0; i < count; ++i) {
    Payout[slot].SetPicture(piece);
    Payout[slot].Visible = true;
    BringToFront(Payout[slot]);
    ++slot;
    Play("elevator");
    FixedDelay(pace::kPaidPiece);
  }
}

void frmGame::BringStakesHome() {
  for (int square = 0; square < kSquares; ++square) {
    if (!Label1[square].Caption.starts_with(texts::kWin)) continue;
    for (int place = BetPieces[square][0]; place >= 1; --place) {
      FixedDelay(pace::kMovedPiece);
      const int piece = BetPieces[square][place];
      SendHome(piece);
      BringToFront(Money[piece]);
      ++module1_.MoneyCount[Denomination(piece)];
      ShowTotals();
    }
  }
}

void frmGame::BankPayouts() {
  for (int slot = kPayouts - 1; slot >= 0; --slot) {
    if (!Payout[slot].Visible) continue;
    FixedDelay(pace::kMovedPiece);
    const auto denomination = std::ranges::find(kPiecePictures, Payout[slot].Picture) - kPiecePictures.begin();
    ++module1_.MoneyCount[denomination];
    Payout[slot].Visible = false;
    ShowMoney();
  }
}

}  // namespace thistle
