// Plays recordings through SDL's audio subsystem, on a thread of its own.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "desktop/desktop.h"
#include "desktop/sdl/library.h"
#include "desktop/sdl/mixer.h"

namespace desktop::sdl {

/// Everything that can block, such as a sound server that does not answer, happens on the player's
/// own thread. A device is held only while there is something to hear and a little longer.
class SoundPlayer {
 public:
  SoundPlayer();
  /// Waits for what the device is doing.
  ~SoundPlayer();
  SoundPlayer(const SoundPlayer&) = delete;
  SoundPlayer& operator=(const SoundPlayer&) = delete;

  /// A sound later than this would be out of step with what is seen.
  static constexpr std::chrono::milliseconds kInStep{400};

  /// Starts `image`, cutting off what plays. Returns at once, whatever the device does. Without a
  /// device nothing is heard, nor is what could not be started within `patience`.
  void Play(const WaveImage& image, std::chrono::milliseconds patience = kInStep);

 private:
  using Clock = std::chrono::steady_clock;
  struct Order {
    WaveImage image;
    Clock::time_point latest;
  };

  void Work();
  std::optional<Order> NextOrder();
  void Start(const Order& order);
  bool Prepare();
  bool OpenDevice();
  void CloseDevice();
  static void Feed(void* player, Uint8* out, int bytes);

  // Shared with the game's thread.
  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Order> order_;
  bool ending_ = false;

  // The player's thread alone.
  Library sdl_;
  bool ready_ = false;
  SDL_AudioDeviceID device_ = 0;
  std::optional<Clock::time_point> notBefore_;  ///< after a failure: the next try
  std::optional<Clock::time_point> letGo_;      ///< when an idle device is closed

  // The device's callback, and the player's thread under the device's lock.
  Mixer mixer_;

  std::thread thread_;  ///< uses all of the above from its first moment
};

}  // namespace desktop::sdl
