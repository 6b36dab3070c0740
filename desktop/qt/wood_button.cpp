#include "desktop/qt/wood_button.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/qt/element_painter.h"
#include "desktop/qt/fonts.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

void WoodButton::Follow(const Element& record) {
  if (record == record_) return;
  record_ = record;
  setAccessibleName(Lines(record.Caption).trimmed());
  setFont(ToQt(record.Font));
  update();
}

void WoodButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFace(painter, rect());
  PaintEdges(painter);
  PaintCaption(painter);
}

void WoodButton::PaintFace(QPainter& painter, const QRect& face) {
  if (!record_.Picture) {
    painter.fillRect(face, ToQt(record_.BackColor.value_or(Colour{0xEFEFEF})));
    return;
  }
  const double ratio = devicePixelRatioF();
  const QSize size(Device(static_cast<float>(face.width()), ratio), Device(static_cast<float>(face.height()), ratio));
  painter.drawPixmap(face, pictures_.Stretched(*record_.Picture, size));
  if (isDown()) painter.fillRect(face, QColor(96, 48, 0, 56));
  if (!isEnabled()) painter.fillRect(face, QColor(255, 255, 255, 112));
}

void WoodButton::PaintEdges(QPainter& painter) const {
  const QColor light(255, 255, 255, 170);
  const QColor dark(96, 56, 0, 150);
  const int right = width() - 1;
  const int bottom = height() - 1;
  const QColor& upper = isDown() ? dark : light;
  const QColor& lower = isDown() ? light : dark;
  painter.fillRect(1, 1, width() - 2, 1, upper);
  painter.fillRect(1, 2, 1, height() - 3, upper);
  painter.fillRect(2, bottom - 1, width() - 3, 1, lower);
  painter.fillRect(right - 1, 2, 1, height() - 4, lower);

  painter.setPen(QColor(0x60, 0x38, 0x00));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(0, 0, right, bottom);
  if (!hasFocus()) return;
  painter.setPen(QPen(QColor(0x40, 0x24, 0x00), 1, Qt::DotLine));
  painter.drawRect(3, 3, right - 6, bottom - 6);
}

void WoodButton::PaintCaption(QPainter& painter) const {
  painter.setFont(font());
  painter.setPen(isEnabled() ? ToQt(record_.ForeColor) : QColor(0x60, 0x50, 0x30));
  const QRect sunk = isDown() ? rect().translated(1, 1) : rect();
  // Empty lines around a word only put it in the middle.
  painter.drawText(sunk, Qt::AlignCenter | Qt::TextDontClip, Lines(record_.Caption).trimmed());
}

void WoodButton::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) {
    QPushButton::keyPressEvent(event);
    return;
  }
  // A key held down presses once.
  if (!event->isAutoRepeat()) click();
}

}  // namespace desktop::qt
