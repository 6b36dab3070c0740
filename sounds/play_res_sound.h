// The one way the game plays a sound.
#pragma once

#include <string_view>

#include "desktop/desktop.h"

namespace thistle {

/// Starts the recording called `name`, in whatever case, and returns at once; it cuts off the one
/// that plays. Does nothing with `SoundOn` false: what plays then goes on. A name that no recording
/// has plays nothing.
void PlayResSound(desktop::Desktop& desktop, bool SoundOn, std::string_view name);

}  // namespace thistle
