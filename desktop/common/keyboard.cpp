#include "desktop/common/keyboard.h"

#include <algorithm>
#include <vector>

#include "desktop/common/walk.h"

namespace desktop::common {

namespace {

using Controls = std::vector<Element*>;

template <typename Test>
Controls Those(const Form& form, const Test& test) {
  Controls found;
  std::ranges::copy_if(form.Controls(), std::back_inserter(found), test);
  return found;
}

/// Links and dead controls are passed over.
bool TakesTab(const Element* control) { return control->TakesFocus() && control->Reacts(); }

/// The one after the control that has the keyboard; from the last on to the first.
Element* NextControl(const Form& form, bool forward) {
  Controls controls = Those(form, TakesTab);
  if (controls.empty()) return nullptr;
  if (!forward) std::ranges::reverse(controls);
  const auto at = std::ranges::find(controls, form.Focus);
  const bool last = at == controls.end() || at + 1 == controls.end();
  return last ? controls.front() : *(at + 1);
}

/// The option beside the one that has the keyboard, if there is one on that side.
Element* NextOption(const Form& form, const Element* focus, bool forward) {
  const Controls options =
      Those(form, [](const Element* control) { return control->Kind == Kind::OptionButton && control->Reacts(); });
  const auto at = std::ranges::find(options, focus);
  if (at == (forward ? options.end() - 1 : options.begin())) return nullptr;
  return *(forward ? at + 1 : at - 1);
}

Element* WithRole(const Form& form, bool Element::*role) {
  const auto at = std::ranges::find_if(form.Controls(),
                                       [role](const Element* control) { return control->*role && control->Reacts(); });
  return at == form.Controls().end() ? nullptr : *at;
}

Scroll ScrollOf(Key key) {
  switch (key) {
    case Key::Up:
      return Scroll::LineUp;
    case Key::Down:
      return Scroll::LineDown;
    case Key::PageUp:
      return Scroll::PageUp;
    case Key::PageDown:
      return Scroll::PageDown;
    case Key::Home:
      return Scroll::ToStart;
    case Key::End:
      return Scroll::ToEnd;
    default:
      return Scroll::None;
  }
}

/// On a form without stops.
KeyMeaning MeaningAmongControls(const Form& form, Key key, bool held) {
  Element* const focus = FocusOf(form);
  const bool onOption = focus && focus->Kind == Kind::OptionButton;
  const bool onButton = focus && focus->Kind == Kind::Button;
  switch (key) {
    case Key::Tab:
    case Key::BackTab:
      return {.focus = NextControl(form, key == Key::Tab)};
    case Key::Enter:
      return {.click = held ? nullptr : onButton ? focus : WithRole(form, &Element::Default)};
    case Key::Escape:
      return {.click = held ? nullptr : WithRole(form, &Element::Cancel)};
    case Key::Space:
      return {.click = !held && (onButton || onOption) ? focus : nullptr};
    case Key::Up:
    case Key::Left:
      if (onOption) return {.click = NextOption(form, focus, false)};
      break;
    case Key::Down:
    case Key::Right:
      if (onOption) return {.click = NextOption(form, focus, true)};
      break;
    default:
      break;
  }
  // The keys that scroll reach the form's text wherever the keyboard is.
  return {.scroll = ScrollOf(key)};
}

KeyMeaning MeaningAmongStops(const Form& form, const std::vector<Stop>& stops, Key key, bool held) {
  if (key == Key::Tab || key == Key::BackTab) return {.stop = NextStop(stops, form.AtStop, key == Key::Tab)};
  const int beside = StopBeside(stops, form.AtStop, key);
  if (beside != kNoStop || held) return {.stop = beside};
  Element* const control = ControlAt(form, stops, form.AtStop);
  if (control && (key == Key::Enter || key == Key::Space)) return {.click = control->Reacts() ? control : nullptr};
  return {.hand = HandOf(form, stops, form.AtStop, key)};
}

}  // namespace

KeyMeaning MeaningOf(const Form& form, Key key, bool held) {
  const std::vector<Stop> stops = form.Stops();
  return stops.empty() ? MeaningAmongControls(form, key, held) : MeaningAmongStops(form, stops, key, held);
}

Element* FocusOf(const Form& form) { return form.Focus && form.Focus->Reacts() ? form.Focus : nullptr; }

void TakeKeyboard(Form& form) {
  if (!FocusOf(form)) form.Focus = WithRole(form, &Element::Default);
}

}  // namespace desktop::common
