// The scrolling view of a document.
#pragma once

#include <QTextEdit>
#include <functional>

#include "desktop/common/keyboard.h"
#include "desktop/qt/control.h"

namespace desktop::qt {

class TextView : public QTextEdit, public Control {
 public:
  /// `pressed` hears of presses with the mouse, on the scroll bar too.
  TextView(PictureStore& pictures, QWidget* parent, std::function<void()> pressed);

  QWidget& widget() override { return *this; }
  void Follow(const Element& record) override;
  void ScrollBy(common::Scroll scroll);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* part, QEvent* event) override;

 private:
  void Write();
  void LoadPictures();
  void WritePicture(class QTextCursor& cursor, const Run& run);

  PictureStore& pictures_;
  std::function<void()> pressed_;
  const Document* shown_ = nullptr;
  double ratio_ = 0;  ///< of the screen that the pictures were made for
};

}  // namespace desktop::qt
