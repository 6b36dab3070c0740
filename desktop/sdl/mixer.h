// What is heard of the one sound that plays, and of the one that it cuts off: plain arithmetic on
// samples, without a device, a thread or a clock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>

namespace desktop::sdl {

/// What the mixer takes and gives: one channel of 16-bit samples at this rate.
constexpr int kRate = 44100;
using Sample = std::int16_t;

/// One sound, from its beginning to its end.
class Voice {
 public:
  virtual ~Voice() = default;
  /// Fills `out` with its next samples and returns how many they are: fewer than asked for at its end.
  virtual std::size_t Read(std::span<Sample> out) = 0;
};

/// Not for two threads at once.
class Mixer {
 public:
  /// Starts `voice` with the next sample, cutting off what plays.
  void Play(std::unique_ptr<Voice> voice) { next_ = std::move(voice); }

  /// Fills `out` with what is heard next. A sound that is cut fades out under the new one, within
  /// the first 3 ms of `out`.
  void Mix(std::span<Sample> out);

 private:
  std::unique_ptr<Voice> playing_;
  std::unique_ptr<Voice> next_;  ///< not yet heard
};

}  // namespace desktop::sdl
