// New Game, Exit and the frame's close button in every single wait of a throw, a settlement and an
// exchange.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/simulated/ledger.h"

namespace {

using simulated::AtTable;
using simulated::kGap;
using simulated::Play;
using Counts = std::array<std::int64_t, 3>;

/// Something that waits.
struct Action {
  const char* name;
  Counts start;
  std::function<bool(Play&)> prepare;
  std::function<bool(Play&)> run;
  int rests;  ///< of one undisturbed run
};

bool Throw(Play& play) { return play.ThrowCup(); }
bool Change(Play& play) { return play.ClickChange(); }

std::vector<Action> Actions() {
  std::vector<Action> actions{
      {"throw on the empty mat", {1, 0, 0}, [](Play& play) { return play.DealThrow(0, 1, 2), true; }, Throw, 20},
      {"triple between two lost squares",
       {13, 12, 10},
       [](Play& play) {
         play.DealThrow(3, 3, 3);
         return play.Bet(0, 0) && play.Bet(2, 0, 70, 60) && play.Bet(1, 3) && play.Bet(2, 3, 70) && play.Bet(0, 5);
       },
       Throw,
       20 + 3 + 1 + 1 + 5 + 2 + 2 + 5},
      {"a win, a double win and a loss",
       {13, 22, 10},
       [](Play& play) {
         play.DealThrow(5, 1, 5);
         return play.Bet(1, 1) && play.Bet(2, 2) && play.Bet(2, 5) && play.Bet(2, 5, 60);
       },
       Throw,
       20 + 2 + 2 + 1 + 4 + 1 + 2 + 5},
      {"all money staked and lost",
       {0, 0, 2},
       [](Play& play) {
         play.DealThrow(0, 0, 0);
         return play.Bet(2, 1) && play.Bet(2, 4);
       },
       Throw,
       20 + 4},
      {"exchange of both kinds", {3, 1, 3}, [](Play&) { return true; }, Change, 9},
  };
  for (int inner = 1; inner <= 9; ++inner)
    actions.push_back({"second click inside an exchange",
                       {3, 1, 3},
                       [inner](Play& play) {
                         play.desktop.InRest(inner, [&play] { play.desktop.ClickAt(485, 381); });
                         return true;
                       },
                       Change,
                       9 + 9});
  return actions;
}

/// Runs `test` once for each wait of each action, with the action prepared.
void InEachWait(const std::function<void(AtTable&, const Action&, int)>& test) {
  for (const auto& action : Actions())
    for (int rest = 1; rest <= action.rests; ++rest) {
      SCOPED_TRACE(testing::Message() << action.name << ", wait " << rest);
      AtTable play(action.start);
      play.desktop.questions.clear();
      ASSERT_TRUE(action.prepare(play));
      test(play, action, rest);
      if (testing::Test::HasFailure()) return;
    }
}

void ExpectFreshGame(Play& play) {
  auto& table = play.table();
  EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
  EXPECT_EQ(table.Label3[3].Caption, "£200");
  for (int n = 0; n < 60; ++n) {
    EXPECT_TRUE(play.IsHome(n)) << n;
    EXPECT_EQ(table.Money[n].Visible, n % 20 < (std::array{13, 12, 10}[n / 20])) << n;
    EXPECT_TRUE(table.Money[n].Enabled || !table.Money[n].Visible) << n;
  }
  for (int s = 0; s < 6; ++s) {
    EXPECT_EQ(table.Label1[s].Caption, "");
    EXPECT_EQ(table.BetValue[s], 0);
    EXPECT_EQ(table.BetPieces[s], (std::array<int, 6>{}));
  }
  for (const auto& payout : table.Payout) EXPECT_FALSE(payout.Visible);
  for (const auto* cup : {&table.CupLeft, &table.CupRight, &table.CupCentre, &table.CupThrow})
    EXPECT_FALSE(cup->Visible);
  EXPECT_TRUE(table.CupStanding.Visible && table.Instruction[0].Visible && table.Command1.Visible);
  EXPECT_FALSE(table.Instruction[1].Visible);
  for (int die = 0; die < 3; ++die) {
    EXPECT_TRUE(table.Dice[die].Visible);
    EXPECT_EQ(table.DiceFrame[die] % 4, 0);
    EXPECT_EQ(table.DiceSquare[die], (std::array{0, 3, 4, 5, 2, 1}[table.DiceFrame[die] / 4]));
  }
}

TEST(Interruption, WaitsAreCounted) {
  for (const auto& action : Actions()) {
    AtTable play(action.start);
    ASSERT_TRUE(action.prepare(play));
    play.desktop.answers = {true};
    ASSERT_TRUE(action.run(play));
    EXPECT_EQ(play.desktop.rests, action.rests) << action.name;
  }
}

TEST(Interruption, NewGameStartsAtOnce) {
  InEachWait([](AtTable& play, const Action& action, int rest) {
    double chosen = -1;
    std::size_t sounds = 0;
    std::size_t questions = 0;
    play.desktop.InRest(rest, [&] {
      questions = play.money().MoneyValue[3] == 0 ? 0 : 1;
      play.desktop.answers.assign(questions, true);
      play.desktop.Menu("mnuNewGame");
      chosen = play.desktop.Clock();
      sounds = play.desktop.sounds.size();
    });
    ASSERT_TRUE(action.run(play));
    EXPECT_EQ(play.desktop.Clock(), chosen);
    EXPECT_EQ(play.desktop.sounds.size(), sounds);
    EXPECT_EQ(play.desktop.questions.size(), questions);
    ExpectFreshGame(play);
    EXPECT_EQ(play.table().CupStanding.Enabled, action.rests < 20);  // an exchange leaves the cup alone

    // And a turn of the new game runs its whole course.
    const simulated::Ledger ledger(play);
    play.desktop.chance.clear();
    play.DealThrow(4, 4, 0);
    ASSERT_TRUE(play.Drag(12, simulated::OnSquare(4)) && play.ThrowCup());
    EXPECT_NEAR(play.desktop.Clock() - chosen, 3.22 + 1 + 2 * 0.25 + 3 * 0.5, 1e-9);
    EXPECT_EQ(ledger.pounds(), 220);
  });
}

TEST(Interruption, ExitAndCloseEndTheRunThereAndThen) {
  for (const bool close : {false, true})
    InEachWait([close](AtTable& play, const Action& action, int rest) {
      std::vector<std::string> expected;
      double chosen = -1;
      std::size_t sounds = 0;
      play.desktop.InRest(rest, [&] {
        play.desktop.answers = {true};
        chosen = play.desktop.Clock();
        sounds = play.desktop.sounds.size();
        expected = {"SoundOn=True"};
        for (int d = 0; d < 3; ++d)
          expected.push_back("Stash" + std::to_string(d) + "=" + std::to_string(play.money().MoneyCount[d]));
        expected.insert(expected.end(), {"MainLeft=4800", "MainTop=2612"});
        close ? play.desktop.CloseFrame() : play.desktop.Menu("mnuExit");
      });
      EXPECT_FALSE(action.run(play));
      EXPECT_TRUE(play.ended);
      EXPECT_EQ(play.desktop.saved, expected);
      EXPECT_EQ(play.desktop.Clock(), chosen);
      ASSERT_EQ(play.desktop.sounds.size(), sounds + 1);
      EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
      const bool asked = !close && play.money().MoneyValue[3] != 0;
      EXPECT_EQ(play.desktop.questions.size(), asked ? 1U : 0U);
    });
}

TEST(Interruption, RefusedQuestionsChangeNothing) {
  for (const char* entry : {"mnuNewGame", "mnuExit"})
    InEachWait([entry](AtTable& play, const Action& action, int rest) {
      if (play.money().MoneyValue[3] == 0) return;
      AtTable undisturbed(action.start);
      ASSERT_TRUE(action.prepare(undisturbed) && action.run(undisturbed));
      const simulated::Ledger ledger(play);
      play.desktop.InRest(rest, [&] {
        play.desktop.answers = {false};
        play.desktop.Menu(entry);
      });
      ASSERT_TRUE(action.run(play));
      EXPECT_NEAR(play.desktop.Clock(), undisturbed.desktop.Clock(), action.rests < 20 ? 0.25 : 1e-9);
      EXPECT_EQ(play.desktop.sounds.size(), undisturbed.desktop.sounds.size());
      EXPECT_EQ(play.money().MoneyCount, undisturbed.money().MoneyCount);
    });
}

}  // namespace
