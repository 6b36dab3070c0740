// A button of the toolkit's that is painted from its record.
#pragma once

#include "desktop/qt/canvas.h"
#include "desktop/qt/control.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

/// `Button` says what it is to the toolkit and to a screen reader, and how it takes the mouse.
template <typename Button>
class PaintedControl : public Button, public Control {
 public:
  PaintedControl(PictureStore& pictures, QWidget* parent) : Button(parent), pictures_(pictures) {}

  QWidget& widget() override { return *this; }

  void Follow(const Element& record) override {
    if (record == record_) return;
    record_ = record;
    this->setAccessibleName(WithoutReturns(record.Caption).trimmed());
    this->update();
  }

 protected:
  virtual void Paint(QtCanvas& canvas) = 0;

  void paintEvent(QPaintEvent*) override {
    QtCanvas canvas(*this, pictures_);
    Paint(canvas);
  }

  const Element& record() const { return record_; }

 private:
  PictureStore& pictures_;
  Element record_;
};

}  // namespace desktop::qt
