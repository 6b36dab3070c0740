// The one place in the tests where sound meets a device. Nothing here fails by being slow: the device
// is a pipe, and who waits, waits for its other end.
#include "desktop/sdl/sound_player.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <fstream>

#include "desktop/sdl/recording.h"
#include "sounds/recordings.h"

namespace {

using Samples = std::vector<desktop::sdl::Sample>;

/// Waits until the device is opened, and listens until it is let go. Silence is left out.
Samples Listen(const std::string& pipe) {
  std::ifstream ear(pipe, std::ios::binary);
  Samples heard;
  for (desktop::sdl::Sample sample; ear.read(reinterpret_cast<char*>(&sample), sizeof sample);)
    if (sample != 0) heard.push_back(sample);
  return heard;
}

TEST(SoundPlayer, LeavesOutWhatComesTooLateLetsTheDeviceGoOpensItAgainAndPlaysToTheEnd) {
  const std::string pipe = testing::TempDir() + "sound" + std::to_string(getpid());
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  setenv("SDL_AUDIODRIVER", "disk", 1);
  setenv("SDL_DISKAUDIOFILE", pipe.c_str(), 1);
  desktop::sdl::Library sdl;
  ASSERT_TRUE(sdl.Load());
  const desktop::WaveImage& image = *thistle::FindRecording("DOORSHUT");
  Samples whole(desktop::sdl::kRate);
  whole.resize(desktop::sdl::Recording(sdl, image).Read(whole));
  std::erase(whole, 0);
  desktop::sdl::SoundPlayer player;
  player.Play(image);
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  Samples heard = Listen(pipe);
  EXPECT_EQ(heard, Samples()) << "out of step with what is seen";
  player.Play(image, std::chrono::hours(1));
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_EQ(Listen(pipe), whole) << "nothing that is seen waits for it";
  // On a busy machine it may be too late a few times more.
  while (heard.size() < whole.size()) {
    player.Play(image);
    heard = Listen(pipe);
  }
  EXPECT_EQ(heard, whole);
  struct sigaction onTerm = {};
  sigaction(SIGTERM, nullptr, &onTerm);
  EXPECT_EQ(onTerm.sa_handler, SIG_DFL) << "what a signal does is the program's own";
  remove(pipe.c_str());
}

}  // namespace
