// The source of chance: a 64-bit Mersenne Twister read as numbers in [0, 1).
#pragma once

#include <cstdint>
#include <random>

namespace desktop::common {

class Chance {
 public:
  explicit Chance(std::uint64_t seed = std::mt19937_64::default_seed) : engine_(seed) {}

  void Seed(std::uint64_t seed) { engine_.seed(seed); }

  /// Starts anew from the clock, and from what else the system has of chance.
  void Randomize();

  /// A uniform number in [0, 1). Its 24 bits fill a float's fraction exactly, so that nothing can
  /// round up to 1.
  float Next() { return static_cast<float>(engine_() >> 40) * 0x1p-24F; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace desktop::common
