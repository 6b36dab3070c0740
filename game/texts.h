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

// For a screen reader: the form, and the squares of the mat from the left.
inline constexpr std::string_view kTable = "Table";
inline constexpr std::array<std::string_view, 6> kSquares{"heart", "spade", "diamond", "club", "thistle", "lantern"};

/// "£" and the digits of `amount`, without separators.
inline std::string Pounds(std::int64_t amount) { return "£" + std::to_string(amount); }

inline std::string Bet(int amount) { return Pounds(amount) + " Bet"; }

inline std::string Win(int amount) { return std::string(kWin) + " " + Pounds(amount); }

inline std::string MoneyFromPreviousGame(std::int64_t amount) {
  return "You Have " + Pounds(amount) + " Left From a Previous Game\r\nWould You Like To Start With This Amount ?";
}

}  // namespace thistle::texts
