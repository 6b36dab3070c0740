// The widgets in front of a form's canvas.
#pragma once

#include <QWidget>
#include <map>

#include "desktop/common/delivery.h"
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

/// All that stand on one form. They tell of the mouse alone, as keys go to the form's view.
class Controls {
 public:
  /// The widgets belong to `view`, which also filters their events.
  Controls(Form& form, common::Delivery& delivery, PictureStore& pictures, QWidget& view)
      : form_(form), delivery_(delivery), pictures_(pictures), view_(view) {}

  /// Takes over what the records say, and makes widgets for new ones.
  void Follow();
  /// Of a control that has been followed.
  QWidget& WidgetOf(const Element& record) const { return made_.at(&record)->widget(); }

 private:
  Control& ControlOf(Element& record);
  Control* Make(Element& record);
  template <typename Button>
  Control* Connected(Button* button, Element& record);

  Form& form_;
  common::Delivery& delivery_;
  PictureStore& pictures_;
  QWidget& view_;
  std::map<const Element*, Control*> made_;
};

}  // namespace desktop::qt
