// New Game, Exit and the frame's close button in every single wait of a throw, a settlement and an
// exchange.
#include <gtest/gtest.h>

#include "tests/simulated/ledger.h"

namespace {

using simulated::AtTable;
using simulated::Play;
using Counts = std::array<std::int64_t, 3>;

/// Something that waits: a throw that shows a triple between two lost squares, one that loses all the money, and an
/// exchange with a second click inside it.
enum class Action { Triple, AllLost, Exchange };

Counts StartOf(Action action) {
  if (action == Action::Triple) return {13, 12, 10};
  return action == Action::AllLost ? Counts{0, 0, 2} : Counts{3, 1, 3};
}

bool Prepare(Play& play, Action action) {
  if (action == Action::Exchange) {
    for (const int inner : {2, 9}) play.desktop.InRest(inner, [&play] { play.desktop.ClickAt(485, 381); });
    return true;
  }
  if (action == Action::AllLost) return play.DealThrow(0, 0, 0), play.Bet(2, 1) && play.Bet(2, 4);
  play.DealThrow(3, 3, 3);
  return play.Bet(0, 0) && play.Bet(2, 0, 70, 60) && play.Bet(1, 3) && play.Bet(2, 3, 70) && play.Bet(0, 5);
}

bool Act(Play& play, Action action) { return action == Action::Exchange ? play.ClickChange() : play.ThrowCup(); }

/// Runs `test` once for each wait of each action, with the action prepared.
void InEachWait(const std::function<void(AtTable&, Action, int)>& test) {
  for (const Action action : {Action::Triple, Action::AllLost, Action::Exchange}) {
    AtTable undisturbed(StartOf(action));
    undisturbed.desktop.answers = {true};
    ASSERT_TRUE(Prepare(undisturbed, action) && Act(undisturbed, action));
    ASSERT_GE(undisturbed.desktop.rests, 18);
    for (int rest = 1; rest <= undisturbed.desktop.rests; ++rest) {
      SCOPED_TRACE(testing::Message() << "action " << static_cast<int>(action) << ", wait " << rest);
      AtTable play(StartOf(action));
      play.desktop.questions.clear();
      ASSERT_TRUE(Prepare(play, action));
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

/// As after any New Game; and a turn runs its whole course.
void ExpectFreshGame(AtTable& play) {
  AtTable fresh;
  EXPECT_EQ(play.money().MoneyCount, (Counts{13, 12, 10}));
  EXPECT_TRUE(Seen(play) == Seen(fresh));
  const simulated::Ledger ledger(play);
  const double start = play.desktop.Clock();
  play.desktop.chance.clear();
  play.DealThrow(4, 4, 0);
  ASSERT_TRUE(play.Drag(12, simulated::OnSquare(4)) && play.ThrowCup());
  EXPECT_NEAR(play.desktop.Clock() - start, 3.22 + 1 + 2 * 0.25 + 3 * 0.5, 1e-9);
  EXPECT_EQ(ledger.pounds(), 220);
}

TEST(Interruption, NewGameExitAndCloseHappenThereAndThen) {
  const std::string newGame = "mnuNewGame", exit = "mnuExit", close = "close";
  for (const auto& chosen : {newGame, exit, close})
    InEachWait([&](AtTable& play, Action action, int rest) {
      Counts piles{};
      double time = -1;
      std::size_t sounds = 0, questions = 0;
      play.desktop.InRest(rest, [&] {
        piles = play.money().MoneyCount;
        time = play.desktop.Clock();
        sounds = play.desktop.sounds.size();
        questions = chosen == close || play.money().MoneyValue[3] == 0 ? 0 : 1;
        play.desktop.answers.assign(questions, true);
        chosen == close ? play.desktop.CloseFrame() : play.desktop.Menu(chosen);
      });
      ASSERT_EQ(Act(play, action), chosen == newGame);
      EXPECT_EQ(play.desktop.Clock(), time);
      EXPECT_EQ(play.desktop.questions.size(), questions);
      if (chosen == newGame) {
        EXPECT_EQ(play.desktop.sounds.size(), sounds);
        EXPECT_EQ(play.table().CupStanding.Enabled, action == Action::Exchange);  // which leaves the cup alone
        return ExpectFreshGame(play);
      }
      ASSERT_EQ(play.desktop.sounds.size(), sounds + 1);
      EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
      EXPECT_TRUE(action == Action::Exchange || simulated::StashOf(play.store) == piles) << "not what lies on the mat";
    });
}

}  // namespace
