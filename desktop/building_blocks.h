// Building blocks from which a form is laid out. Places are twips; elements get pixels.
#pragma once

#include <string_view>

#include "desktop/element.h"

namespace desktop {

struct Place {
  int Left, Top, Width, Height;

  /// The same place, reckoned from the corner of a panel that stands on the form.
  constexpr Place In(const Place& panel) const { return {Left + panel.Left, Top + panel.Top, Width, Height}; }
};

/// A row of equal places, each `Step` to the right of the one before.
struct Row {
  Place First;
  int Step;

  constexpr Place At(int i) const { return {First.Left + Step * i, First.Top, First.Width, First.Height}; }
};

Element Laid(Kind kind, std::string_view name, int index, const Place& place);

/// An image; it takes the size of its picture.
Element LaidImage(std::string_view name, int index, const Place& place, const Picture& picture);

/// A label in the form's common type, 11.25 point bold, black, without a ground.
Element LaidLabel(std::string_view name, int index, const Place& place, Align alignment, std::string_view caption = {});

/// A button with a picture as its face. `look` must outlive it.
Element LaidButton(std::string_view name, const Place& place, std::string_view caption, const ButtonLook& look);

/// A button that Enter and Esc press.
Element LaidClosingButton(std::string_view name, const Place& place, std::string_view caption, const ButtonLook& look);

}  // namespace desktop
