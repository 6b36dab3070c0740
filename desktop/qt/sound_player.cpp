#include "desktop/qt/sound_player.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop::qt {

namespace {

using namespace std::chrono_literals;

constexpr int kRate = 44100;

// Frames a callback. With these a sound on an open device starts 25 to 55 ms after the call; with 2048 it
// is up to 84 ms. Fewer bring more than they save: 1024 were damaged now and then on a loaded machine.
constexpr int kFrames = 1280;

// Long enough to take the click out of a cut, too short to be heard as a fade.
constexpr int kFadeFrames = kRate * 3 / 1000;

// Bytes of a recording converted at a time: 1600 frames, a fraction of a millisecond's work. The
// stream rounds each piece to whole frames of the device, so a piece must make a whole number of
// them at every rate in use (8000, 11025, 16000 and 22050 Hz), or the recording would run fast.
constexpr std::size_t kPiece = 1600 * sizeof(Sint16);

// An open device wakes the processor a hundred times a second even in silence.
constexpr auto kHoldDevice = 3s;

// What is still in the device's buffers when the last sample has been handed over.
constexpr auto kRingOut = 500ms;

// Where opening has failed, it is not tried again at every sound.
constexpr auto kAfterFailure = 2s;

// A sound that could not be started for so long would be out of step with what is seen.
constexpr auto kTooLate = 400ms;

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

/// Keeps ALSA from writing to the terminal where there is no device. Does nothing elsewhere.
void QuietAlsa(const Sdl& sdl) {
  void* alsa = sdl.LoadObject("libasound.so.2");
  if (!alsa) return;
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  using SetHandler = int (*)(Handler);
  if (const auto set = reinterpret_cast<SetHandler>(sdl.LoadFunction(alsa, "snd_lib_error_set_handler")))
    set(SayNothing);
}

}  // namespace

Voice::Voice(const Sdl& sdl, const WaveImage& image) : sdl_(sdl), stream_(nullptr, sdl.FreeAudioStream) {
  SDL_AudioSpec spec{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  SDL_RWops* file = sdl_.RWFromConstMem(image.bytes.data(), static_cast<int>(image.bytes.size()));
  if (!file || !sdl_.LoadWAV_RW(file, 1, &spec, &bytes, &size)) return;
  const std::unique_ptr<Uint8, decltype(Sdl::FreeWAV)> loaded(bytes, sdl_.FreeWAV);

  // The width first and apart: at the end a stream fills up with zeros, which are not silence in
  // eight bits.
  SDL_AudioCVT width{};
  if (sdl_.BuildAudioCVT(&width, spec.format, spec.channels, spec.freq, AUDIO_S16SYS, 1, spec.freq) < 0) return;
  samples_.resize(static_cast<std::size_t>(size) * static_cast<std::size_t>(std::max(width.len_mult, 1)));
  std::copy_n(bytes, size, samples_.begin());
  width.buf = samples_.data();
  width.len = static_cast<int>(size);
  if (width.needed != 0) {
    sdl_.ConvertAudio(&width);
    size = static_cast<Uint32>(width.len_cvt);
  }
  samples_.resize(size);

  stream_.reset(sdl_.NewAudioStream(AUDIO_S16SYS, 1, spec.freq, AUDIO_S16SYS, 1, kRate));
  seconds_ = static_cast<double>(size) / sizeof(Sint16) / spec.freq;
  ended_ = !stream_;
}

void Voice::Convert(int bytes) {
  while (given_ < samples_.size() && sdl_.AudioStreamAvailable(stream_.get()) < bytes) {
    const std::size_t piece = std::min(kPiece, samples_.size() - given_);
    sdl_.AudioStreamPut(stream_.get(), samples_.data() + given_, static_cast<int>(piece));
    given_ += piece;
    if (given_ == samples_.size()) sdl_.AudioStreamFlush(stream_.get());
  }
}

void Voice::Mix(std::vector<float>& out, float from, float to) {
  if (ended_) return;
  piece_.resize(out.size());
  const int wanted = static_cast<int>(piece_.size() * sizeof(Sint16));
  Convert(wanted);
  const int got = sdl_.AudioStreamGet(stream_.get(), piece_.data(), wanted);
  const auto count = static_cast<std::size_t>(std::max(got, 0)) / sizeof(Sint16);
  const float step = (to - from) / static_cast<float>(out.size());
  for (std::size_t i = 0; i < count; ++i) out[i] += piece_[i] * (from + step * static_cast<float>(i));
  ended_ = got < wanted;
}

// The thread stands ready from the start: to make it can take longer than a call of Play may.
SoundPlayer::SoundPlayer() : thread_([this] { Work(); }) {}

SoundPlayer::~SoundPlayer() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void SoundPlayer::Play(const WaveImage& image) {
  {
    const std::lock_guard lock(mutex_);
    order_ = Order{image, Clock::now()};
  }
  changed_.notify_one();
}

void SoundPlayer::Work() {
  while (const auto order = NextOrder()) Start(*order);
  CloseDevice();
}

/// Rests until there is something to play; none when the player ends. An idle device is let go in
/// the meantime.
std::optional<SoundPlayer::Order> SoundPlayer::NextOrder() {
  std::unique_lock lock(mutex_);
  const auto called = [this] { return order_ || ending_; };
  while (!called()) {
    if (!letGo_) {
      changed_.wait(lock, called);
    } else if (!changed_.wait_until(lock, *letGo_, called)) {
      lock.unlock();
      CloseDevice();
      lock.lock();
    }
  }
  return ending_ ? std::nullopt : std::exchange(order_, std::nullopt);
}

void SoundPlayer::Start(const Order& order) {
  if (!OpenDevice() || Clock::now() - order.given > kTooLate) return;
  auto voice = std::make_unique<Voice>(sdl_, order.image);
  const auto length = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(voice->seconds()));
  letGo_ = Clock::now() + length + kRingOut + kHoldDevice;
  sdl_.LockAudioDevice(device_);
  // Swapped rather than freed here: freeing waits for nobody outside the lock.
  fading_.swap(playing_);
  playing_.swap(voice);
  sdl_.UnlockAudioDevice(device_);
}

bool SoundPlayer::Prepare() {
  if (ready_) return true;
  if (!sdl_.Load()) return false;
  // Otherwise SDL takes over the signals that end the program.
  sdl_.SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  QuietAlsa(sdl_);
  ready_ = sdl_.InitSubSystem(SDL_INIT_AUDIO) == 0;
  return ready_;
}

bool SoundPlayer::OpenDevice() {
  // A server that has gone leaves a stopped device behind.
  if (device_ != 0 && sdl_.GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED) CloseDevice();
  if (device_ != 0) return true;
  if (notBefore_ && Clock::now() < *notBefore_) return false;
  SDL_AudioSpec wanted{};
  wanted.freq = kRate;
  wanted.format = AUDIO_S16SYS;
  wanted.channels = 1;
  wanted.samples = kFrames;
  wanted.callback = Feed;
  wanted.userdata = this;
  if (Prepare()) device_ = sdl_.OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  if (device_ == 0) {
    notBefore_ = Clock::now() + kAfterFailure;
    return false;
  }
  notBefore_.reset();
  sdl_.PauseAudioDevice(device_, 0);
  return true;
}

void SoundPlayer::CloseDevice() {
  letGo_.reset();
  if (device_ != 0) sdl_.CloseAudioDevice(std::exchange(device_, 0));
  playing_.reset();
  fading_.reset();
}

void SoundPlayer::Feed(void* player, Uint8* out, int bytes) {
  static_cast<SoundPlayer*>(player)->MixInto(reinterpret_cast<Sint16*>(out), bytes / static_cast<int>(sizeof(Sint16)));
}

void SoundPlayer::MixInto(Sint16* out, int count) {
  mix_.assign(static_cast<std::size_t>(count), 0);
  if (playing_) playing_->Mix(mix_, 1, 1);
  if (fading_) {
    std::vector<float> tail(static_cast<std::size_t>(std::min(count, kFadeFrames)), 0);
    fading_->Mix(tail, 1, 0);
    std::ranges::transform(tail, mix_, mix_.begin(), std::plus());
    fading_.reset();
  }
  std::ranges::transform(
      mix_, out, [](float sample) { return static_cast<Sint16>(std::lround(std::clamp(sample, -32768.F, 32767.F))); });
}

}  // namespace desktop::qt
