#include "desktop/qt/link_label.h"

#include <QAccessibleWidget>
#include <QPainter>

#include "desktop/qt/element_painter.h"
#include "desktop/qt/fonts.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QAccessibleInterface* LinkInterface(const QString& className, QObject* object) {
  if (className != QLatin1String(LinkLabel::staticMetaObject.className())) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Link);
}

}  // namespace

LinkLabel::LinkLabel(QWidget* parent) : QAbstractButton(parent) {
  QAccessible::installFactory(LinkInterface);
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
}

void LinkLabel::Follow(const Element& record) {
  if (record == record_) return;
  record_ = record;
  setAccessibleName(Lines(record.Caption));
  update();
}

void LinkLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setFont(ToQt(record_.Font));
  painter.setPen(ToQt(record_.ForeColor));
  painter.drawText(rect(), Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip, Lines(record_.Caption));
}

}  // namespace desktop::qt
