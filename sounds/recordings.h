// The recordings that the program carries.
#pragma once

#include <span>
#include <string_view>

#include "desktop/desktop.h"

namespace thistle {

/// All eight, under their upper-case names.
std::span<const desktop::WaveImage> AllRecordings();

/// The recording called `name`, which may be spelled in any case; nullptr where there is none.
const desktop::WaveImage* FindRecording(std::string_view name);

}  // namespace thistle
