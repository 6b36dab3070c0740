// What survives a run: how it is read, when it is written, and what the next run makes of it.
#include <gtest/gtest.h>

#include "tests/simulated/play.h"

namespace {

using simulated::Play;
using simulated::Store;
using Counts = std::array<std::int64_t, 3>;

const std::string kAt = "Thistle and Lantern/Settings/";

TEST(Settings, CountsAreReadLeniently) {
  const std::pair<std::string, std::int64_t> rows[] = {
      {"", 0},
      {"   ", 0},
      {"abc", 0},
      {"12abc", 12},
      {"1e1", 10},
      {"1e", 1},
      {"-3", 0},
      {"2.7", 2},
      {".9", 0},
      {"nan", 0},
      {"inf", 0},
      {"-inf", 0},
      {"+4", 4},
      {"+-4", 0},
      {"0x10", 0},
      {"  7", 7},
      {"\t\n8", 8},
      {"9 9", 9},
      {"1e400", 0},
      {"1e-400", 0},
      {"- 5", 0},
      {"007", 7},
      {"25", 25},
      {"+", 0},
      {"1,5", 1},
      {"1234567890", 1234567890},
      {"9007199254740992", 9007199254740992},
      {"1111111111222222222233333333334444444444", 0},
  };
  for (const auto& [text, count] : rows) {
    Store store{{kAt + "Stash0", text}};
    Play play(store);
    play.desktop.answers = {true};
    ASSERT_TRUE(play.StartAtTable());
    EXPECT_EQ(play.desktop.questions.size(), count == 0 ? 0U : 1U) << '"' << text << '"';
    EXPECT_EQ(play.money().MoneyCount, count == 0 ? (Counts{13, 12, 10}) : (Counts{count, 0, 0}));
  }
}

TEST(Settings, AreReadAndWrittenInTheirOrder) {
  Store store;
  Play play(store);
  ASSERT_TRUE(play.Start());
  EXPECT_EQ(play.desktop.read, (std::vector<std::string>{"MainLeft", "MainTop", "SoundOn"}));
  ASSERT_TRUE(play.Do([&] { play.desktop.Enter(); }));
  EXPECT_EQ(play.desktop.read,
            (std::vector<std::string>{"MainLeft", "MainTop", "SoundOn", "Stash0", "Stash1", "Stash2"}));
  ASSERT_TRUE(play.Bet(2, 0) && play.ThrowCup());
  EXPECT_TRUE(play.desktop.saved.empty());
  EXPECT_TRUE(store.empty());
  play.money().SoundOn = false;
  play.frame->Left = -15;
  play.frame->Top = 1500.5F;
  play.Do([&] { play.desktop.CloseFrame(); });
  const auto coins = "Stash2=" + std::to_string(play.money().MoneyCount[2]);
  EXPECT_EQ(play.desktop.saved, (std::vector<std::string>{"SoundOn=False", "Stash0=13", "Stash1=12", coins,
                                                          "MainLeft=-15", "MainTop=1500.5"}));
}

TEST(Settings, FramePlace) {
  struct Row {
    Store stored;
    desktop::Area area;
    float left, top;
  };
  const Row rows[] = {
      {{}, {0, 0, 19200, 12000}, 4800, 2612},  // half a twip is cut off
      {{}, {600, 450, 12001, 9000}, 1800, 1562},
      {{}, {0, 0, 9000, 6000}, -300, -388},  // downwards, also below zero
      {{}, {-28800, -300, 28800, 16200}, -19200, 4412},
      {{{kAt + "MainLeft", "120"}, {kAt + "MainTop", "-99"}}, {0, 0, 19200, 12000}, 120, -99},
      {{{kAt + "MainLeft", "90000"}, {kAt + "MainTop", "45000"}}, {0, 0, 19200, 12000}, 90000, 45000},
      {{{kAt + "MainLeft", "120.5"}}, {0, 0, 19200, 12000}, 120.5, 2612},
      {{{kAt + "MainLeft", ""}, {kAt + "MainTop", "top"}}, {0, 0, 19200, 12000}, 4800, 2612},
      {{{kAt + "MainLeft", "nan"}, {kAt + "MainTop", "1e60"}}, {0, 0, 19200, 12000}, 4800, 2612},
  };
  for (auto [store, area, left, top] : rows) {
    Play play(store);
    play.desktop.workArea = area;
    ASSERT_TRUE(play.Start());
    EXPECT_EQ(play.frame->Left, left);
    EXPECT_EQ(play.frame->Top, top);
    EXPECT_EQ(play.money().OriginLeft, left);
    EXPECT_EQ(play.money().OriginTop, top);
  }
}

TEST(Settings, PlaceIsWrittenAsPlainDigits) {
  for (const auto& [place, text] :
       {std::pair{0.0F, "0"}, {-4500.0F, "-4500"}, {105000.0F, "105000"}, {300000.0F, "300000"}}) {
    Store store;
    Play play(store);
    ASSERT_TRUE(play.Start());
    play.frame->Left = place;
    play.Do([&] { play.desktop.CloseFrame(); });
    EXPECT_EQ(store[kAt + "MainLeft"], text);
    Play next(store);
    ASSERT_TRUE(next.Start());
    EXPECT_EQ(next.frame->Left, place);
  }
}

TEST(Settings, PlaceIsKeptOfANormalWindowOnly) {
  for (const auto state : {desktop::WindowState::Minimised, desktop::WindowState::Maximised}) {
    Store store{{kAt + "MainLeft", "120"}};
    Play play(store);
    ASSERT_TRUE(play.Start());
    play.desktop.SetState(state);
    play.frame->Left = 999;
    play.Do([&] { play.desktop.CloseFrame(); });
    EXPECT_EQ(store[kAt + "MainLeft"], "120");
    EXPECT_FALSE(store.contains(kAt + "MainTop"));
    EXPECT_EQ(store[kAt + "SoundOn"], "True");
  }
}

TEST(Settings, SoundFlag) {
  const std::pair<Store, bool> rows[] = {{{}, true},
                                         {{{kAt + "SoundOn", "True"}}, true},
                                         {{{kAt + "SoundOn", "False"}}, false},
                                         {{{kAt + "SoundOn", "off"}}, true}};
  for (auto [store, on] : rows) {
    Play play(store);
    ASSERT_TRUE(play.Start());
    EXPECT_EQ(play.money().SoundOn, on);
    EXPECT_EQ(play.desktop.sounds.size(), on ? 1U : 0U);
    play.Do([&] { play.desktop.CloseFrame(); });
    EXPECT_EQ(play.desktop.sounds.size(), on ? 2U : 0U);
    EXPECT_EQ(store[kAt + "SoundOn"], on ? "True" : "False");
  }
}

TEST(Settings, RunWithoutATableLeavesTheCounts) {
  const std::function<void(Play&)> ends[] = {
      [](Play& play) { play.desktop.CloseFrame(); },
      [](Play& play) { play.desktop.Menu("mnuExit"); },
      [](Play& play) { play.desktop.ClickAt(play.frame->Splash.ExitButton.Left + 9, 330); },
  };
  for (const auto& end : ends) {
    Store store = simulated::Stashed(3, 2, 40);
    store[kAt + "Stash1"] = "two";
    Play play(store);
    ASSERT_TRUE(play.Start());
    play.Do([&] { end(play); });
    ASSERT_TRUE(play.ended);
    EXPECT_EQ(play.desktop.saved, (std::vector<std::string>{"SoundOn=True", "MainLeft=4800", "MainTop=2612"}));
    EXPECT_EQ(store[kAt + "Stash0"], "3");
    EXPECT_EQ(store[kAt + "Stash1"], "two");
    EXPECT_TRUE(play.desktop.questions.empty());
  }
}

TEST(Settings, RunAfterRun) {
  Store store;
  Counts left{13, 12, 10};
  for (int run = 0; run < 5; ++run) {
    Play play(store);
    play.desktop.answers = {true};
    ASSERT_TRUE(play.StartAtTable());
    EXPECT_EQ(play.desktop.questions.size(), run == 0 ? 0U : 1U);
    EXPECT_EQ(play.money().MoneyCount, left);
    EXPECT_EQ(play.frame->Left, run == 0 ? 4800 : 150 * (run - 1));
    // A note is won on the first square, and a coin is left lying on the mat.
    play.DealThrow(0, 1, 1);
    ASSERT_TRUE(play.Bet(0, 0) && play.ThrowCup() && play.Bet(2, 3));
    left = {left[0] + 1, left[1], left[2] - 1};
    play.frame->Left = static_cast<float>(150 * run);
    play.Do([&] { play.desktop.CloseFrame(); });
    ASSERT_TRUE(play.ended);
  }
}

}  // namespace
