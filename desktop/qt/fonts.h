// The carried type: Liberation Serif, so that every caption fits its box on every machine.
#pragma once

#include <QFont>

#include "desktop/look.h"

namespace desktop::qt {

/// Sized in pixels, so that the layout holds whatever the screen's density. A style's font file is
/// loaded when it is asked for first.
QFont ToQt(const Font& font);

}  // namespace desktop::qt
