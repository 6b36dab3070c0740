// The table in words, for players who hear it.
#include "game/frmGame.h"
#include "game/texts.h"

namespace thistle {

std::vector<desktop::Sentence> frmGame::Sentences() const {
  std::vector<desktop::Sentence> sentences{{DiceInWords()}};
  for (int square = 0; square < kSquares; ++square) {
    const std::string words = SquareInWords(square);
    sentences.push_back({words.empty() ? words : std::string(texts::kSquares[square]) + ": " + words + "."});
  }
  sentences.push_back({Refused ? texts::Full(*Refused) : std::string(), Refusals});
  // While the bank pays, it changes with each piece: told when the next turn is open.
  const bool open = Instruction[0].Visible;
  sentences.push_back({open ? std::string(texts::kLabel2.back()) + ": " + Label3.back().Caption + "." : std::string()});
  return sentences;
}

std::string frmGame::DiceInWords() const {
  if (Throwing) return std::string(texts::kDiceAreThrown);
  std::string words = "Dice:";
  for (int die = 0; die < kDice; ++die)
    words += (die == 0 ? " " : ", ") + std::string(texts::kSquares[DiceSquare[die]]);
  return words + ".";
}

/// Empty where no bet lies.
std::string frmGame::SquareInWords(int square) const {
  const std::string& caption = Label1[square].Caption;
  // The outcome stands there until the next turn.
  if (caption.empty() || caption != texts::Bet(BetValue[square])) return caption;
  return texts::Stake(BetValue[square], BetPieces[square][0], kPiecesOnSquare);
}

}  // namespace thistle
