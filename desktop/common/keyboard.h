// What a key means on the form in front: which control it presses, where the keyboard goes, how a text scrolls.
#pragma once

#include <optional>

#include "desktop/form.h"

namespace desktop::common {

enum class Scroll { None, LineUp, LineDown, PageUp, PageDown, ToStart, ToEnd };

/// At most one of them.
struct KeyMeaning {
  Element* focus = nullptr;                 ///< the control that the keyboard goes to
  Element* click = nullptr;                 ///< the control that is pressed
  int stop = kNoStop;                       ///< the stop that the keyboard goes to
  std::optional<Hand> hand = std::nullopt;  ///< what a hand does
  Scroll scroll = Scroll::None;
};

/// `held` tells that the key is held down and repeats: then it goes on and scrolls, but presses nothing.
KeyMeaning MeaningOf(const Form& form, Key key, bool held);

/// The control that has the keyboard while the form is in front, or nullptr: one that has gone or is dead has lost
/// it.
Element* FocusOf(const Form& form);

/// Gives the keyboard of a form that has come to the front to the control that had it last, or else to its default
/// one.
void TakeKeyboard(Form& form);

/// What a press with the mouse does: a text is read and not typed into, so it leaves the keyboard where it is.
inline bool TakesFocusByMouse(const Element& control) { return control.TakesFocus() && control.Kind != Kind::TextView; }

}  // namespace desktop::common
