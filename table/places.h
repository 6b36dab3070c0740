// The fixed places of everything on the table, in twips.
#pragma once

#include "desktop/building_blocks.h"

namespace thistle::places {

using desktop::Place;
using desktop::Row;

inline constexpr Place kTable{0, 0, 9480, 6090};
inline constexpr Place kShape1{30, 2280, 9420, 1740};

inline constexpr Place kDice[] = {{4680, 600, 1380, 1575}, {6240, 120, 1380, 1575}, {7800, 360, 1380, 1575}};
inline constexpr Place kCupThrow{2520, 0, 1770, 2250};
inline constexpr Place kCupStanding{0, 360, 1365, 1755};
inline constexpr Place kCupLeft{360, 120, 1665, 2100};
inline constexpr Place kCupRight{1200, 120, 1665, 2130};
inline constexpr Place kCupCentre{960, 120, 1335, 2055};

inline constexpr Row kImage1{{90, 2340, 1500, 1500}, 1560};
inline constexpr Row kLabel1{{90, 3720, 1500, 240}, 1560};
inline constexpr Place kLabel2[] = {{120, 4080, 2535, 375},
                                    {120, 4440, 1815, 375},
                                    {120, 4860, 1815, 375},
                                    {120, 5280, 1815, 375},
                                    {120, 5700, 1815, 375}};
inline constexpr Place kLabel3[] = {
    {1920, 4440, 615, 255}, {1920, 4860, 615, 255}, {1920, 5280, 615, 255}, {1920, 5700, 615, 255}};

/// One pile a denomination.
inline constexpr Row kMoney[] = {
    {{2760, 4320, 885, 465}, 120}, {{2760, 4830, 840, 420}, 120}, {{2760, 5280, 300, 300}, 120}};

inline constexpr Place kInstruction[] = {{6300, 4200, 3120, 510}, {6300, 4710, 3120, 570}};
inline constexpr Place kCommand1{7200, 5640, 1335, 375};

/// Where keys lay the pieces of one square: five steps down its diagonal, so that each shows.
constexpr Place Bet(int square, int step) { return {150 + 1560 * square + 135 * step, 2430 + 195 * step, 885, 465}; }

/// Slots of one square for what the bank pays: three rows of five.
constexpr Place Payout(int slot) {
  const int square = slot / 15;
  const int row = slot % 15 / 5;
  const int column = slot % 5;
  return {120 + 1560 * square + 120 * column, 2400 + 120 * row, 885, 465};
}

/// Pixels of a square's height that a piece may use; the caption strip covers the rest.
inline constexpr float kUsableHeight = 92;

}  // namespace thistle::places
