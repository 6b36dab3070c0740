#include "desktop/qt/wood_button.h"

#include "desktop/qt/canvas.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

void WoodButton::Follow(const Element& record) {
  if (record == record_) return;
  record_ = record;
  setAccessibleName(WithoutReturns(record.Caption).trimmed());
  update();
}

void WoodButton::paintEvent(QPaintEvent*) {
  QtCanvas canvas(*this, pictures_);
  const common::ButtonState state{.pressed = isDown(), .focused = hasFocus(), .enabled = isEnabled()};
  common::PaintButton(canvas, record_, state, canvas.scale());
}

}  // namespace desktop::qt
