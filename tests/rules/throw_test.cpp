// How the dice are drawn and roll.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/simulated/play.h"

namespace {

using simulated::AtTable;

struct Deal {
  std::array<int, 3> groups;  ///< on which each die starts
  std::array<int, 3> spins;   ///< groups by which each die turns
  int lastTick;
};

TEST(Throw, EachDieRollsItsOwnWay) {
  const Deal deals[] = {
      {{5, 0, 3}, {1, 1, 1}, 6},  {{5, 0, 3}, {2, 1, 1}, 8},  {{4, 1, 2}, {1, 2, 1}, 9},  {{0, 0, 0}, {2, 2, 1}, 9},
      {{1, 5, 4}, {1, 1, 2}, 10}, {{2, 1, 5}, {2, 1, 2}, 10}, {{3, 4, 0}, {1, 2, 2}, 10}, {{4, 0, 4}, {2, 2, 2}, 10},
  };
  for (const auto& deal : deals) {
    AtTable play;
    const auto& table = play.table();
    for (const int group : deal.groups) play.desktop.chance.push_back(simulated::GroupDraw(group));
    for (const int spin : deal.spins) play.desktop.chance.push_back(simulated::SpinDraw(spin));
    play.desktop.afterEvent = [&] {
      const double now = play.desktop.Clock();
      if (play.desktop.Waits() == 0) return;
      const int tick = now < 2.9 ? 0 : static_cast<int>(std::lround((now - 2.92) / 0.05)) + 1;
      for (int die = 0; die < 3; ++die) {
        SCOPED_TRACE(testing::Message() << "die " << die << ", tick " << tick);
        const int turned = std::clamp(tick - die, 0, 4 * deal.spins[die]);
        const int frame = (4 * deal.groups[die] + (die == 1 ? 24 - turned : turned)) % 24;
        EXPECT_EQ(table.Dice[die].Visible, turned > 0);
        EXPECT_EQ(table.DiceFrame[die], frame);
        EXPECT_EQ(table.DiceSquare[die], (std::array{0, 3, 4, 5, 2, 1}[frame / 4]));
        EXPECT_EQ(table.Dice[die].Picture->name,
                  "Anidice" + std::string(frame < 10 ? "0" : "") + std::to_string(frame));
      }
    };
    ASSERT_TRUE(play.ThrowCup());
    EXPECT_NEAR(play.desktop.sounds.back().time, 2.92 + 0.05 * (deal.lastTick - 1), 1e-9);
    EXPECT_EQ(play.desktop.sounds.back().what, "ROLLDICEEND");
    EXPECT_NEAR(play.desktop.Clock(), 2.92 + 0.05 * deal.lastTick, 1e-9);
  }
}

TEST(Throw, DrawsAndSeeds) {
  simulated::Store store;
  simulated::Play play(store);
  play.desktop.chance = {std::nextafter(1.0F, 0.0F), 0.0F, 1.0F / 6};
  ASSERT_TRUE(play.StartAtTable());
  EXPECT_EQ(play.desktop.drawn, 3);
  EXPECT_EQ(play.table().DiceFrame, (std::array{20, 0, 4}));
  for (const auto& die : play.table().Dice) EXPECT_TRUE(die.Visible);

  ASSERT_TRUE(play.ThrowCup() && play.Bet(2, 0) && play.ThrowCup());
  play.desktop.answers = {true};
  play.desktop.Menu("mnuNewGame");
  EXPECT_EQ(play.desktop.drawn, 3 + 2 * 6);
  EXPECT_EQ(play.desktop.seeded, 1);
}

}  // namespace
