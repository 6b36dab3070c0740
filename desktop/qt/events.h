// How what happens on the screen reaches the handlers.
#pragma once

#include <functional>

#include "desktop/pointer.h"

namespace desktop::qt {

class Events {
 public:
  virtual ~Events() = default;

  /// Runs `handler` for one event of the user or the platform, then brings the screen up to date and
  /// lets the innermost wait look at what has changed.
  virtual void Deliver(const std::function<void()>& handler) = 0;

  virtual Pointer& pointer() = 0;
  virtual Frame& frame() = 0;
};

}  // namespace desktop::qt
