#include "desktop/common/keyboard.h"

#include <algorithm>
#include <vector>

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
bool IsStop(const Element* control) { return control->TakesFocus() && control->Reacts(); }

/// The one after the control that has the keyboard; from the last on to the first.
Element* NextStop(const Form& form, bool forward) {
  Controls stops = Those(form, IsStop);
  if (stops.empty()) return nullptr;
  if (!forward) std::ranges::reverse(stops);
  const auto at = std::ranges::find(stops, form.Focus);
  const bool last = at == stops.end() || at + 1 == stops.end();
  return last ? stops.front() : *(at + 1);
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

}  // namespace

KeyMeaning MeaningOf(const Form& form, Key key, bool held) {
  Element* const focus = FocusOf(form);
  const bool onOption = focus && focus->Kind == Kind::OptionButton;
  const bool onButton = focus && focus->Kind == Kind::Button;
  switch (key) {
    case Key::Tab:
    case Key::BackTab:
      return {.focus = NextStop(form, key == Key::Tab)};
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

Element* FocusOf(const Form& form) { return form.Focus && form.Focus->Reacts() ? form.Focus : nullptr; }

void TakeKeyboard(Form& form) {
  if (!FocusOf(form)) form.Focus = WithRole(form, &Element::Default);
}

}  // namespace desktop::common
