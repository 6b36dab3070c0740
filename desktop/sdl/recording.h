// A recording on its way to the device.
#pragma once

#include <memory>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/sdl/library.h"
#include "desktop/sdl/mixer.h"

namespace desktop::sdl {

/// It is converted piece by piece as it is heard, so that even a long one starts at once.
class Recording : public Voice {
 public:
  /// `image` is a complete WAVE file. One that cannot be read is silent. `sdl` is loaded, and
  /// outlives the recording.
  Recording(const Library& sdl, const WaveImage& image);

  std::size_t Read(std::span<Sample> out) override;

  /// Length in seconds.
  double seconds() const { return seconds_; }

 private:
  void Convert(int bytes);

  const Library& sdl_;
  std::unique_ptr<SDL_AudioStream, decltype(Library::FreeAudioStream)> stream_;
  std::vector<Uint8> samples_;  ///< 16 bits each, at the recording's own rate, and silence behind them
  std::size_t given_ = 0;       ///< bytes of them that the stream has
  std::size_t left_ = 0;        ///< samples still to be read
  double seconds_ = 0;
};

}  // namespace desktop::sdl
