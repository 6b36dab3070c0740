#include "desktop/qt/link_label.h"

#include <QAccessibleWidget>

#include "desktop/qt/canvas.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

/// It takes no focus, but a screen reader can press it.
class LinkReading : public QAccessibleWidget {
 public:
  explicit LinkReading(LinkLabel& link) : QAccessibleWidget(&link, QAccessible::Link), link_(link) {}

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) link_.click();
  }

 private:
  LinkLabel& link_;
};

QAccessibleInterface* ReadingOf(const QString& className, QObject* object) {
  if (className != QLatin1String(LinkLabel::staticMetaObject.className())) return nullptr;
  return new LinkReading(static_cast<LinkLabel&>(*object));
}

}  // namespace

LinkLabel::LinkLabel(PictureStore& pictures, QWidget* parent) : QAbstractButton(parent), pictures_(pictures) {
  QAccessible::installFactory(ReadingOf);
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
