#include "desktop/common/snap_back.h"

namespace desktop::common {

namespace {

// A window manager needs a moment to tell a maximised window's new state after its new size, and another to carry out a
// resize.
constexpr std::chrono::milliseconds kFirstWait{80};

// While the player holds a border, or rests with it in the hand, nearly all refuse every size, and none tells when it
// is let go. So each wait is twice as long as the one before, some twenty seconds in all. Refused to the end, a wish is
// not repeated until something happens from outside.
constexpr int kMostRefusals = 8;

}  // namespace

void SnapBack::NoteChange(Size now, Size fixed) {
  if (!wished_ || now == fixed) refusals_ = 0;
}

bool SnapBack::Wishes(const WindowLook& look, Size fixed, Size room) {
  const bool normal = StateOf(look, fixed) == WindowState::Normal && !look.maximised;
  wished_ = normal && look.size != fixed && !IsTiled(look.size, room) && refusals_ < kMostRefusals;
  if (wished_) ++refusals_;
  return wished_;
}

std::chrono::milliseconds SnapBack::Wait() const { return kFirstWait * (1 << refusals_); }

}  // namespace desktop::common
