// Where the window stands: when that is the player's own choice, and how a stored place is turned into pixels.
#pragma once

#include "desktop/common/rect.h"
#include "desktop/frame.h"

namespace desktop::common {

/// A window as the platform tells of it.
struct WindowLook {
  bool shown = false;
  bool minimised = false;
  bool maximised = false;  ///< or shown on the full screen
  Size size;               ///< inside its decoration
};

/// `fixed` is the window's one size in the normal state. A window manager may call one maximised to which it denies
/// another size: there it is in the normal state.
WindowState StateOf(const WindowLook& look, Size fixed);

/// Only what the player has moved by hand: neither a state's place, nor one at which a window of another size was put.
bool IsPlayersOwn(const WindowLook& look, Size fixed);

/// Half-maximised windows have no state of their own; they are told by a side nearly as long as the work area's.
bool IsTiled(Size window, Size room);

/// A place of the frame in pixels of the screen. No window system places a window beyond 16 bits.
int OnScreen(float twips);

/// The other way.
float InTwips(int pixels);

}  // namespace desktop::common
