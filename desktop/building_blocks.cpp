#include "desktop/building_blocks.h"

#include "desktop/units.h"

namespace desktop {

Element Laid(Kind kind, std::string_view name, int index, const Place& place) {
  Element element;
  element.Kind = kind;
  element.Name = name;
  element.Index = index;
  element.Left = Pixels(place.Left);
  element.Top = Pixels(place.Top);
  element.Width = Pixels(place.Width);
  element.Height = Pixels(place.Height);
  return element;
}

Element LaidImage(std::string_view name, int index, const Place& place, const Picture& picture) {
  Element image = Laid(Kind::Image, name, index, place);
  image.SetPicture(picture);
  return image;
}

Element LaidLabel(std::string_view name, int index, const Place& place, Align alignment, std::string_view caption) {
  Element label = Laid(Kind::Label, name, index, place);
  label.Alignment = alignment;
  label.Caption = caption;
  return label;
}

Element LaidButton(std::string_view name, const Place& place, std::string_view caption, const ButtonLook& look) {
  Element button = Laid(Kind::Button, name, 0, place);
  button.Caption = caption;
  button.Look = &look;
  return button;
}

Element LaidClosingButton(std::string_view name, const Place& place, std::string_view caption, const ButtonLook& look) {
  Element button = LaidButton(name, place, caption, look);
  button.Default = true;
  button.Cancel = true;
  return button;
}

}  // namespace desktop
