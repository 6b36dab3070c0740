#include "desktop/sdl/mixer.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace desktop::sdl {

namespace {

// Long enough to take the click out of a cut, too short to be heard as a fade.
constexpr std::size_t kFade = kRate * 3 / 1000;

/// The sum of two samples. One that is too loud stays at the limit: wrapped around it would crack.
Sample Sum(int one, int other) {
  using Limits = std::numeric_limits<Sample>;
  return static_cast<Sample>(std::clamp<int>(one + other, Limits::min(), Limits::max()));
}

void AddFading(Voice& voice, std::span<Sample> out) {
  std::array<Sample, kFade> room{};
  const auto tail = std::span(room).first(std::min(out.size(), kFade));
  const auto length = static_cast<int>(tail.size());
  const auto count = static_cast<int>(voice.Read(tail));
  for (int i = 0; i < count; ++i) out[i] = Sum(out[i], tail[i] * (length - i) / length);
}

}  // namespace

void Mixer::Mix(std::span<Sample> out) {
  std::unique_ptr<Voice> cut;
  if (next_) cut = std::exchange(playing_, std::move(next_));
  const std::size_t count = playing_ ? playing_->Read(out) : 0;
  std::ranges::fill(out.subspan(count), Sample{0});
  if (count < out.size()) playing_.reset();
  if (cut) AddFading(*cut, out);
}

}  // namespace desktop::sdl
