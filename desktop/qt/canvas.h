// Painting with Qt.
#pragma once

#include <QPainter>

#include "desktop/common/painting.h"
#include "desktop/qt/fonts.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

inline QColor ToQt(Colour colour) { return QColor::fromRgb(colour.rgb); }
inline QColor ToQt(const Tint& tint) {
  QColor colour = ToQt(tint.Over);
  colour.setAlpha(tint.Strength);
  return colour;
}
inline QRect ToQt(const common::Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }

/// Paints on a widget in whole device pixels, beginning at the one nearest to a point of the widget: at odd scales the
/// menu's height may put a form between two.
class QtCanvas : public common::Canvas {
 public:
  QtCanvas(QWidget& widget, PictureStore& pictures);

  /// From now on places count from this point of the widget, in the layout's pixels.
  void BeginAt(QPoint origin);

  /// From now on nothing outside this place is painted.
  void ClipTo(const common::Rect& place) { painter_.setClipRect(ToQt(place)); }

  const common::Scale& scale() const { return scale_; }

  const common::TextMeasure& Type() const override { return type_; }
  void Fill(const common::Rect& place, const Tint& tint) override;
  void Show(const Picture& picture, const common::Rect& place) override;
  void Write(const common::TextLine& line, const Font& font, Colour colour) override;

 private:
  QWidget& widget_;
  QPainter painter_;
  PictureStore& pictures_;
  common::Scale scale_;
  TypeMeasure type_;
};

/// How far the device pixel at which a widget is painted lies beside the widget's own corner, in device pixels.
QPointF PaintedBeside(const QWidget& widget);

}  // namespace desktop::qt
