// Sound, once the window is on the screen.
#pragma once

#include <QTimer>
#include <optional>

#include "desktop/desktop.h"
#include "desktop/sdl/sound_player.h"

namespace desktop::qt {

/// To load the sound library beside it would hold up the first picture. So the first sound waits for that, but not for
/// ever: a window may come up out of sight.
class DeferredSound {
 public:
  void Play(const WaveImage& image) {
    if (begun_) return player_.Play(image);
    if (!first_) QTimer::singleShot(kLongest, &guard_, [this] { Begin(); });
    first_ = image;
  }

  /// The window's first picture is on the screen.
  void Begin() {
    if (std::exchange(begun_, true)) return;
    if (first_) player_.Play(*first_, kPatience);
  }

 private:
  static constexpr std::chrono::milliseconds kLongest{500};
  // Nothing that is seen goes with the first sound, and loading the library takes long where the disk is cold.
  static constexpr std::chrono::milliseconds kPatience{5000};

  sdl::SoundPlayer player_;
  bool begun_ = false;
  std::optional<WaveImage> first_;
  QObject guard_;  ///< no timer outlives it
};

}  // namespace desktop::qt
