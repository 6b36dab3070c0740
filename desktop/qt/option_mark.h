// The round mark of an option; its words stand beside it as a label.
#pragma once

#include <QRadioButton>

#include "desktop/qt/control.h"

namespace desktop::qt {

class OptionMark : public QRadioButton, public Control {
 public:
  explicit OptionMark(QWidget* parent) : QRadioButton(parent) {}

  QWidget& widget() override { return *this; }
  void Follow(const Element& record) override;
};

}  // namespace desktop::qt
