// The ground of a text in the platform's own colour.
#pragma once

#include "desktop/look.h"

namespace desktop::common {

/// The platform's colour for tooltips, or a pale one where black text could not be read on it.
Colour TextGround(Colour tooltip);

}  // namespace desktop::common
