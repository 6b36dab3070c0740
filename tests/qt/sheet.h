// A form as its table of places tells it, drawn independently of the program, in device pixels.
#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <QString>

namespace on_screen {

/// Device pixels to the layout's pixel in this run.
double Ratio();
/// At other ratios what stands on its own may be half a device pixel off.
bool IsWhole();
/// The device pixel nearest to a length of the layout.
int Device(double pixels);
QRect Device(const QRect& place);

/// The carried picture as it must look at this run's ratio: at 1 and 2 the pixels of the file.
QImage Carried(const QString& name);

/// The face of a button is wood, as far as can be seen left of its caption.
testing::AssertionResult IsWooden(const QImage& button);

struct Type {
  double points = 11.25;
  bool bold = true;
  bool italic = false;
  bool underline = false;
  QRgb colour = 0x000000;
};

class Sheet {
 public:
  Sheet(QSize size, QRgb ground);

  void Fill(const QRect& place, QRgb colour);
  void Picture(const QString& name, QPoint corner);
  /// At the top of a box, broken at blanks where a line is too long.
  void Words(const QRect& box, Qt::Alignment alignment, const QString& text, const Type& type);
  /// A place that another check looks at.
  void LeaveOut(const QRect& place) {
    const int edge = IsWhole() ? 0 : 1;
    leftOut_ += Device(place).adjusted(-edge, -edge, edge, edge);
  }

  testing::AssertionResult IsShownBy(const QImage& shown) const;

 private:
  QImage image_;
  QRegion leftOut_;
};

/// No pixel differs outside `leftOut`.
testing::AssertionResult Same(const QImage& shown, const QImage& wanted, const QRegion& leftOut = {});

}  // namespace on_screen
