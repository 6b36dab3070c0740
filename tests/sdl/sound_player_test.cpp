// The one place in the tests where sound meets a device. Nothing here fails by being slow: the device
// is a pipe, and who waits, waits for its other end.
#include "desktop/sdl/sound_player.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

#include "desktop/sdl/recording.h"
#include "sounds/recordings.h"

namespace {

using Samples = std::vector<desktop::sdl::Sample>;

struct SoundPlayer : testing::Test {
  void SetUp() override { ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0); }
  void TearDown() override { remove(pipe.c_str()); }

  /// Waits until the device is opened, and listens until it is let go. Silence is left out.
  Samples Listen() const {
    std::ifstream ear(pipe, std::ios::binary);
    Samples heard;
    for (desktop::sdl::Sample sample; ear.read(reinterpret_cast<char*>(&sample), sizeof sample);)
      if (sample != 0) heard.push_back(sample);
    return heard;
  }

  const std::string pipe = testing::TempDir() + "sound" + std::to_string(getpid());
  const desktop::WaveImage& image = *thistle::FindRecording("DOORSHUT");
};

TEST_F(SoundPlayer, LeavesOutWhatComesTooLateLetsTheDeviceGoOpensItAgainAndPlaysToTheEnd) {
  setenv("SDL_AUDIODRIVER", "disk", 1);
  setenv("SDL_DISKAUDIOFILE", pipe.c_str(), 1);
  desktop::sdl::Library sdl;
  ASSERT_TRUE(sdl.Load());
  Samples whole(desktop::sdl::kRate);
  whole.resize(desktop::sdl::Recording(sdl, image).Read(whole));
  std::erase(whole, 0);
  desktop::sdl::SoundPlayer player;
  player.Play(image);
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  Samples heard = Listen();
  EXPECT_EQ(heard, Samples()) << "out of step with what is seen";
  // On a busy machine it may be too late a few times more.
  while (heard.size() < whole.size()) {
    player.Play(image);
    heard = Listen();
  }
  EXPECT_EQ(heard, whole);
}

TEST_F(SoundPlayer, IsQuietWithoutADevice) {
  setenv("SDL_AUDIODRIVER", "alsa", 1);
  setenv("ALSA_CONFIG_PATH", pipe.c_str(), 1);
  testing::internal::CaptureStderr();
  {
    desktop::sdl::SoundPlayer player;
    player.Play(image);
    const std::ofstream asked(pipe);  // waits until ALSA looks for devices, which it then has none of
    remove(pipe.c_str());             // nor when it looks again
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
