// The pace of the game: every wait there is, in seconds.
#pragma once

namespace thistle::pace {

// The shake.
inline constexpr double kCupLifted = 0.7;
inline constexpr double kCupSwing = 0.16;  ///< each swing to one side
inline constexpr double kCupTipped = 0.3;
// The roll.
inline constexpr double kRollTick = 0.05;
// The settlement.
inline constexpr double kTriple = 1.875;  ///< after the applause has begun
inline constexpr double kLoseCaption = 0.5;
inline constexpr double kWinCaption = 1;
inline constexpr double kPaidPiece = 0.25;  ///< after a piece has been laid out
inline constexpr double kMovedPiece = 0.5;  ///< before a piece leaves the mat
// The exchange.
inline constexpr double kExchangeStep = 0.25;

}  // namespace thistle::pace
