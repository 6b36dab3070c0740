// What survives a run: how it is read, when it is written, and what the next run makes of it.
#include <gtest/gtest.h>

#include "tests/simulated/play.h"

namespace {

using simulated::Play;
using simulated::Store;
using Counts = std::array<std::int64_t, 3>;

const std::string kAt = "Thistle and Lantern/Settings/";

// What else a text can say the corpus of the fuzzer holds.
TEST(Settings, CountsAreReadLeniently) {
  for (const auto& [text, count] : {std::pair{"-3", 0}, {"nan", 0}, {"\t7", 7}, {"12abc", 12}, {"2.7", 2}}) {
    Store store{{kAt + "Stash0", text}};
    Play play(store);
    play.desktop.answers = {true};
    ASSERT_TRUE(play.StartAtTable());
    EXPECT_EQ(play.money().MoneyCount, count == 0 ? (Counts{13, 12, 10}) : (Counts{count, 0, 0})) << text;
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
  play.DealThrow(1, 2, 3);
  ASSERT_TRUE(play.Bet(2, 0) && play.ThrowCup());
  EXPECT_TRUE(play.desktop.saved.empty());
  play.money().SoundOn = false;
  play.frame->Left = -300000;
  play.frame->Top = 1500.5F;
  play.Do([&] { play.desktop.CloseFrame(); });
  EXPECT_EQ(play.desktop.saved, (std::vector<std::string>{"SoundOn=False", "Stash0=13", "Stash1=12", "Stash2=9",
                                                          "MainLeft=-300000", "MainTop=1500.5"}));
  Play next(store);
  ASSERT_TRUE(next.Start());
  EXPECT_EQ(next.frame->Left, -300000);
  EXPECT_EQ(next.frame->Top, 1500.5F);
}

TEST(Settings, FramePlace) {
  const std::tuple<Store, desktop::Area, float, float> rows[] = {
      {{}, {0, 0, 19200, 12000}, 4800, 2612},  // half a twip is cut off
      {{}, {0, 0, 9000, 6000}, -300, -388},    // downwards, also below zero
      {{}, {-28800, -300, 28800, 16200}, -19200, 4412},
      {{{kAt + "MainLeft", "90000"}, {kAt + "MainTop", "-99"}}, {0, 0, 19200, 12000}, 90000, -99},
      {{{kAt + "MainLeft", "nan"}, {kAt + "MainTop", "1e60"}}, {0, 0, 19200, 12000}, 4800, 2612},
  };
  for (auto [store, area, left, top] : rows) {
    Play play(store);
    play.desktop.workArea = area;
    ASSERT_TRUE(play.Start());
    EXPECT_EQ(play.frame->Left, left);
    EXPECT_EQ(play.frame->Top, top);
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
    EXPECT_EQ(store, (Store{{kAt + "MainLeft", "120"}, {kAt + "SoundOn", "True"}}));
  }
}

TEST(Settings, SoundFlag) {
  for (const auto& [text, on] : {std::pair{"True", true}, {"False", false}, {"off", true}}) {
    Store store{{kAt + "SoundOn", text}};
    Play play(store);
    ASSERT_TRUE(play.Start());
    play.Do([&] { play.desktop.CloseFrame(); });
    std::vector<std::string> heard;
    for (const auto& sound : play.desktop.sounds) heard.push_back(sound.what);
    EXPECT_EQ(heard, on ? (std::vector<std::string>{"RULEBRITANNIA", "DOORSHUT"}) : std::vector<std::string>{});
    EXPECT_EQ(store[kAt + "SoundOn"], on ? "True" : "False");
  }
}

}  // namespace
