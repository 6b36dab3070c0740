#include "desktop/qt/question_box.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QKeyEvent>

namespace desktop::qt {

QuestionBox::QuestionBox(const QString& title, const QString& text, QWidget* parent)
    : QMessageBox(Question, title, text, Yes | No, parent) {
  setTextFormat(Qt::PlainText);
  setDefaultButton(Yes);
  setWindowModality(Qt::ApplicationModal);
  for (QAbstractButton* button : buttons()) button->installEventFilter(this);
}

bool QuestionBox::Ask() { return exec() == Yes; }

void QuestionBox::closeEvent(QCloseEvent* event) { event->ignore(); }

void QuestionBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Cancel)) return;
  QMessageBox::keyPressEvent(event);
}

bool QuestionBox::eventFilter(QObject* button, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
  if (isKey && repeats_.Has(*static_cast<QKeyEvent*>(event))) return true;
  return QMessageBox::eventFilter(button, event);
}

}  // namespace desktop::qt
