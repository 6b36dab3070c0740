// The forms' own colours, whatever the user's theme.
#pragma once

#include <QPalette>

namespace desktop::qt {

/// A complete light palette: half a one would mix with a dark theme into white text on cream.
QPalette LightPalette();

}  // namespace desktop::qt
