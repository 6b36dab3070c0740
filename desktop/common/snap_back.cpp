#include "desktop/common/snap_back.h"

namespace desktop::common {

namespace {

// Refused so often, a wish is not repeated until something happens from outside.
constexpr int kMostRefusals = 2;

}  // namespace

void SnapBack::NoteChange() {
  if (!wished_) refusals_ = 0;
}

bool SnapBack::Wishes(const WindowLook& look, Size fixed, Size room) {
  const bool normal = StateOf(look, fixed) == WindowState::Normal && !look.maximised;
  wished_ = normal && look.size != fixed && !IsTiled(look.size, room) && refusals_ < kMostRefusals;
  if (wished_) ++refusals_;
  return wished_;
}

}  // namespace desktop::common
