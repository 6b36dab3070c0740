// A label that opens something: told by its look, by the pointer and to a screen reader.
#pragma once

#include <QAbstractButton>

#include "desktop/qt/painted_control.h"

namespace desktop::qt {

class LinkLabel : public PaintedControl<QAbstractButton> {
  Q_OBJECT  // a screen reader's interface is looked up by the class's name

      public : LinkLabel(PictureStore& pictures, QWidget* parent);

 protected:
  void Paint(QtCanvas& canvas) override { common::PaintLink(canvas, record()); }
};

}  // namespace desktop::qt
