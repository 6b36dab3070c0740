// Where a piece comes to lie: on a square, or at home in its pile.
#include "game/frmGame.h"
#include "table/places.h"

namespace thistle {

/// The piece stays where it was released, pushed only as far as it must be to lie inside.
void frmGame::PlaceOnSquare(int piece, int square) {
  const auto& ground = Image1[square];
  auto& money = Money[piece];
  const float lowest = ground.Top + places::kUsableHeight - money.Height;
  const float rightmost = ground.Left + ground.Width - money.Width;
  if (money.Top < ground.Top) money.Top = ground.Top;
  if (lowest < money.Top) money.Top = lowest;
  if (money.Left < ground.Left) money.Left = ground.Left;
  if (rightmost < money.Left) money.Left = rightmost;
}

bool frmGame::IsHome(int piece) const {
  return Money[piece].Top == HomeTop[piece] && Money[piece].Left == HomeLeft[piece];
}

void frmGame::SendHome(int piece) { Money[piece].MoveTo(HomeLeft[piece], HomeTop[piece]); }

}  // namespace thistle
