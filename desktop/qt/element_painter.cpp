#include "desktop/qt/element_painter.h"

#include <QFontMetrics>

#include "desktop/qt/fonts.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QRect Box(const Element& element) {
  return {qRound(element.Left), qRound(element.Top), qRound(element.Width), qRound(element.Height)};
}

QRect DeviceBox(const Element& element, double ratio) {
  return {Device(element.Left, ratio), Device(element.Top, ratio), Device(element.Width, ratio),
          Device(element.Height, ratio)};
}

int Flags(Align alignment) {
  const int horizontal = alignment == Align::Left     ? Qt::AlignLeft
                         : alignment == Align::Centre ? Qt::AlignHCenter
                                                      : Qt::AlignRight;
  return horizontal | Qt::AlignTop | Qt::TextDontClip | Qt::TextWordWrap;
}

/// Where the text stands, in the layout's pixels. A line that is too wide for its box grows out of
/// it on the side from which its alignment turns away.
QRect TextRect(const Element& element, const QFontMetrics& metrics) {
  QRect box = Box(element);
  const QString text = Lines(element.Caption);
  const int room = box.width();
  const int width = text.contains(u' ') ? room : metrics.horizontalAdvance(text);
  if (width <= room) return box;
  if (element.Alignment == Align::Right) return box.adjusted(room - width, 0, 0, 0);
  if (element.Alignment == Align::Left) return box.adjusted(0, 0, width - room, 0);
  return box.adjusted((room - width) / 2, 0, (width - room + 1) / 2, 0);
}

void PaintText(QPainter& painter, const Element& element, double ratio) {
  if (element.Caption.empty()) return;
  painter.save();
  painter.scale(ratio, ratio);
  painter.setFont(ToQt(element.Font));
  painter.setPen(ToQt(element.ForeColor));
  painter.drawText(TextRect(element, QFontMetrics(painter.font())), Flags(element.Alignment), Lines(element.Caption));
  painter.restore();
}

void Outline(QPainter& painter, const QRect& box, int line, const QColor& colour) {
  painter.fillRect(box.left(), box.top(), box.width(), line, colour);
  painter.fillRect(box.left(), box.top(), line, box.height(), colour);
  painter.fillRect(box.left(), box.bottom() + 1 - line, box.width(), line, colour);
  painter.fillRect(box.right() + 1 - line, box.top(), line, box.height(), colour);
}

/// A panel behind a groove that is lit from above and from the left.
void PaintPanel(QPainter& painter, const Element& element, double ratio) {
  const QRect box = DeviceBox(element, ratio);
  const int line = qMax(1, qRound(ratio));
  const QColor ground = ToQt(element.BackColor.value_or(Colour{0xFFFFFF}));
  painter.fillRect(box, ground);
  Outline(painter, box.adjusted(line, line, 0, 0), line, Qt::white);
  Outline(painter, box.adjusted(0, 0, -line, -line), line, ground.darker(160));
}

}  // namespace

QRect PaintedRect(const Element& element) {
  if (element.kind != Kind::Label && element.kind != Kind::Link) return Box(element);
  const QFontMetrics metrics(ToQt(element.Font));
  const QRect text = metrics.boundingRect(TextRect(element, metrics), Flags(element.Alignment), Lines(element.Caption));
  // Italics lean out of their advance.
  const int lean = metrics.height() / 4;
  return Box(element).united(text.adjusted(-lean, 0, lean, 0));
}

void Paint(QPainter& painter, const Element& element, PictureStore& pictures, double ratio) {
  const QRect box = DeviceBox(element, ratio);
  switch (element.kind) {
    case Kind::Image:
      if (!element.Picture) return;
      painter.drawPixmap(box.topLeft(), element.Stretch ? pictures.Stretched(*element.Picture, box.size())
                                                        : pictures.At(*element.Picture, ratio));
      return;
    case Kind::Frame:
      PaintPanel(painter, element, ratio);
      return;
    case Kind::Shape:
    case Kind::Line:
    case Kind::Label:
    case Kind::Link:
      if (element.BackColor) painter.fillRect(box, ToQt(*element.BackColor));
      PaintText(painter, element, ratio);
      return;
    case Kind::Button:
    case Kind::OptionButton:
    case Kind::TextView:
      return;  // widgets of their own, in front of all this
  }
}

}  // namespace desktop::qt
