#include "tests/qt/sheet.h"

#include <QGuiApplication>

namespace on_screen {

double Ratio() { return qGuiApp->devicePixelRatio(); }

bool IsWhole() { return Ratio() == qRound(Ratio()); }

int Device(double pixels) { return qRound(pixels * Ratio()); }

QRect Device(const QRect& place) {
  return {Device(place.x()), Device(place.y()), Device(place.width()), Device(place.height())};
}

QImage Carried(const QString& name) {
  const QImage single(":/pictures/" + name + ".png");
  if (Ratio() == 1) return single;
  QImage twice(":/pictures/" + name + "@2x.png");
  twice.setDevicePixelRatio(1);
  const QSize size(Device(single.width()), Device(single.height()));
  return twice.size() == size ? twice : twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

testing::AssertionResult IsWooden(const QImage& button) {
  const QImage wood =
      QImage(":/pictures/Wood.png").scaled(button.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  const QRect strip(Device(4), Device(5), Device(2), button.height() - 2 * Device(5));
  if (IsWhole()) return Same(button.copy(strip), wood.copy(strip));
  // There a widget may stand between two device pixels; only the tone can be told.
  const auto hue = [&](const QImage& image) {
    return image.copy(strip).scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0).hue();
  };
  return testing::AssertionResult(qAbs(hue(button) - hue(wood)) < 8) << " hue " << hue(button);
}

Sheet::Sheet(QSize size, QRgb ground) : image_(Device(QRect({}, size)).size(), QImage::Format_RGB32) {
  image_.fill(ground);
}

void Sheet::Fill(const QRect& place, QRgb colour) { QPainter(&image_).fillRect(Device(place), QColor(colour)); }

void Sheet::Picture(const QString& name, QPoint corner) {
  QPainter(&image_).drawImage(Device(corner.x()), Device(corner.y()), Carried(name));
}

void Sheet::Words(const QRect& box, Qt::Alignment alignment, const QString& text, const Type& type) {
  QFont font("Liberation Serif", -1, type.bold ? QFont::Bold : QFont::Normal, type.italic);
  font.setPixelSize(qRound(type.points * 96 / 72));
  font.setUnderline(type.underline);
  QPainter painter(&image_);
  painter.scale(Ratio(), Ratio());
  painter.setFont(font);
  painter.setPen(QColor(type.colour));
  painter.drawText(box, static_cast<int>(alignment | Qt::AlignTop) | Qt::TextDontClip | Qt::TextWordWrap, text);
}

testing::AssertionResult Sheet::IsShownBy(const QImage& shown) const {
  // At odd ratios the window's own height is rounded off, and may cut off half a row.
  const bool cut = !IsWhole() && shown.height() == image_.height() - 1;
  return Same(shown, cut ? image_.copy(shown.rect()) : image_, leftOut_);
}

testing::AssertionResult Same(const QImage& shown, const QImage& wanted, const QRegion& leftOut) {
  if (shown.size() != wanted.size() || shown.isNull())
    return testing::AssertionFailure() << shown.width() << " x " << shown.height() << " device pixels are shown";
  for (int y = 0; y < wanted.height(); ++y)
    for (int x = 0; x < wanted.width(); ++x)
      if (((shown.pixel(x, y) ^ wanted.pixel(x, y)) & 0xFFFFFF) != 0 && !leftOut.contains(QPoint(x, y)))
        return testing::AssertionFailure() << "first at " << x << ", " << y << std::hex << ": " << shown.pixel(x, y)
                                           << " for " << wanted.pixel(x, y);
  return testing::AssertionSuccess();
}

}  // namespace on_screen
