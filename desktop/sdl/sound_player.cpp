#include "desktop/sdl/sound_player.h"

#include <memory>
#include <utility>

#include "desktop/sdl/recording.h"

namespace desktop::sdl {

namespace {

using namespace std::chrono_literals;

// Frames a callback. With these a sound on an open device starts 25 to 55 ms after the call; with 2048 it
// is up to 84 ms. Fewer bring more than they save: 1024 were damaged now and then on a loaded machine.
constexpr int kFrames = 1280;

// An open device wakes the processor a hundred times a second even in silence.
constexpr auto kHoldDevice = 3s;

// What is still in the device's buffers when the last sample has been handed over.
constexpr auto kRingOut = 500ms;

// Where opening has failed, it is not tried again at every sound.
constexpr auto kAfterFailure = 2s;

void SayNothing(const char*, int, const char*, int, const char*, ...) {}

/// Keeps ALSA from writing to the terminal where there is no device. Does nothing elsewhere.
void QuietAlsa(const Library& sdl) {
  void* alsa = sdl.LoadObject("libasound.so.2");
  if (!alsa) return;
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  using SetHandler = int (*)(Handler);
  if (const auto set = reinterpret_cast<SetHandler>(sdl.LoadFunction(alsa, "snd_lib_error_set_handler")))
    set(SayNothing);
}

}  // namespace

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

void SoundPlayer::Play(const WaveImage& image, std::chrono::milliseconds patience) {
  {
    const std::lock_guard lock(mutex_);
    order_ = Order{image, Clock::now() + patience};
  }
  changed_.notify_one();
}

void SoundPlayer::Work() {
  while (const auto order = NextOrder()) Start(*order);
  CloseDevice();
  if (ready_) sdl_.QuitSubSystem(SDL_INIT_AUDIO);
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
  if (!OpenDevice() || Clock::now() > order.latest) return;
  auto recording = std::make_unique<Recording>(sdl_, order.image);
  const auto length = std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(recording->seconds()));
  letGo_ = Clock::now() + length + kRingOut + kHoldDevice;
  sdl_.LockAudioDevice(device_);
  mixer_.Play(std::move(recording));
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
  letGo_ = Clock::now() + kHoldDevice;
  sdl_.PauseAudioDevice(device_, 0);
  return true;
}

void SoundPlayer::CloseDevice() {
  letGo_.reset();
  if (device_ != 0) sdl_.CloseAudioDevice(std::exchange(device_, 0));
  mixer_ = {};
}

void SoundPlayer::Feed(void* player, Uint8* out, int bytes) {
  const auto count = static_cast<std::size_t>(bytes) / sizeof(Sample);
  static_cast<SoundPlayer*>(player)->mixer_.Mix({reinterpret_cast<Sample*>(out), count});
}

}  // namespace desktop::sdl
