// Plays recordings through SDL's audio subsystem, on a thread of its own.
#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/qt/sdl.h"

namespace desktop::qt {

/// One recording on its way to the device. It is converted piece by piece as it is heard, so that
/// even a long one starts at once.
class Voice {
 public:
  /// `image` is a complete WAVE file. One that cannot be read is silent.
  Voice(const Sdl& sdl, const WaveImage& image);

  /// Adds the next samples to `out`, louder or softer by a factor that goes from `from` to `to`.
  void Mix(std::vector<float>& out, float from, float to);

  bool ended() const { return ended_; }
  /// Length of the recording in seconds.
  double seconds() const { return seconds_; }

 private:
  void Convert(int bytes);

  const Sdl& sdl_;
  std::unique_ptr<SDL_AudioStream, decltype(Sdl::FreeAudioStream)> stream_;
  std::vector<Uint8> samples_;  ///< 16 bits each, at the recording's own rate
  std::size_t given_ = 0;       ///< bytes of them that the stream has
  std::vector<Sint16> piece_;
  double seconds_ = 0;
  bool ended_ = true;
};

/// Everything that can block, such as a sound server that does not answer, happens on the player's
/// own thread. A device is held only while there is something to hear and a little longer.
class SoundPlayer {
 public:
  SoundPlayer();
  /// Waits for what the device is doing.
  ~SoundPlayer();
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  /// Starts `image`, cutting off what plays. Returns at once, whatever the device does. Without a
  /// device nothing is heard.
  void Play(const WaveImage& image);

 private:
  using Clock = std::chrono::steady_clock;
  struct Order {
    WaveImage image;
    Clock::time_point given;
  };

  void Work();
  std::optional<Order> NextOrder();
  void Start(const Order& order);
  bool Prepare();
  bool OpenDevice();
  void CloseDevice();
  static void Feed(void* player, Uint8* out, int bytes);
  void MixInto(Sint16* out, int count);

  // Shared with the game's thread.
  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Order> order_;
  bool ending_ = false;

  // The player's thread alone.
  Sdl sdl_;
  bool ready_ = false;
  SDL_AudioDeviceID device_ = 0;
  std::optional<Clock::time_point> notBefore_;  ///< after a failure: the next try
  std::optional<Clock::time_point> letGo_;      ///< when an idle device is closed

  // The device's callback, and the player's thread under the device's lock.
  std::unique_ptr<Voice> playing_;
  std::unique_ptr<Voice> fading_;
  std::vector<float> mix_;

  std::thread thread_;  ///< uses all of the above from its first moment
};

}  // namespace desktop::qt
