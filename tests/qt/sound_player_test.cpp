// What a listener hears: the samples that reach the device, written to a file by SDL's disk driver.
#include "desktop/qt/sound_player.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <optional>
#include <thread>

#include "sounds/recordings.h"

namespace {

using namespace std::chrono_literals;
using desktop::WaveImage;
using desktop::qt::SoundPlayer;
using Samples = std::vector<std::int16_t>;

constexpr int kRate = 44100;
constexpr std::size_t kBlock = 2048;  // what the device takes at a time; every sound begins with one
constexpr std::size_t kFade = kRate / 100;
constexpr std::size_t kTenth = kRate / 10;

bool IsSilent(std::int16_t sample) { return sample == 0; }

/// A recording at the device's rate, from -1 to 1.
std::vector<double> AtDevice(const WaveImage& image) {
  SDL_AudioSpec spec{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  SDL_RWops* file = SDL_RWFromConstMem(image.bytes.data(), static_cast<int>(image.bytes.size()));
  EXPECT_TRUE(SDL_LoadWAV_RW(file, 1, &spec, &bytes, &size)) << image.name;
  const bool wide = spec.format == AUDIO_S16LSB;
  const std::size_t count = size / (wide ? 2 : 1);
  const auto at = [&](std::size_t i) {
    return wide ? reinterpret_cast<const Sint16*>(bytes)[i] / 32768.0 : (bytes[i] - 128) / 128.0;
  };
  std::vector<double> samples;
  for (std::size_t i = 0; i < count * kRate / static_cast<std::size_t>(spec.freq); ++i) {
    const double place = static_cast<double>(i) * spec.freq / kRate;
    const auto before = static_cast<std::size_t>(place);
    const double after = at(std::min(before + 1, count - 1));
    samples.push_back(at(before) + (place - static_cast<double>(before)) * (after - at(before)));
  }
  SDL_FreeWAV(bytes);
  return samples;
}

/// How alike, and how much louder.
struct Match {
  Match(std::span<const double> wanted, const std::int16_t* heard) {
    double both = 0;
    double one = 0;
    double other = 0;
    for (const double sample : wanted) {
      both += sample * *heard;
      one += sample * sample;
      other += static_cast<double>(*heard) * *heard;
      ++heard;
    }
    correlation = both / std::sqrt(one * other + 1e-9);
    gain = both / one / 32768;
  }
  double correlation;
  double gain;
};

class Sound : public testing::Test {
 protected:
  void SetUp() override {
    UseDriver("disk");
    // A first sound may come too late on a busy machine, and is then left out.
    for (int tries = 0; !IsOpen() && tries < 100; ++tries) {
      Play("ROLLDICEEND");
      std::this_thread::sleep_for(100ms);
    }
    ASSERT_TRUE(IsOpen());
  }
  void TearDown() override {
    player.reset();
    if (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }

  void UseDriver(const char* driver) const {
    qputenv("SDL_AUDIODRIVER", driver);
    qputenv("SDL_DISKAUDIOFILE", File().toUtf8());
    // Four times as fast as a listener would have it. Nothing below is told by the time.
    qputenv("SDL_DISKAUDIODELAY", "11");
  }
  QString File() const { return folder_.path() + "/heard"; }
  bool IsOpen() const {
    const auto open = QDir("/proc/self/fd").entryInfoList(QDir::Files);
    return std::ranges::any_of(open, [this](const QFileInfo& file) { return file.symLinkTarget() == File(); });
  }

  Samples Since(std::size_t from) const {
    QFile file(File());
    if (!file.open(QFile::ReadOnly)) return {};
    const QByteArray bytes = file.readAll();
    const auto* samples = reinterpret_cast<const std::int16_t*>(bytes.constData());
    const std::size_t count = static_cast<std::size_t>(bytes.size()) / sizeof *samples;
    return {samples + std::min(from, count), samples + count};
  }
  /// The last block that has begun.
  std::size_t Now() const { return Since(0).size() / kBlock * kBlock; }

  static void ListenUntil(const std::function<bool()>& heard) {
    const auto deadline = std::chrono::steady_clock::now() + 60s;
    while (!heard()) {
      ASSERT_LT(std::chrono::steady_clock::now(), deadline) << "never heard";
      std::this_thread::sleep_for(10ms);
    }
  }
  void Listen(double seconds) const {
    const std::size_t wanted = Now() + static_cast<std::size_t>(seconds * kRate);
    ListenUntil([&] { return Now() >= wanted; });
  }
  bool IsQuiet() const {
    const Samples heard = Since(0);
    return heard.size() > 2 * kTenth && std::all_of(heard.end() - 2 * kTenth, heard.end(), IsSilent);
  }

  void Play(std::string_view name) { player->Play(*thistle::FindRecording(name)); }
  /// Has a sound begin. Returns where that was looked for.
  std::size_t Begin(std::string_view name) {
    ListenUntil([this] { return IsQuiet(); });
    const std::size_t from = Now();
    Play(name);
    ListenUntil([&] { return !std::ranges::all_of(Since(from), IsSilent); });
    return from;
  }
  /// A whole recording that nothing cuts, from around its start on, and some silence.
  Samples Alone(std::string_view name) {
    const std::size_t from = Begin(name);
    Listen(static_cast<double>(AtDevice(*thistle::FindRecording(name)).size()) / kRate + 0.2);
    return Since(from);
  }
  /// The same from its first block on, for one that begins at once.
  Samples Pattern(std::string_view name) {
    const Samples heard = Alone(name);
    const auto first = std::ranges::find_if_not(heard, IsSilent) - heard.begin();
    return {heard.begin() + first / kBlock * kBlock, heard.end()};
  }

  /// From its 10th millisecond on, `heard` holds exactly the pattern, up to `length` samples of it.
  static bool IsHeard(const Samples& heard, std::size_t at, const Samples& pattern, std::size_t length) {
    return at + length <= heard.size() && length <= pattern.size() &&
           std::equal(pattern.data() + kFade, pattern.data() + length, heard.data() + at + kFade);
  }
  static std::vector<std::size_t> Starts(const Samples& heard, const Samples& pattern) {
    std::vector<std::size_t> starts;
    for (std::size_t at = 0; at < heard.size(); at += kBlock)
      if (IsHeard(heard, at, pattern, kTenth)) starts.push_back(at);
    return starts;
  }
  /// Plays a sound over another and listens to its end. It starts one more time than before.
  void PlayOver(std::size_t from, const Samples& pattern, std::string_view name, double seconds) {
    const std::size_t before = Starts(Since(from), pattern).size();
    Play(name);
    ListenUntil([&] { return Starts(Since(from), pattern).size() > before; });
    Listen(seconds);
  }
  /// The last one that began goes on to its end, which is silence.
  static bool RingsOut(const Samples& heard, const Samples& pattern) {
    const std::size_t at = Starts(heard, pattern).back();
    const std::size_t length = std::min(pattern.size(), heard.size() - at);
    return std::all_of(pattern.data() + length - kTenth, pattern.data() + length, IsSilent) &&
           IsHeard(heard, at, pattern, length);
  }

  std::optional<SoundPlayer> player{std::in_place};

 private:
  QTemporaryDir folder_;
};

TEST_F(Sound, EachRecordingHasItsPitchAndLength) {
  for (const WaveImage& image : thistle::AllRecordings()) {
    const Samples heard = Alone(image.name);
    const std::vector<double> wanted = AtDevice(image);
    // It begins with a block, give or take what a filter reaches ahead; the loudest part tells with which.
    const auto loudest = std::ranges::max_element(wanted, {}, [](double sample) { return std::abs(sample); });
    const auto part = std::clamp<std::ptrdiff_t>(loudest - wanted.begin() - 1024, 0, std::ssize(wanted) - 2048);
    double best = 0;
    std::size_t start = 0;
    for (std::size_t block = 0; block + wanted.size() <= heard.size(); block += kBlock)
      for (std::size_t at = block; at < block + 24 && at + wanted.size() <= heard.size(); ++at) {
        const Match match({wanted.data() + part, 2048}, heard.data() + at + part);
        if (match.correlation > best) start = at;
        best = std::max(best, match.correlation);
      }
    const Match match(wanted, heard.data() + start);
    EXPECT_GT(match.correlation, 0.97) << image.name;
    EXPECT_NEAR(match.gain, 1, 0.1) << image.name;
    const auto end = heard.begin() + static_cast<std::ptrdiff_t>(start + wanted.size());
    ASSERT_GT(heard.end() - end, kTenth);
    EXPECT_TRUE(std::all_of(end + 64, heard.end(), IsSilent)) << image.name;
  }
}

TEST_F(Sound, BellsRestartEachTimeAndTheLastRingsOut) {
  const Samples bell = Pattern("ELEVATOR");
  const std::size_t from = Now();
  for (int i = 0; i < 15; ++i) PlayOver(from, bell, "ELEVATOR", 0.15);
  Listen(1);
  const Samples heard = Since(from);
  const auto starts = Starts(heard, bell);
  ASSERT_EQ(starts.size(), 15U);
  for (std::size_t i = 0; i + 1 < starts.size(); ++i)
    EXPECT_TRUE(IsHeard(heard, starts[i], bell, starts[i + 1] - starts[i])) << "no gap before bell " << i + 2;
  EXPECT_TRUE(RingsOut(heard, bell));
}

TEST_F(Sound, ABellCutsTheApplauseWithoutAClick) {
  const Samples applause = Pattern("APPLAUSE");
  const Samples bell = Pattern("ELEVATOR");
  const std::size_t from = Begin("APPLAUSE");
  Listen(1.5);
  PlayOver(from, bell, "ELEVATOR", 1);
  const Samples heard = Since(from);
  ASSERT_EQ(Starts(heard, applause).size(), 1U);
  const std::size_t begun = Starts(heard, applause).front();
  const std::size_t cut = Starts(heard, bell).front();
  EXPECT_TRUE(IsHeard(heard, begun, applause, cut - begun));
  EXPECT_TRUE(RingsOut(heard, bell)) << "nothing of the applause after 10 ms";

  // What is left of the applause under the bell dies down instead of breaking off.
  constexpr std::size_t kPart = kRate / 1000;
  for (std::size_t part = 0; part < 3; ++part) {
    double left = 0;
    double whole = 0;
    for (std::size_t i = part * kPart; i < (part + 1) * kPart; ++i) {
      const double clap = applause[cut - begun + i];
      left += clap * (heard[cut + i] - bell[i]);
      whole += clap * clap;
    }
    ASSERT_GT(whole, 0);
    EXPECT_NEAR(left / whole, (5.0 - 2.0 * static_cast<double>(part)) / 6, 0.16) << "millisecond " << part;
  }
  const auto jump = [](const Samples& samples, std::size_t at, std::size_t end) {
    int most = 0;
    for (; at + 1 < end; ++at) most = std::max(most, std::abs(samples[at + 1] - samples[at]));
    return most;
  };
  EXPECT_LE(jump(heard, cut - 2, cut + kFade),
            std::max(jump(applause, 0, applause.size()), jump(bell, 0, bell.size())));
}

TEST_F(Sound, TheLastClickOfADieIsHeardWhole) {
  const Samples click = Pattern("ROLLDICEEND");
  const std::size_t from = Begin("ROLLDICE");
  Listen(0.2);
  PlayOver(from, click, "ROLLDICEEND", 0.3);
  EXPECT_TRUE(RingsOut(Since(from), click));
}

TEST_F(Sound, AMalformedImageIsSilentAndBreaksNothing) {
  const auto bell = thistle::FindRecording("ELEVATOR")->bytes;
  std::vector<unsigned char> noFormat(bell.begin(), bell.end());
  std::fill(noFormat.begin() + 12, noFormat.begin() + 36, 0xFF);
  const std::span<const unsigned char> images[] = {{}, bell.first(11), bell.first(30), noFormat};
  for (const auto& image : images) {
    const std::size_t from = Begin("PEOPLELAUGH");
    Listen(0.3);
    player->Play({"BROKEN", image});
    ListenUntil([this] { return IsQuiet(); });
    EXPECT_LT(Now() - from, 5U * kRate) << "the laughter was cut";
  }
  EXPECT_EQ(Starts(Pattern("ELEVATOR"), Pattern("ELEVATOR")).size(), 1U);
}

TEST_F(Sound, AnIdleDeviceIsLetGoAndOpenedAgain) {
  const Samples bell = Pattern("ELEVATOR");
  ListenUntil([this] { return !IsOpen(); });
  QFile::remove(File());
  PlayOver(0, bell, "ELEVATOR", 1);
  EXPECT_TRUE(RingsOut(Since(0), bell));
}

TEST_F(Sound, WithoutADeviceNothingHappensAndNothingIsSaid) {
  for (const char* driver : {"dummy", "no such driver"}) {
    TearDown();
    UseDriver(driver);
    testing::internal::CaptureStderr();
    player.emplace();
    for (int i = 0; i < 3; ++i) {
      Play("ELEVATOR");
      std::this_thread::sleep_for(50ms);
    }
    const auto plays = [] { return SDL_GetAudioDeviceStatus(2) == SDL_AUDIO_PLAYING; };
    if (std::string(driver) == "dummy")
      ListenUntil(plays);
    else
      EXPECT_FALSE(plays());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << driver;
  }
}

}  // namespace
