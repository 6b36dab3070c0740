// The frame around the table: opening form, menu, and the fitting of forms to the window.
#include <gtest/gtest.h>

#include "tests/simulated/play.h"

namespace {

using desktop::WindowState;
using simulated::AtTable;
using simulated::Play;
using simulated::Store;
using Counts = std::array<std::int64_t, 3>;

constexpr const char* kStartAgain = "Are you sure you want to start again ?";
constexpr const char* kLeave = "Are you sure you want to leave Thistle and Lantern  ?";

class Opening : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(play.Start()); }
  Store store;
  Play play{store};
  thistle::frmSplash& splash = play.frame->Splash;
};

TEST_F(Opening, ShowsTheTitleToTheFanfare) {
  EXPECT_EQ(play.frame->Caption, "Thistle and Lantern");
  EXPECT_EQ(splash.lblProductName.Caption, "Thistle and Lantern");
  EXPECT_EQ(splash.lblCompanyProduct.Caption, "Quenby Software");
  EXPECT_EQ(splash.lblWarning.Caption, "presents");
  EXPECT_EQ(splash.PlayGame.Caption, "\r\nPlay Game\r\n");
  EXPECT_EQ(play.desktop.sounds, (std::vector<simulated::Happening>{{0, "RULEBRITANNIA"}}));
  EXPECT_EQ(play.frame->Children(), std::vector<desktop::Form*>{&splash});
  EXPECT_FALSE(play.frame->Game.Loaded);
}

TEST_F(Opening, FocusStandsOnPlayGameAndGoesRound) {
  EXPECT_EQ(play.desktop.focus, &splash.PlayGame);
  for (const auto* next : {&splash.Instructions, &splash.ExitButton, &splash.cmdOptions, &splash.PlayGame}) {
    play.desktop.Tab();
    EXPECT_EQ(play.desktop.focus, next);
  }
  play.desktop.Escape();
  EXPECT_EQ(play.frame->Children(), std::vector<desktop::Form*>{&splash});
  play.desktop.Enter();
  EXPECT_EQ(play.frame->Children(), std::vector<desktop::Form*>{&play.table()});
  EXPECT_FALSE(splash.Loaded);
  EXPECT_EQ(play.desktop.sounds.size(), 1U);  // the fanfare plays on
}

TEST_F(Opening, EnterOnExitEndsTheRun) {
  play.desktop.Tab();
  play.desktop.Tab();
  EXPECT_FALSE(play.Do([&] { play.desktop.Enter(); }));
  EXPECT_TRUE(play.ended && play.desktop.questions.empty());
}

TEST_F(Opening, NewGameLoadsTheTableOnTopOfIt) {
  const std::string at = "Thistle and Lantern/Settings/Stash0";
  store[at] = "2";
  play.desktop.answers = {true};
  play.desktop.Menu("mnuNewGame");
  EXPECT_EQ(play.frame->Children(), (std::vector<desktop::Form*>{&splash, &play.table()}));
  EXPECT_EQ(play.desktop.questions.size(), 1U);  // the offer alone
  EXPECT_EQ(play.money().MoneyCount, (Counts{2, 0, 0}));
  EXPECT_EQ(play.desktop.seeded, 1);
}

TEST_F(Opening, FollowsTheFrame) {
  play.desktop.SetState(WindowState::Maximised);
  EXPECT_EQ(splash.Left, 320);
  EXPECT_EQ(splash.Top, 2612 / 15.0F);
  play.desktop.ClickAt(320 + 330, 174 + 330);
  EXPECT_FALSE(splash.Loaded);
  EXPECT_EQ(play.table().Left, 320);  // loaded into the large frame
  play.desktop.SetState(WindowState::Normal);
  EXPECT_EQ(play.table().Left, 0);
}

TEST(Fitting, OffsetIsTheStartOfTheRun) {
  Store store{{"Thistle and Lantern/Settings/MainLeft", "150"}, {"Thistle and Lantern/Settings/MainTop", "-300"}};
  Play play(store);
  ASSERT_TRUE(play.StartAtTable());
  const auto& table = play.table();
  const auto expectAt = [&](float left, float top) {
    EXPECT_EQ(table.Left, left);
    EXPECT_EQ(table.Top, top);
  };
  expectAt(0, 0);
  play.frame->Left = 6000;  // the user moves the frame
  play.desktop.SetState(WindowState::Maximised);
  expectAt(10, -20);
  play.desktop.SetState(WindowState::Minimised);
  expectAt(10, -20);
  play.desktop.SetState(WindowState::Normal);
  expectAt(0, 0);
  play.desktop.SetState(WindowState::Minimised);
  expectAt(0, 0);
  EXPECT_EQ(play.frame->ClientWidth, 632);
  EXPECT_EQ(play.frame->ClientHeight, 406);
}

TEST(Menu, IsLaidOutInItsOrder) {
  AtTable play;
  std::string words;
  for (const auto& entry : play.frame->Menu) {
    words += std::string(entry.Caption) + "(";
    for (const auto& inner : entry.Entries) words += std::string(inner.Caption) + ";";
    words += ")";
  }
  EXPECT_EQ(words, "Game(New Game;Exit;)Options()Help(Instructions;Support;About;)");
}

TEST(Menu, AsksBeforeItActs) {
  struct Row {
    const char* entry;
    const char* question;
  };
  for (const auto& [entry, question] : {Row{"mnuNewGame", kStartAgain}, Row{"mnuExit", kLeave}})
    for (const bool yes : {false, true}) {
      AtTable play({1, 2, 3});
      ASSERT_TRUE(play.Bet(0, 0));
      play.desktop.answers = {yes};
      play.Do([&] { play.desktop.Menu(entry); });
      EXPECT_EQ(play.desktop.questions.back().what, question);
      EXPECT_EQ(play.desktop.titles.back(), "Thistle and Lantern");
      EXPECT_EQ(play.desktop.questions.size(), 2U);
      EXPECT_EQ(play.ended, yes && entry == std::string("mnuExit"));
      const Counts counts = yes && !play.ended ? Counts{13, 12, 10} : Counts{0, 2, 3};
      EXPECT_EQ(play.money().MoneyCount, counts);
      EXPECT_EQ(play.table().BetValue[0], yes && !play.ended ? 0 : 10);
    }
}

TEST(Menu, AsksNothingWithAllMoneyOnTheMat) {
  for (const char* entry : {"mnuNewGame", "mnuExit"}) {
    AtTable play({1, 0, 0});
    ASSERT_TRUE(play.Bet(0, 0));
    play.Do([&] { play.desktop.Menu(entry); });
    EXPECT_EQ(play.desktop.questions.size(), 1U);
    EXPECT_EQ(play.ended, entry == std::string("mnuExit"));
    EXPECT_EQ(play.store.at("Thistle and Lantern/Settings/Stash0"), play.ended ? "0" : "1");
  }
}

TEST(Menu, CloseButtonAsksNothing) {
  AtTable play;
  EXPECT_FALSE(play.Do([&] { play.desktop.CloseFrame(); }));
  EXPECT_TRUE(play.desktop.questions.empty());
  EXPECT_EQ(play.desktop.sounds.back().what, "DOORSHUT");
  EXPECT_EQ(play.store.at("Thistle and Lantern/Settings/Stash0"), "13");
}

}  // namespace
