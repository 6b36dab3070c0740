// A push button with a picture as its face and its caption over it.
#pragma once

#include <QPushButton>

#include "desktop/element.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

class WoodButton : public QPushButton {
 public:
  WoodButton(PictureStore& pictures, QWidget* parent) : QPushButton(parent), pictures_(pictures) {}

  /// Takes over what the record says. Costs nothing where it says the same as before.
  void Follow(const Element& record);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PaintFace(QPainter& painter, const QRect& face);
  void PaintEdges(QPainter& painter) const;
  void PaintCaption(QPainter& painter) const;

  PictureStore& pictures_;
  Element record_;
};

}  // namespace desktop::qt
