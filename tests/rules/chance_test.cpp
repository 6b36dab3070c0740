// The dice are fair, and independent of each other.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "desktop/common/chance.h"
#include "tests/simulated/play.h"

namespace {

/// Chi-squared of counts against equal shares.
double ChiSquared(const std::vector<int>& counts) {
  double expected = 0;
  for (const int count : counts) expected += count / static_cast<double>(counts.size());
  double sum = 0;
  for (const int count : counts) sum += (count - expected) * (count - expected) / expected;
  return sum;
}

TEST(Chance, ThrowsAreFairAndDiceIndependent) {
  constexpr int kThrows = 60000;
  // One note keeps the money from running out, and the piles quick to draw.
  simulated::AtTable play({1, 0, 0});
  auto& table = play.table();
  std::vector<std::vector<int>> faces(3, std::vector<int>(6));
  std::vector<int> combinations(216);
  std::vector<int> spins(8);
  for (int i = 0; i < kThrows; ++i) {
    table.CupStanding.Enabled = true;
    ASSERT_TRUE(play.ThrowCup());
    for (int die = 0; die < 3; ++die) ++faces[die][table.DiceSquare[die]];
    ++combinations[36 * table.DiceSquare[0] + 6 * table.DiceSquare[1] + table.DiceSquare[2]];
    ++spins[table.DiceSpin[0] / 8 + 2 * (table.DiceSpin[1] / 8) + 4 * (table.DiceSpin[2] / 8)];
    play.desktop.sounds.clear();
  }
  // Fair dice exceed each bound once in a thousand runs; the generator's start is fixed.
  for (const auto& counts : faces) EXPECT_LT(ChiSquared(counts), 20.52);
  EXPECT_LT(ChiSquared(combinations), 283.6);
  EXPECT_LT(ChiSquared(spins), 24.32);
}

TEST(Chance, NumbersStayBelowOneAndFollowTheSeed) {
  // The first draw of this seed begins with 25 ones, which a plain division would round up to 1.
  constexpr std::uint64_t kSeed = 3138459;
  ASSERT_EQ(std::mt19937_64(kSeed)() >> 39, 0x1FFFFFFU);
  desktop::common::Chance chance(kSeed);
  EXPECT_EQ(chance.Next(), std::nextafter(1.0F, 0.0F));
  EXPECT_NE(desktop::common::Chance(1).Next(), desktop::common::Chance(2).Next());
  chance.Seed(1);
  EXPECT_EQ(chance.Next(), desktop::common::Chance(1).Next());
}

TEST(Chance, StartsAnewFromTheClock) {
  desktop::common::Chance one, other;
  one.Randomize();
  other.Randomize();
  int same = 0;
  for (int i = 0; i < 20; ++i) same += one.Next() == other.Next() ? 1 : 0;
  EXPECT_LT(same, 5);
}

}  // namespace
