// The table in words, for players who hear it.
#include "game/frmGame.h"
#include "game/texts.h"

namespace thistle {

std::string frmGame::Description() const {
  std::string words = "Your money: " + Label3[kDenominations].Caption + ".";
  for (int d = 0; d < kDenominations; ++d)
    words += " " + std::string(texts::kLabel2[d + 1]) + ": " + Label3[d].Caption + ".";
  for (int square = 0; square < kSquares; ++square)
    if (!Label1[square].Caption.empty())
      words += " " + std::string(texts::kSquares[square]) + ": " + Label1[square].Caption + ".";
  if (!Dice[0].Visible || !Dice[1].Visible || !Dice[2].Visible) return words + " The dice are being thrown.";
  words += " Dice:";
  for (int die = 0; die < kDice; ++die)
    words += (die == 0 ? " " : ", ") + std::string(texts::kSquares[DiceSquare[die]]);
  return words + ".";
}

}  // namespace thistle
