// The frame around the table: opening form, menu, and the fitting of forms to the window.
#include <gtest/gtest.h>

#include "tests/simulated/play.h"

namespace {

using desktop::WindowState;
using simulated::AtTable;
using simulated::Play;
using simulated::Store;
using Counts = std::array<std::int64_t, 3>;

const std::string kAt = "Thistle and Lantern/Settings/";

TEST(Fitting, OffsetIsTheStartOfTheRun) {
  Store store{{kAt + "MainLeft", "150"}, {kAt + "MainTop", "-300"}};
  Play play(store);
  ASSERT_TRUE(play.Start());
  play.frame->Left = 6000;  // the user moves the frame
  play.desktop.SetState(WindowState::Maximised);
  EXPECT_EQ(play.frame->Splash.Left, 10);
  play.desktop.Enter();  // the table is loaded into the large frame
  EXPECT_EQ(play.frame->Children(), std::vector<desktop::Form*>{&play.table()});
  const auto& table = play.table();
  for (const auto& [state, left, top] : {std::tuple{WindowState::Maximised, 10, -20},
                                         {WindowState::Minimised, 10, -20},
                                         {WindowState::Normal, 0, 0},
                                         {WindowState::Minimised, 0, 0},
                                         {WindowState::Maximised, 10, -20}}) {
    if (play.frame->State != state) play.desktop.SetState(state);
    EXPECT_EQ(table.Left, left);
    EXPECT_EQ(table.Top, top);
  }
}

TEST(Menu, AsksBeforeItActs) {
  const std::pair<std::string, std::string> rows[] = {
      {"mnuNewGame", "Are you sure you want to start again ?"},
      {"mnuExit", "Are you sure you want to leave Thistle and Lantern  ?"}};
  for (const auto& [entry, question] : rows) {
    AtTable play({1, 2, 3});
    ASSERT_TRUE(play.Bet(0, 0));
    play.desktop.answers = {false};
    ASSERT_TRUE(play.Do([&] { play.desktop.Menu(entry); }));
    EXPECT_EQ(play.desktop.questions.back().what, question);
    EXPECT_EQ(play.desktop.titles.back(), "Thistle and Lantern");
    EXPECT_EQ(play.table().BetValue[0], 10);
  }
}

TEST(Menu, NewGameOpensTheTableOverTheOpeningForm) {
  Store store = simulated::Stashed(1, 0, 0);
  Play play(store);
  ASSERT_TRUE(play.Start());
  play.desktop.answers = {true};
  ASSERT_TRUE(play.Do([&] { play.desktop.Menu("mnuNewGame"); }));
  EXPECT_EQ(play.frame->Children(), (std::vector<desktop::Form*>{&play.frame->Splash, &play.table()}));
  EXPECT_EQ(play.money().MoneyCount, (Counts{1, 0, 0})) << "its own offer decides";
}

}  // namespace
