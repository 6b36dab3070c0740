#include "desktop/sdl/mixer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

using Samples = std::vector<desktop::sdl::Sample>;
constexpr std::size_t kBlock = 1280;  // what the device takes at a time
constexpr int kFade = 132;            // 3 ms

struct Sound : desktop::sdl::Voice {
  explicit Sound(Samples samples) : left(std::move(samples)) {}
  std::size_t Read(std::span<desktop::sdl::Sample> out) override {
    const std::size_t count = std::min(out.size(), left.size());
    std::copy_n(left.data(), count, out.data());
    left.erase(left.begin(), left.begin() + count);
    return count;
  }
  Samples left;
};

/// Its stretches differ, and every sample fades in equal steps.
Samples Melody(std::size_t length) {
  Samples samples(length);
  for (std::size_t i = 0; i < length; ++i) samples[i] = kFade * (i % 101 + 1);
  return samples;
}

/// Some blocks of `samples`, and silence where they are over.
Samples Part(Samples samples, std::size_t first, std::size_t count) {
  samples.resize((first + count) * kBlock);
  return {samples.end() - count * kBlock, samples.end()};
}

struct Mixer : testing::Test {
  void Play(Samples samples) { mixer.Play(std::make_unique<Sound>(std::move(samples))); }
  Samples Hear(std::size_t blocks) {
    Samples heard(blocks * kBlock, 77);  // no silence, unless it is written
    for (std::size_t i = 0; i < blocks; ++i) mixer.Mix(std::span(heard).subspan(i * kBlock, kBlock));
    return heard;
  }

  desktop::sdl::Mixer mixer;
};

TEST_F(Mixer, ASoundIsHeardWholeBetweenSilence) {
  for (const std::size_t length : {kBlock - 1, kBlock, kBlock + 1}) {
    EXPECT_EQ(Hear(1), Samples(kBlock));
    Play(Melody(length));
    EXPECT_EQ(Hear(3), Part(Melody(length), 0, 3)) << length;
  }
}

TEST_F(Mixer, BellsRestartEachTimeFadeWithinThreeMillisecondsAndTheLastRingsOut) {
  const Samples bell = Melody(4 * kBlock + 100);
  Play(bell);
  EXPECT_EQ(Hear(2), Part(bell, 0, 2));
  Samples cut = Part(bell, 0, 2);
  for (int i = 0; i < kFade; ++i) cut[i] += bell[2 * kBlock + i] / kFade * (kFade - i);
  for (int i = 2; i <= 15; ++i) {
    Play(Melody(3));  // replaced before it is heard
    Play(bell);
    EXPECT_EQ(Hear(2), cut) << "bell " << i;
  }
  EXPECT_EQ(Hear(4), Part(bell, 2, 4));
}

TEST_F(Mixer, WhatIsTooLoudStaysAtTheLimitAndWhatEndsAsItFadesLeavesNothing) {
  for (const auto& [level, limit] : {std::pair{30000, 32767}, {-30000, -32768}}) {
    Play(Samples(kBlock + 10, level));
    Hear(1);
    Play(Samples(kBlock, level));
    Samples wanted(10, limit);
    wanted.resize(kBlock, level);
    EXPECT_EQ(Hear(1), wanted);
  }
}

}  // namespace
