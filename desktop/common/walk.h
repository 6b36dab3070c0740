// How the keyboard walks through the stops of a form, and where the ring shows that tells where it stands.
#pragma once

#include <optional>
#include <vector>

#include "desktop/common/rect.h"
#include "desktop/form.h"

namespace desktop::common {

/// Where Tab leads from the stop `at`, or from none: to the next that can be used, round the end. kNoStop where there
/// is none.
int NextStop(const std::vector<Stop>& stops, int at, bool forward);

/// Where an arrow key leads: to the nearest that can be used on that side; from none to the first. kNoStop where there
/// is none, and for other keys.
int StopBeside(const std::vector<Stop>& stops, int at, Key key);

/// What a key does on the stop `at`, or else wherever the keyboard is.
std::optional<Hand> HandOf(const Form& form, const std::vector<Stop>& stops, int at, Key key);

/// The number of the stop that is this control, or kNoStop.
int StopOf(const std::vector<Stop>& stops, const Element& control);
/// The control that the stop `at` is, or nullptr.
Element* ControlAt(const Form& form, const std::vector<Stop>& stops, int at);

/// The stop that has the keyboard, if one has.
std::optional<Stop> StopWithKeyboard(const Form& form);

/// The outer edge of the ring around the stop that has the keyboard, if it shows, in the layout's pixels from inside
/// the form's border.
std::optional<Rect> RingOf(const Form& form);

}  // namespace desktop::common
