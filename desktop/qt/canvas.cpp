#include "desktop/qt/canvas.h"

#include <QWidget>

#include "desktop/qt/text.h"

namespace desktop::qt {

QtCanvas::QtCanvas(QWidget& widget, PictureStore& pictures)
    : widget_(widget), painter_(&widget), pictures_(pictures), scale_(widget.devicePixelRatioF()) {
  BeginAt({0, 0});
}

void QtCanvas::BeginAt(QPoint origin) {
  const QPoint corner = (QPointF(widget_.mapTo(widget_.window(), origin)) * scale_.ratio()).toPoint();
  painter_.setWorldTransform({});
  // What the painter would do by itself: below a scale of 1 it does not scale.
  const QTransform own = painter_.deviceTransform();
  painter_.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * own.inverted());
}

void QtCanvas::Fill(const common::Rect& place, const Tint& tint) { painter_.fillRect(ToQt(place), ToQt(tint)); }

void QtCanvas::Show(const Picture& picture, const common::Rect& place) {
  painter_.drawPixmap(place.left, place.top, pictures_.Sized(picture, {place.width, place.height}));
}

void QtCanvas::Write(const common::TextLine& line, const Font& font, Colour colour) {
  const QTransform device = painter_.worldTransform();
  painter_.scale(scale_.ratio(), scale_.ratio());
  painter_.setFont(ToQt(font));
  painter_.setPen(ToQt(colour));
  painter_.drawText(QRectF(line.left, line.top, line.width, 0), Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                    Text(line.text));
  painter_.setWorldTransform(device);
}

QPointF PaintedBeside(const QWidget& widget) {
  const QPointF corner = QPointF(widget.mapTo(widget.window(), QPoint())) * widget.devicePixelRatioF();
  return QPointF(corner.toPoint()) - corner;
}

}  // namespace desktop::qt
