// A push button with a picture as its face and its caption over it.
#pragma once

#include <QPushButton>

#include "desktop/qt/control.h"

namespace desktop::qt {

class WoodButton : public QPushButton, public Control {
 public:
  WoodButton(PictureStore& pictures, QWidget* parent) : QPushButton(parent), pictures_(pictures) {}

  QWidget& widget() override { return *this; }
  void Follow(const Element& record) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureStore& pictures_;
  Element record_;
};

}  // namespace desktop::qt
