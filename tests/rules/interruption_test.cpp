// New Game, Exit and the frame's close button in every single wait of a throw, a settlement and an
// exchange.
#include <gtest/gtest.h>

#include "tests/simulated/ledger.h"

namespace {

using simulated::AtTable;
using simulated::Play;
using Counts = std::array<std::int64_t, 3>;

/// Something that waits.
struct Action {
  const char* name;
  bool throws;  ///< the cup; or else changes money
  Counts start;
  std::function<bool(Play&)> prepare;

  bool Run(Play& play) const { return throws ? play.ThrowCup() : play.ClickChange(); }
};

std::vector<Action> Actions() {
  std::vector<Action> actions{
      {"throw on the empty mat", true, {1, 0, 0}, [](Play& play) { return play.DealThrow(0, 1, 2), true; }},
      {"triple between two lost squares",
       true,
       {13, 12, 10},
       [](Play& play) {
         play.DealThrow(3, 3, 3);
         return play.Bet(0, 0) && play.Bet(2, 0, 70, 60) && play.Bet(1, 3) && play.Bet(2, 3, 70) && play.Bet(0, 5);
       }},
      {"all money staked and lost",
       true,
       {0, 0, 2},
       [](Play& play) { return play.DealThrow(0, 0, 0), play.Bet(2, 1) && play.Bet(2, 4); }},
      {"exchange of both kinds", false, {3, 1, 3}, [](Play&) { return true; }},
  };
  for (int inner = 1; inner <= 9; ++inner)
    actions.push_back({"second click inside an exchange", false, {3, 1, 3}, [inner](Play& play) {
                         play.desktop.InRest(inner, [&play] { play.desktop.ClickAt(485, 381); });
                         return true;
                       }});
  return actions;
}

/// Runs `test` once for each wait of each action, with the action prepared.
void InEachWait(const std::function<void(AtTable&, const Action&, int)>& test) {
  for (const auto& action : Actions()) {
    AtTable undisturbed(action.start);
    undisturbed.desktop.answers = {true};
    ASSERT_TRUE(action.prepare(undisturbed) && action.Run(undisturbed));
    ASSERT_GE(undisturbed.desktop.rests, action.throws ? 20 : 9);
    for (int rest = 1; rest <= undisturbed.desktop.rests; ++rest) {
      SCOPED_TRACE(testing::Message() << action.name << ", wait " << rest);
      AtTable play(action.start);
      play.desktop.questions.clear();
      ASSERT_TRUE(action.prepare(play));
      test(play, action, rest);
      if (testing::Test::HasFailure()) return;
    }
  }
}

/// What can be seen of a table at rest, but for its dice: each element's place and caption.
auto Seen(Play& play) {
  std::map<std::pair<std::string_view, int>, std::tuple<bool, float, float, std::string>> seen;
  for (const auto* element : play.table().Graphics())
    seen[{element->Name, element->Index}] = {element->Visible, element->Left, element->Top, element->Caption};
  return seen;
}

TEST(Interruption, NewGameStartsAtOnce) {
  AtTable fresh;
  InEachWait([&](AtTable& play, const Action& action, int rest) {
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
    ASSERT_TRUE(action.Run(play));
    EXPECT_EQ(play.desktop.Clock(), chosen);
    EXPECT_EQ(play.desktop.sounds.size(), sounds);
    EXPECT_EQ(play.desktop.questions.size(), questions);
    EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
    EXPECT_TRUE(Seen(play) == Seen(fresh));
    EXPECT_EQ(play.table().BetValue, fresh.table().BetValue);
    EXPECT_EQ(play.table().BetPieces, fresh.table().BetPieces);
    for (const int frame : play.table().DiceFrame) EXPECT_EQ(frame % 4, 0);
    EXPECT_EQ(play.table().CupStanding.Enabled, !action.throws);  // an exchange leaves the cup alone

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
      EXPECT_FALSE(action.Run(play));
      if (action.throws) {
        EXPECT_EQ(play.desktop.saved, expected) << "what lies on the mat is not stored";
      } else {
        EXPECT_EQ(simulated::Pounds(simulated::StashOf(play.store)), simulated::Pounds(action.start));
      }
      EXPECT_EQ(play.desktop.Clock(), chosen);
      ASSERT_EQ(play.desktop.sounds.size(), sounds + 1);
      EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
      const bool asked = !close && play.money().MoneyValue[3] != 0;
      EXPECT_EQ(play.desktop.questions.size(), asked ? 1U : 0U);
    });
}

}  // namespace
