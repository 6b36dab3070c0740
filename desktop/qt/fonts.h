// The carried type: Liberation Serif, so that every caption fits its box on every machine.
#pragma once

#include <QFont>

#include "desktop/look.h"

namespace desktop::qt {

/// Makes the carried font files known. Once, before the first font is asked for.
void LoadCarriedFonts();

/// Sized in pixels, so that the layout holds whatever the screen's density.
QFont ToQt(const Font& font);

}  // namespace desktop::qt
