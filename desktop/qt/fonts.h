// The carried type: Liberation Serif, so that every caption fits its box on every machine. And what the
// system's own type, which menus are set in, costs at the start.
#pragma once

#include <QFont>

#include "desktop/look.h"

namespace desktop::qt {

/// Has the system's list of fonts read on a thread of its own, beside the toolkit's start, where that
/// takes long. Before the QApplication is made.
void ReadSystemFontsAhead();

/// Sized in pixels, so that the layout holds whatever the screen's density. A style's font file is
/// loaded when it is asked for first.
QFont ToQt(const Font& font);

}  // namespace desktop::qt
