#include "tests/qt/sheet.h"

#include <QGuiApplication>
#include <array>
#include <set>

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
  QImage own(QString(":/pictures/%1@%2x.png").arg(name).arg(Ratio()));
  own.setDevicePixelRatio(1);
  if (!own.isNull()) return own.copy(0, 0, Device(single.width()), Device(single.height()));
  QImage twice(":/pictures/" + name + "@2x.png");
  twice.setDevicePixelRatio(1);
  twice.convertTo(QImage::Format_ARGB32_Premultiplied);  // an indexed one would come back in a few colours
  const QSize size(Device(single.width()), Device(single.height()));
  return twice.size() == size ? twice : twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

namespace {

/// The mean of what a pixel of the smaller picture covers in the larger one.
QColor Mean(const QImage& large, const QRectF& covered) {
  std::array<double, 3> sum{};
  double area = 0;
  for (int y = qFloor(covered.top()); y < covered.bottom(); ++y)
    for (int x = qFloor(covered.left()); x < covered.right(); ++x) {
      const QRectF part = covered & QRectF(x, y, 1, 1);
      const double weight = part.width() * part.height();
      const QColor colour = large.pixelColor(x, y);
      sum[0] += weight * colour.red();
      sum[1] += weight * colour.green();
      sum[2] += weight * colour.blue();
      area += weight;
    }
  return QColor(qRound(sum[0] / area), qRound(sum[1] / area), qRound(sum[2] / area));
}

}  // namespace

testing::AssertionResult IsWooden(const QImage& button) {
  const QImage wood(Ratio() > 1 ? ":/pictures/Wood@2x.png" : ":/pictures/Wood.png");
  const QSizeF step(1.0 * wood.width() / button.width(), 1.0 * wood.height() / button.height());
  // Inside the edges, and left of the caption or above it.
  const int edge = Device(5);
  std::set<QRgb> colours;
  for (int y = edge; y < button.height() - edge; ++y)
    for (int x = edge; x < button.width() - edge; ++x) {
      if (x >= edge + Device(2) && y >= edge + Device(2)) continue;
      const QColor shown = button.pixelColor(x, y);
      const QColor wanted = Mean(wood, {QPointF(x * step.width(), y * step.height()), step});
      colours.insert(shown.rgb());
      const auto near = [](int one, int other) { return qAbs(one - other) <= 10; };
      const bool fits =
          near(shown.red(), wanted.red()) && near(shown.green(), wanted.green()) && near(shown.blue(), wanted.blue());
      // Between whole ratios a button may begin half a pixel beside its place.
      if (!fits && IsWhole()) return testing::AssertionFailure() << "no wood at " << x << ", " << y;
    }
  return testing::AssertionResult(colours.size() > 100) << "only " << colours.size() << " colours";
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
