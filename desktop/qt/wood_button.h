// A push button with a picture as its face and its caption over it.
#pragma once

#include <QPushButton>

#include "desktop/qt/painted_control.h"

namespace desktop::qt {

class WoodButton : public PaintedControl<QPushButton> {
 public:
  using PaintedControl::PaintedControl;

 protected:
  void Paint(QtCanvas& canvas) override {
    const common::ButtonState state{.pressed = isDown(), .focused = hasFocus(), .enabled = isEnabled()};
    common::PaintButton(canvas, record(), state, canvas.scale());
  }
};

}  // namespace desktop::qt
