// The table's words.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace thistle::texts {

inline constexpr std::array<std::string_view, 5> kLabel2{"Your Money", "Ten Pound Notes", "Five Pound Notes",
                                                         "One Pound Coins", "Total"};
inline constexpr std::array<std::string_view, 2> kInstruction{"Drag and Drop Notes or Coins Onto the Mat Above to Bet",
                                                              "When Finished, Click on the Dice Cup to Roll the Dice"};
inline constexpr std::string_view kGetChange = "Get Change";

inline constexpr std::string_view kYouLose = "YOU LOSE";
/// What the caption of a won square begins with; the stakes that come home are told by it.
inline constexpr std::string_view kWin = "WIN";

inline constexpr std::string_view kNoMoneyLeft = "You Have No Money Left\r\nWould You Like Another £200 ?";

// For a screen reader: the form, the squares of the mat from the left, what else lies on the table, and what can be
// done with it.
inline constexpr std::string_view kTable = "Table";
inline constexpr std::array<std::string_view, 6> kSquares{"heart", "spade", "diamond", "club", "thistle", "lantern"};
inline constexpr std::string_view kCup = "dice cup";
inline constexpr std::string_view kReady = "ready to throw";
inline constexpr std::array<std::string_view, 3> kDice{"first die", "second die", "third die"};
inline constexpr std::string_view kThrown = "being thrown";
inline constexpr std::string_view kDiceAreThrown = "The dice are being thrown.";
inline constexpr std::string_view kThrow = "throw the dice";
inline constexpr std::string_view kNoBet = "no bet";
inline constexpr std::string_view kBetMore = "bet one more";
inline constexpr std::string_view kTakeBack = "take back";

inline std::string BetOn(int square) { return "bet on " + std::string(kSquares[static_cast<std::size_t>(square)]); }
inline std::string MoveTo(int square) { return "move to " + std::string(kSquares[static_cast<std::size_t>(square)]); }
inline std::string Full(int square) { return std::string(kSquares[static_cast<std::size_t>(square)]) + " is full."; }
inline std::string Pieces(std::int64_t count) { return std::to_string(count) + (count == 1 ? " piece" : " pieces"); }
inline std::string Stake(int amount, int pieces, int room) {
  return "£" + std::to_string(amount) + " bet, " + std::to_string(pieces) + " of " + std::to_string(room) + " pieces";
}

/// "£" and the digits of `amount`, without separators.
inline std::string Pounds(std::int64_t amount) { return "£" + std::to_string(amount); }

inline std::string Bet(int amount) { return Pounds(amount) + " Bet"; }

inline std::string Win(int amount) { return std::string(kWin) + " " + Pounds(amount); }

inline std::string MoneyFromPreviousGame(std::int64_t amount) {
  return "You Have " + Pounds(amount) + " Left From a Previous Game\r\nWould You Like To Start With This Amount ?";
}

}  // namespace thistle::texts
