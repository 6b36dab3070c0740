// Bringing a window back to its one size, without quarrelling with whoever insists on another.
#pragma once

#include <chrono>

#include "desktop/common/place.h"

namespace desktop::common {

/// A desktop says when the window's size or state has changed, looks a while later, and once more after each wish.
class SnapBack {
 public:
  /// The window's size or state has changed. What comes after an own wish is no new event from outside, but where the
  /// wish is granted.
  void NoteChange(Size now, Size fixed);

  /// Whether to wish for the fixed size now. `room` is the work area's size.
  bool Wishes(const WindowLook& look, Size fixed, Size room);

  /// How long to wait after a change or a wish before looking.
  std::chrono::milliseconds Wait() const;

 private:
  bool wished_ = false;  ///< and not yet looked at what has come of it
  int refusals_ = 0;
};

}  // namespace desktop::common
