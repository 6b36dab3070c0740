// Draws one record of a form: shapes, images and labels.
#pragma once

#include <QPainter>
#include <QRect>

#include "desktop/element.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

/// What drawing the element touches, in the layout's pixels. A text may reach beyond its box.
QRect PaintedRect(const Element& element);

/// Draws the element. One unit of `painter` is one device pixel, counted from the form's corner, and
/// `ratio` is the number of device pixels to the layout's pixel.
void Paint(QPainter& painter, const Element& element, PictureStore& pictures, double ratio);

inline QColor ToQt(Colour colour) { return QColor::fromRgb(colour.rgb); }

}  // namespace desktop::qt
