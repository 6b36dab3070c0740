// One thing that stands on a form, as a plain record: where it is and what it shows.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/document.h"
#include "desktop/look.h"
#include "desktop/picture.h"

namespace desktop {

enum class Kind {
  Shape,         ///< a filled rectangle; takes no events
  Panel,         ///< a bordered panel behind other elements; takes no events
  Line,          ///< a filled rectangle drawn on the form's ground; takes no events
  Image,         ///< a picture
  Label,         ///< a text, on a ground of its own or on none
  Link,          ///< a label that can be clicked and looks so; it never has the keyboard
  Button,        ///< a push button with a picture as its face
  OptionButton,  ///< one of a group of which exactly one is set
  TextView,      ///< the scrolling view of a document
};

/// Places and sizes are pixels from the form's top left corner.
struct Element {
  desktop::Kind Kind = desktop::Kind::Image;
  std::string_view Name;  ///< the control's name
  int Index = 0;          ///< its place in its control array, from 0; 0 where there is no array

  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;

  bool Visible = true;
  bool Enabled = true;  ///< a disabled element takes no mouse events; the press goes to what is behind

  const desktop::Picture* Picture = nullptr;
  bool Stretch = false;  ///< the picture fills the element, whatever its size

  std::string Caption;
  desktop::Font Font;
  Align Alignment = Align::Left;
  Colour ForeColor{0x000000};
  std::optional<Colour> BackColor;  ///< none: what lies behind shows through

  const ButtonLook* Look = nullptr;  ///< of a button

  bool Default = false;  ///< a button that Enter presses wherever the focus is
  bool Cancel = false;   ///< a button that Esc presses
  bool Value = false;    ///< an option button that is set

  const Document* Text = nullptr;  ///< what a text view shows
  std::string AccessibleName;      ///< what a screen reader says where the caption does not tell
  bool SaidByStop = false;         ///< a label whose text a screen reader finds in one of the form's stops

  bool operator==(const Element&) const = default;

  bool Contains(float x, float y) const { return x >= Left && x < Left + Width && y >= Top && y < Top + Height; }

  bool IsControl() const {
    using enum desktop::Kind;
    return Kind == Button || Kind == OptionButton || Kind == TextView || Kind == Link;
  }

  /// Answers mouse and keys.
  bool Reacts() const { return Visible && Enabled; }

  bool TakesFocus() const { return IsControl() && Kind != desktop::Kind::Link; }

  void MoveTo(float left, float top) {
    Left = left;
    Top = top;
  }

  /// Shows `picture`. An image that is not stretched takes its size; its top left corner stays.
  void SetPicture(const desktop::Picture& picture) {
    Picture = &picture;
    if (Kind != desktop::Kind::Image || Stretch) return;
    Width = static_cast<float>(picture.width);
    Height = static_cast<float>(picture.height);
  }
};

/// Whether `element` is one of a control array.
template <std::size_t count>
bool IsOneOf(const std::array<Element, count>& controls, const Element& element) {
  return std::ranges::any_of(controls, [&](const Element& control) { return &control == &element; });
}

}  // namespace desktop
