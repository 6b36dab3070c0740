// The widgets in front of a form's canvas.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/element.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

/// A widget that follows one record.
class Control {
 public:
  virtual ~Control() = default;
  virtual QWidget& widget() = 0;
  /// Takes over what the record says. Costs next to nothing where it says the same as before.
  virtual void Follow(const Element& record) = 0;
};

/// What a control tells the form: of the mouse alone, as keys go to the form.
struct ControlEvents {
  std::function<void()> pressed;
  std::function<void()> clicked;
};

/// Makes the widget for a record of a control's kind. The widget belongs to `parent`.
Control* MakeControl(const Element& record, const ControlEvents& events, PictureStore& pictures, QWidget* parent);

}  // namespace desktop::qt
