#include "desktop/common/place.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "desktop/units.h"

namespace desktop::common {

namespace {

// How much a half-maximised window may lack of the work area's side, in pixels: its decoration and more.
constexpr int kTiledMargin = 64;

}  // namespace

WindowState StateOf(const WindowLook& look, Size fixed) {
  if (look.minimised) return WindowState::Minimised;
  const bool larger = look.size.width > fixed.width || look.size.height > fixed.height;
  return look.maximised && larger ? WindowState::Maximised : WindowState::Normal;
}

bool IsPlayersOwn(const WindowLook& look, Size fixed) {
  return look.shown && !look.minimised && !look.maximised && look.size == fixed;
}

bool IsTiled(Size window, Size room) {
  return std::abs(room.width - window.width) < kTiledMargin || std::abs(room.height - window.height) < kTiledMargin;
}

int OnScreen(float twips) {
  return static_cast<int>(std::lround(std::clamp(twips / kTwipsPerPixel, -32768.F, 32767.F)));
}

float InTwips(int pixels) { return static_cast<float>(pixels * kTwipsPerPixel); }

}  // namespace desktop::common
