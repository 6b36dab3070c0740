// Over which square of the mat a point lies.
#include "game/frmGame.h"

namespace thistle {

/// The point is in pixels on the table. The result names a full square too; DropAllowed tells
/// whether there is a free place.
std::optional<int> frmGame::FindSquare(float X, float Y) {
  DropAllowed = false;
  for (int square = 0; square < kSquares; ++square) {
    if (!Image1[square].Contains(X, Y)) continue;
    DropAllowed = BetPieces[square][0] != kPiecesOnSquare;
    return square;
  }
  return std::nullopt;
}

}  // namespace thistle
