#include "desktop/common/painting.h"

namespace desktop::common {

namespace {

// Where neither a picture nor a colour is given.
constexpr Colour kPlainPanel{0xFFFFFF};
constexpr Colour kPlainButton{0xEFEFEF};

void Fill(Canvas& canvas, const Edges& edges) {
  for (const auto& [place, tint] : edges) canvas.Fill(place, tint);
}

void PaintImage(Canvas& canvas, const Element& image, const Scale& scale) {
  if (!image.Picture) return;
  const Rect box = scale.Device(image);
  const Size own = scale.Device(*image.Picture);
  canvas.Show(*image.Picture, image.Stretch ? box : Rect{box.left, box.top, own.width, own.height});
}

void PaintPanel(Canvas& canvas, const Element& panel, const Scale& scale) {
  const Rect box = scale.Device(panel);
  const Colour ground = panel.BackColor.value_or(kPlainPanel);
  canvas.Fill(box, {ground});
  Fill(canvas, PanelEdges(box, ground, scale.Line()));
}

void PaintLabel(Canvas& canvas, const Element& label, const Scale& scale) {
  if (label.BackColor) canvas.Fill(scale.Device(label), {*label.BackColor});
  for (const TextLine& line : LinesOf(label, canvas.Type())) canvas.Write(line, label.Font, label.ForeColor);
}

/// A visible one; a control paints nothing of its own here.
void Paint(Canvas& canvas, const Element& element, const Scale& scale) {
  switch (element.Kind) {
    case Kind::Image:
      return PaintImage(canvas, element, scale);
    case Kind::Panel:
      return PaintPanel(canvas, element, scale);
    case Kind::Shape:
    case Kind::Line:
    case Kind::Label:
      return PaintLabel(canvas, element, scale);
    case Kind::Link:
    case Kind::Button:
    case Kind::OptionButton:
    case Kind::TextView:
      return;  // they stand in front of all this
  }
}

}  // namespace

void PaintInside(Canvas& canvas, const Form& form, const Drawing& drawing, const Rect& damaged, const Scale& scale) {
  canvas.Fill(damaged, {form.BackColor});
  const Rect touched = scale.Layout(damaged).Grown(1);
  for (const Element* element : drawing.Meeting({&touched, 1})) Paint(canvas, *element, scale);
  if (drawing.Ring()) Fill(canvas, RingEdges(*drawing.Ring(), scale));
}

void PaintButton(Canvas& canvas, const Element& button, const ButtonState& state, const Scale& scale) {
  const Rect layout{0, 0, BoxOf(button).width, BoxOf(button).height};
  const Rect face = scale.Device(layout);
  if (button.Picture)
    canvas.Show(*button.Picture, face);
  else
    canvas.Fill(face, {button.BackColor.value_or(kPlainButton)});
  Colour colour = button.ForeColor;
  if (button.Look) {
    Fill(canvas, ButtonEdges(face, *button.Look, state, scale.Line()));
    if (!state.enabled) colour = button.Look->DeadCaption;
  }
  // The caption of a pressed button goes in with it.
  const int sunk = state.pressed ? 1 : 0;
  for (const TextLine& line : LinesInMiddle(button.Caption, button.Font, layout.Moved(sunk, sunk), canvas.Type()))
    canvas.Write(line, button.Font, colour);
}

void PaintLink(Canvas& canvas, const Element& link) {
  Element moved = link;
  moved.MoveTo(0, 0);
  for (const TextLine& line : LinesOf(moved, canvas.Type())) canvas.Write(line, link.Font, link.ForeColor);
}

void PaintBorder(Canvas& canvas, const Form& form, const Scale& scale) {
  Fill(canvas, BorderEdges({form.Width, form.Height}, form.Border, scale));
}

}  // namespace desktop::common
