// A label that opens something: told by its look, by the pointer and to a screen reader.
#pragma once

#include <QAbstractButton>

#include "desktop/qt/control.h"

namespace desktop::qt {

class LinkLabel : public QAbstractButton, public Control {
  Q_OBJECT  // a screen reader's interface is looked up by the class's name

      public : LinkLabel(PictureStore& pictures, QWidget* parent);

  QWidget& widget() override { return *this; }
  void Follow(const Element& record) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureStore& pictures_;
  Element record_;
};

}  // namespace desktop::qt
