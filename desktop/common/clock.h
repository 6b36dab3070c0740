// The clock that waits are reckoned by.
#pragma once

#include <chrono>

namespace desktop::common {

/// Seconds since some moment. The clock on the wall may be set; this one never jumps back.
inline double SteadySeconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace desktop::common
