// The dice are fair, and independent of each other.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "desktop/chance.h"
#include "tests/simulated/play.h"

namespace {

/// Chi-squared of counts against equal shares, or against `shares` of the whole.
double ChiSquared(const std::vector<int>& counts, std::vector<double> shares = {}) {
  if (shares.empty()) shares.assign(counts.size(), 1.0 / static_cast<double>(counts.size()));
  double total = 0;
  for (const int count : counts) total += count;
  double sum = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    const double expected = total * shares[i];
    sum += (counts[i] - expected) * (counts[i] - expected) / expected;
  }
  return sum;
}

TEST(Chance, ThrowsAreFairAndDiceIndependent) {
  constexpr int kThrows = 60000;
  // One note keeps the money from running out, and the piles quick to draw.
  simulated::AtTable play({1, 0, 0});
  auto& table = play.table();
  std::vector<std::vector<int>> faces(3, std::vector<int>(6));
  std::vector<int> combinations(216);
  std::vector<int> lastTicks(4);
  for (int i = 0; i < kThrows; ++i) {
    const double start = play.desktop.Clock();
    table.CupStanding.Enabled = true;
    ASSERT_TRUE(play.ThrowCup());
    for (int die = 0; die < 3; ++die) ++faces[die][table.DiceSquare[die]];
    ++combinations[36 * table.DiceSquare[0] + 6 * table.DiceSquare[1] + table.DiceSquare[2]];
    const auto ticks = std::lround((play.desktop.Clock() - start - 2.92) / 0.05);
    ASSERT_TRUE(ticks == 6 || (ticks >= 8 && ticks <= 10)) << ticks;
    ++lastTicks[ticks == 6 ? 0 : static_cast<std::size_t>(ticks - 7)];
    play.desktop.sounds.clear();
  }
  // Fair dice exceed each bound once in a thousand runs; the generator's start is fixed.
  for (const auto& counts : faces) EXPECT_LT(ChiSquared(counts), 20.52);
  EXPECT_LT(ChiSquared(combinations), 283.6);
  EXPECT_LT(ChiSquared(lastTicks, {1.0 / 8, 1.0 / 8, 1.0 / 4, 1.0 / 2}), 16.27);
}

TEST(Chance, NumbersStayBelowOne) {
  // The first draw of this seed begins with 25 ones, which a plain division would round up to 1.
  constexpr std::uint64_t kSeed = 3138459;
  ASSERT_EQ(std::mt19937_64(kSeed)() >> 39, 0x1FFFFFFU);
  EXPECT_EQ(desktop::Chance(kSeed).Next(), std::nextafter(1.0F, 0.0F));
}

TEST(Chance, SeedsTellRunsApart) {
  desktop::Chance first(1);
  desktop::Chance second(2);
  const std::vector one{first.Next(), first.Next(), first.Next()};
  EXPECT_NE(one, (std::vector{second.Next(), second.Next(), second.Next()}));
  second.Seed(1);
  EXPECT_EQ(one, (std::vector{second.Next(), second.Next(), second.Next()}));
}

}  // namespace
