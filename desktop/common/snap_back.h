// Bringing a window back to its one size, without quarrelling with whoever insists on another.
#pragma once

#include "desktop/common/place.h"

namespace desktop::common {

/// A desktop says when the window's size or state has changed, looks a moment later, and once more after each wish.
class SnapBack {
 public:
  /// The window's size or state has changed. What answers an own wish is no new event from outside.
  void NoteChange();

  /// Whether to wish for the fixed size now. `room` is the work area's size.
  bool Wishes(const WindowLook& look, Size fixed, Size room);

 private:
  bool wished_ = false;  ///< and not yet looked at what has come of it
  int refusals_ = 0;
};

}  // namespace desktop::common
