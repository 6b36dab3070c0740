// The gesture that moves money between the piles and the mat: press, drag, release.
//
// A piece's value leaves the figures at the press and enters them again at the release. Where the
// piece came from is not remembered: the press has settled it.
#include "game/frmGame.h"
#include "game/texts.h"
#include "table/twips.h"

namespace thistle {

using desktop::kLeftButton;
using desktop::PointerShape;

void frmGame::Money_MouseDown(int Index, int Button, float X, float Y) {
  if (Button != kLeftButton) return;
  Refused.reset();
  BringToFront(Money[Index]);
  GrabX = X;
  GrabY = Y;
  if (const auto square = SquareUnder(Index, X, Y))
    LiftFromSquare(Index, *square);
  else
    LiftFromPile(Index);
}

void frmGame::Money_MouseMove(int Index, int Button, float X, float Y) {
  if (Button != kLeftButton) return;
  SquareUnder(Index, X, Y);
  FollowPointer(Index, X, Y);
  MousePointer = DropAllowed ? PointerShape::Default : PointerShape::NoDrop;
}

void frmGame::Money_MouseUp(int Index, int Button, float X, float Y) {
  if (Button != kLeftButton) return;
  const auto square = SquareUnder(Index, X, Y);
  FollowPointer(Index, X, Y);
  if (square && DropAllowed) {
    DropOnSquare(Index, *square);
  } else {
    Refused = square;
    Refusals += square ? 1 : 0;
    ReturnToPile(Index);
  }
  StackMoney();
  MousePointer = PointerShape::Default;
}

/// The mouse was taken away: the same as a release off the mat.
void frmGame::Money_MouseLost(int Index) {
  ReturnToPile(Index);
  StackMoney();
  MousePointer = PointerShape::Default;
}

void frmGame::FollowPointer(int Index, float X, float Y) {
  Money[Index].Left += ToPixels(X - GrabX);
  Money[Index].Top += ToPixels(Y - GrabY);
}

/// The square under the tip of the pointer. The offset counts from where the piece was when the event
/// was raised, so this comes before the piece moves.
std::optional<int> frmGame::SquareUnder(int Index, float X, float Y) {
  return FindSquare(Money[Index].Left + ToPixels(X), Money[Index].Top + ToPixels(Y));
}

void frmGame::LiftFromPile(int Index) {
  --module1_.MoneyCount[Denomination(Index)];
  ShowTotals();
  Command1.Visible = false;
}

void frmGame::LiftFromSquare(int Index, int square) {
  BetValue[square] -= PieceValue[Denomination(Index)];
  auto& pieces = BetPieces[square];
  const int count = pieces[0];
  int place = 1;
  while (place < count && pieces[place] != Index) ++place;
  for (; place < count; ++place) pieces[place] = pieces[place + 1];
  pieces[count] = 0;
  pieces[0] = count - 1;
  ShowBets();
}

void frmGame::ReturnToPile(int Index) {
  SendHome(Index);
  ++module1_.MoneyCount[Denomination(Index)];
  ShowTotals();
  ShowChange();
}

void frmGame::DropOnSquare(int Index, int square) {
  PlaceOnSquare(Index, square);
  DenominationLaid = Denomination(Index);
  BetValue[square] += PieceValue[Denomination(Index)];
  auto& pieces = BetPieces[square];
  ++pieces[0];
  pieces[pieces[0]] = Index;
  ShowBets();
}

/// Writes the stakes under the squares. The cup is live exactly while there is one.
void frmGame::ShowBets() {
  bool staked = false;
  for (int square = 0; square < kSquares; ++square) {
    const int stake = BetValue[square];
    Label1[square].Caption = stake != 0 ? texts::Bet(stake) : std::string();
    staked = staked || stake != 0;
  }
  CupStanding.Enabled = staked;
  Instruction[1].Visible = staked;
}

}  // namespace thistle
