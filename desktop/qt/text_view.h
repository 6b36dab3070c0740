// The scrolling view of a document.
#pragma once

#include <QTextEdit>

#include "desktop/qt/control.h"

namespace desktop::qt {

class TextView : public QTextEdit, public Control {
 public:
  TextView(PictureStore& pictures, QWidget* parent);

  QWidget& widget() override { return *this; }
  void Follow(const Element& record) override;

 private:
  void Write(const Document& text);
  void WritePicture(class QTextCursor& cursor, const Run& run);

  PictureStore& pictures_;
  const Document* shown_ = nullptr;
};

}  // namespace desktop::qt
