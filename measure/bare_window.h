// The smallest possible window of the toolkit, of the frame's size and colour.
#pragma once

#include <QPainter>
#include <QWidget>

class BareWindow : public QWidget {
 public:
  BareWindow() {
    setWindowTitle(QStringLiteral("Thistle and Lantern"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(632, 425);
  }

 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(0xFF, 0xFF, 0x80)); }
};
