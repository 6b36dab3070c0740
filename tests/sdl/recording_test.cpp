#include "desktop/sdl/recording.h"

#include <gtest/gtest.h>

#include "sounds/recordings.h"

namespace {

using namespace desktop::sdl;
using Samples = std::vector<Sample>;

Samples Read(const desktop::WaveImage& image) {
  Library sdl;
  EXPECT_TRUE(sdl.Load());
  Samples samples(10 * kRate);
  samples.resize(Recording(sdl, image).Read(samples));
  return samples;
}

/// What a wave image says, read without the library.
struct Wave {
  explicit Wave(std::span<const unsigned char> bytes) {
    const auto number = [bytes](std::size_t at) { return bytes[at] | bytes[at + 1] << 8; };
    std::size_t data = 12;
    while (bytes[data] != 'd') data += 8 + number(data + 4);
    const std::size_t size = number(data + 4) | number(data + 6) << 16;
    rate = number(24);
    for (std::size_t at = data + 8; at < data + 8 + size; at += bytes[34] / 8)
      samples.push_back(static_cast<Sample>(bytes[34] == 8 ? (bytes[at] - 128) * 256 : number(at)));
  }
  int rate;
  Samples samples;
};

TEST(Recording, EachHasItsPitchLengthAndLoudnessToItsEnd) {
  for (const auto& image : thistle::AllRecordings()) {
    const auto [rate, samples] = Wave(image.bytes);
    const Samples heard = Read(image);
    ASSERT_EQ(heard.size(), samples.size() * kRate / rate) << image.name;
    // A good conversion goes through every sample of the recording that falls on one of the device.
    for (std::size_t i = 0; i < heard.size(); ++i) {
      if (i * rate % kRate != 0) continue;
      ASSERT_NEAR(heard[i], samples[i * rate / kRate], 64) << image.name << " " << i;
    }
  }
}

TEST(Recording, ALongOneIsConvertedAsItIsHeard) {
  Library sdl;
  ASSERT_TRUE(sdl.Load());
  static const auto put = sdl.AudioStreamPut;
  static int given;
  given = 0;
  sdl.AudioStreamPut = [](SDL_AudioStream* stream, const void* bytes, int size) {
    given += size;
    return put(stream, bytes, size);
  };
  Samples second(kRate);
  Recording(sdl, *thistle::FindRecording("APPLAUSE")).Read(second);
  EXPECT_LT(given, kRate + 2 * 3200) << "the bytes of one sample make two";
}

TEST(Recording, OneThatCannotBeReadIsSilent) {
  const auto whole = thistle::FindRecording("ELEVATOR")->bytes;
  for (const auto bytes : {whole.first(0), whole.first(40), whole.subspan(40)})
    EXPECT_EQ(Read({"broken", bytes}), Samples()) << bytes.size();
}

}  // namespace
