// A form as its table of places tells it, drawn independently of the program, in device pixels.
#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <QString>
#include <set>

namespace on_screen {

/// Device pixels to the layout's pixel in this run.
inline double Ratio() { return qGuiApp->devicePixelRatio(); }
/// At other ratios what stands on its own may be half a device pixel off.
inline bool IsWhole() { return Ratio() == qRound(Ratio()); }
/// The device pixel nearest to a length of the layout.
inline int Device(double pixels) { return qRound(pixels * Ratio()); }

inline QRect Device(const QRect& place) {
  return {Device(place.x()), Device(place.y()), Device(place.width()), Device(place.height())};
}

/// The carried picture as it must look at this run's ratio: at 1 and 2 the pixels of the file.
inline QImage Carried(const QString& name) {
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

/// The face of a button is wood, as far as can be seen left of its caption.
inline testing::AssertionResult IsWooden(const QImage& button) {
  // Inside the edges, and left of the caption or above it.
  const int edge = Device(5), end = edge + Device(2);
  std::set<QRgb> colours;
  int red = 0, green = 0, blue = 0, seen = 0;
  for (int y = edge; y < button.height() - edge; ++y)
    for (int x = edge; x < (y < end ? button.width() - edge : end); ++x, ++seen) {
      const QColor colour = button.pixelColor(x, y);
      colours.insert(colour.rgb());
      red += colour.red(), green += colour.green(), blue += colour.blue();
    }
  const QColor mean(red / seen, green / seen, blue / seen);
  const auto strays = [](int shown, int wanted) { return qAbs(shown - wanted) > 10; };
  const bool fits = !strays(mean.red(), 0xF2) && !strays(mean.green(), 0xC6) && !strays(mean.blue(), 0x62);
  return testing::AssertionResult(fits && colours.size() > 100)
         << mean.name().toStdString() << ", " << colours.size() << " colours";
}

struct Type {
  double points = 11.25;
  bool bold = true;
  bool italic = false;
  bool underline = false;
  QRgb colour = 0x000000;
};

/// No pixel differs outside `leftOut`.
inline testing::AssertionResult Same(const QImage& shown, const QImage& wanted, const QRegion& leftOut = {}) {
  if (shown.size() != wanted.size() || shown.isNull())
    return testing::AssertionFailure() << shown.width() << " x " << shown.height() << " device pixels are shown";
  for (int y = 0; y < wanted.height(); ++y)
    for (int x = 0; x < wanted.width(); ++x)
      if (((shown.pixel(x, y) ^ wanted.pixel(x, y)) & 0xFFFFFF) != 0 && !leftOut.contains(QPoint(x, y)))
        return testing::AssertionFailure() << "first at " << x << ", " << y << std::hex << ": " << shown.pixel(x, y)
                                           << " for " << wanted.pixel(x, y);
  return testing::AssertionSuccess();
}

class Sheet {
 public:
  Sheet(QSize size, QRgb ground) : image_(Device(QRect({}, size)).size(), QImage::Format_RGB32) { image_.fill(ground); }

  void Fill(const QRect& place, QRgb colour) { QPainter(&image_).fillRect(Device(place), QColor(colour)); }
  void Picture(const QString& name, QPoint corner) {
    QPainter(&image_).drawImage(Device(corner.x()), Device(corner.y()), Carried(name));
  }
  /// At the top of a box, broken at blanks where a line is too long.
  void Words(const QRect& box, Qt::Alignment alignment, const QString& text, const Type& type) {
    QFont font("Liberation Serif", -1, type.bold ? QFont::Bold : QFont::Normal, type.italic);
    font.setPixelSize(qRound(type.points * 96 / 72));
    font.setUnderline(type.underline);
    QPainter painter(&image_);
    painter.scale(Ratio(), Ratio());
    painter.setFont(font);
    painter.setPen(QColor(type.colour));
    painter.drawText(box, static_cast<int>(alignment | Qt::AlignTop) | Qt::TextDontClip | Qt::TextWordWrap, text);
  }
  /// A place that another check looks at.
  void LeaveOut(const QRect& place) {
    const int edge = IsWhole() ? 0 : 1;
    leftOut_ += Device(place).adjusted(-edge, -edge, edge, edge);
  }

  testing::AssertionResult IsShownBy(const QImage& shown) const {
    // At odd ratios the window's own height is rounded off, and may cut off half a row.
    const bool cut = !IsWhole() && shown.height() == image_.height() - 1;
    return Same(shown, cut ? image_.copy(shown.rect()) : image_, leftOut_);
  }

 private:
  QImage image_;
  QRegion leftOut_;
};

}  // namespace on_screen
