// A yes-or-no question that can only be answered, not dismissed.
#pragma once

#include <QMessageBox>

#include "desktop/qt/input.h"

namespace desktop::qt {

/// Esc and the box's close button do nothing, nor does a key that has been held since before: an answer by accident
/// could cost the player's money.
class QuestionBox : public QMessageBox {
 public:
  QuestionBox(const QString& title, const QString& text, QWidget* parent);

  /// Asks. True for Yes.
  bool Ask();

 protected:
  void reject() override {}
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* button, QEvent* event) override;

 private:
  Repeats repeats_;
};

}  // namespace desktop::qt
