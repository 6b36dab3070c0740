#include "desktop/qt/link_label.h"

#include <QAccessibleWidget>

#include "desktop/qt/canvas.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QAccessibleInterface* LinkInterface(const QString& className, QObject* object) {
  if (className != QLatin1String(LinkLabel::staticMetaObject.className())) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Link);
}

}  // namespace

LinkLabel::LinkLabel(PictureStore& pictures, QWidget* parent) : QAbstractButton(parent), pictures_(pictures) {
  QAccessible::installFactory(LinkInterface);
  setCursor(Qt::PointingHandCursor);
}

void LinkLabel::Follow(const Element& record) {
  if (record == record_) return;
  record_ = record;
  setAccessibleName(WithoutReturns(record.Caption));
  update();
}

void LinkLabel::paintEvent(QPaintEvent*) {
  QtCanvas canvas(*this, pictures_);
  common::PaintLink(canvas, record_);
}

}  // namespace desktop::qt
