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
#include <numeric>
#include <optional>
#include <thread>

#include "sounds/recordings.h"

namespace {

using namespace std::chrono_literals;
using desktop::WaveImage;
using desktop::qt::SoundPlayer;
using Samples = std::vector<std::int16_t>;

constexpr int kRate = 44100;
constexpr std::size_t kBlock = 1280;  // what the device takes at a time; every sound begins with one
constexpr std::size_t kFade = kRate / 100;
constexpr std::size_t kTenth = kRate / 10;

bool IsSilent(std::int16_t sample) { return sample == 0; }

double Product(const Samples& one, const Samples& other) {
  return std::inner_product(one.begin(), one.end(), other.begin(), 0.0);
}

/// Without the blocks of silence in front.
Samples FromFirstSound(const Samples& samples) {
  const auto first = std::ranges::find_if_not(samples, IsSilent) - samples.begin();
  return {samples.begin() + first / kBlock * kBlock, samples.end()};
}

/// A recording as the device should have it.
Samples AtDevice(const WaveImage& image) {
  SDL_AudioSpec spec{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  SDL_AudioCVT rate{};
  SDL_RWops* file = SDL_RWFromConstMem(image.bytes.data(), static_cast<int>(image.bytes.size()));
  EXPECT_TRUE(SDL_LoadWAV_RW(file, 1, &spec, &bytes, &size)) << image.name;
  SDL_BuildAudioCVT(&rate, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 1, kRate);
  Samples samples(size * static_cast<std::size_t>(rate.len_mult));
  rate.buf = reinterpret_cast<Uint8*>(samples.data());
  rate.len = static_cast<int>(size);
  std::copy_n(bytes, size, rate.buf);
  SDL_FreeWAV(bytes);
  SDL_ConvertAudio(&rate);
  samples.resize(static_cast<std::size_t>(rate.len_cvt) / sizeof samples[0]);
  return samples;
}

class Sound : public testing::Test {
 protected:
  void SetUp() override {
    UseDriver("disk");
    // A first sound may come too late on a busy machine, and is then left out.
    ListenUntil([this] { return Play("ROLLDICEEND"), IsOpen(); });
  }
  void TearDown() override {
    player.reset();
    if (SDL_WasInit(SDL_INIT_AUDIO) != 0) SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }

  void UseDriver(const char* driver) const {
    qputenv("SDL_AUDIODRIVER", driver);
    qputenv("SDL_DISKAUDIOFILE", File().toUtf8());
    // Four times as fast as a listener would have it. Nothing below is told by the time.
    qputenv("SDL_DISKAUDIODELAY", "7");
  }
  QString File() const { return folder_.path() + "/heard"; }
  bool IsOpen() const {
    const auto open = QDir("/proc/self/fd").entryInfoList(QDir::Files);
    return std::ranges::any_of(open, [this](const QFileInfo& file) { return file.symLinkTarget() == File(); });
  }

  Samples Since(std::size_t from) const {
    QFile file(File());
    const QByteArray bytes = file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    Samples heard(static_cast<std::size_t>(bytes.size()) / sizeof(std::int16_t));
    std::copy_n(bytes.data(), 2 * heard.size(), reinterpret_cast<char*>(heard.data()));
    return {heard.begin() + static_cast<std::ptrdiff_t>(std::min(from, heard.size())), heard.end()};
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

  void Play(std::string_view name) { player->Play(*thistle::FindRecording(name)); }
  /// Has a sound begin after silence. Returns where that was looked for.
  std::size_t Begin(std::string_view name) {
    const auto isQuietSince = [this](std::size_t from) { return std::ranges::all_of(Since(from), IsSilent); };
    ListenUntil([&] { return Now() > 2 * kTenth && isQuietSince(Now() - 2 * kTenth); });
    const std::size_t from = Now();
    Play(name);
    ListenUntil([&] { return !isQuietSince(from); });
    return from;
  }
  /// A whole recording that nothing cuts, and a tenth of a second after it.
  Samples Pattern(std::string_view name) {
    const std::size_t length = AtDevice(*thistle::FindRecording(name)).size() + kTenth;
    const std::size_t from = Begin(name);
    Listen(static_cast<double>(length) / kRate + 0.1);
    Samples heard = FromFirstSound(Since(from));
    heard.resize(length);
    return heard;
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

  std::optional<SoundPlayer> player{std::in_place};

 private:
  QTemporaryDir folder_;
};

TEST_F(Sound, EachRecordingHasItsPitchAndLength) {
  for (const WaveImage& image : thistle::AllRecordings()) {
    const Samples wanted = FromFirstSound(AtDevice(image));
    const Samples heard = Pattern(image.name);
    const double both = Product(wanted, heard);
    EXPECT_GT(both / std::sqrt(Product(wanted, wanted) * Product(heard, heard)), 0.97) << image.name;
    EXPECT_NEAR(both / Product(wanted, wanted), 1, 0.1) << image.name << " is too soft or too loud";
    EXPECT_TRUE(std::all_of(heard.data() + wanted.size() + 64, heard.data() + heard.size(), IsSilent)) << image.name;
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
  EXPECT_TRUE(IsHeard(heard, starts.back(), bell, bell.size())) << "the last one";
}

TEST_F(Sound, ASoundCutsTheOneBeforeWithoutAClickAndIsHeardWhole) {
  for (const auto& [before, after, seconds] :
       {std::tuple{"APPLAUSE", "ELEVATOR", 1.5}, {"ROLLDICE", "ROLLDICEEND", 0.2}}) {
    const Samples cutOff = Pattern(before);
    const Samples whole = Pattern(after);
    const std::size_t from = Begin(before);
    Listen(seconds);
    PlayOver(from, whole, after, 1);
    const Samples heard = Since(from);
    ASSERT_EQ(Starts(heard, cutOff).size(), 1U);
    const std::size_t begun = Starts(heard, cutOff).front();
    const std::size_t cut = Starts(heard, whole).front();
    EXPECT_TRUE(IsHeard(heard, begun, cutOff, cut - begun)) << before;
    EXPECT_TRUE(IsHeard(heard, cut, whole, whole.size())) << after << ", with nothing of the other after 10 ms";
    // What is left of it dies down evenly within 3 ms instead of breaking off.
    constexpr int kEnd = kRate * 3 / 1000;
    for (int i = 0; i < kEnd; ++i)
      EXPECT_NEAR(heard[cut + i], whole[i] + cutOff[cut - begun + i] * (1 - 1.0 * i / kEnd), 1) << before << " " << i;
  }
}

TEST_F(Sound, AnIdleDeviceIsLetGoAndOpenedAgain) {
  const Samples bell = Pattern("ELEVATOR");
  ListenUntil([this] { return !IsOpen(); });
  QFile::remove(File());
  PlayOver(0, bell, "ELEVATOR", 1);
  EXPECT_TRUE(IsHeard(Since(0), Starts(Since(0), bell).front(), bell, bell.size()));
}

TEST_F(Sound, WithoutADeviceNothingHappensAndNothingIsSaid) {
  TearDown();
  UseDriver("no such driver");
  testing::internal::CaptureStderr();
  player.emplace();
  for (int i = 0; i < 3; ++i) {
    Play("ELEVATOR");
    std::this_thread::sleep_for(50ms);
  }
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
