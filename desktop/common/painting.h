// How the records of a form are painted, in the few calls that a desktop has to offer.
#pragma once

#include "desktop/common/drawing.h"
#include "desktop/common/edges.h"
#include "desktop/common/scale.h"
#include "desktop/common/text_box.h"
#include "desktop/form.h"

namespace desktop::common {

/// What a form is painted on, and in which type. Places are device pixels; only a line of text is told in the
/// layout's pixels, as type may stand between two of the screen's.
class Canvas {
 public:
  virtual ~Canvas() = default;
  virtual const TextMeasure& Type() const = 0;
  virtual void Fill(const Rect& place, const Tint& tint) = 0;
  /// Shows a picture at this size.
  virtual void Show(const Picture& picture, const Rect& place) = 0;
  virtual void Write(const TextLine& line, const Font& font, Colour colour) = 0;
};

/// Paints what lies in `damaged`, in device pixels, of a form's ground, images, labels and ring. The canvas begins
/// inside the form's border and paints nothing beyond `damaged`.
void PaintInside(Canvas& canvas, const Form& form, const Drawing& drawing, const Rect& damaged, const Scale& scale);

/// Paints a push button whose upper left corner is the canvas's.
void PaintButton(Canvas& canvas, const Element& button, const ButtonState& state, const Scale& scale);

/// Paints a link whose upper left corner is the canvas's. It has no ground.
void PaintLink(Canvas& canvas, const Element& link);

/// Paints the border of a form, whose outer upper left corner is the canvas's.
void PaintBorder(Canvas& canvas, const Form& form, const Scale& scale);

}  // namespace desktop::common
