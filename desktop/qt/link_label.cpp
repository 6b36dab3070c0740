#include "desktop/qt/link_label.h"

#include <QAccessibleWidget>

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

LinkLabel::LinkLabel(PictureStore& pictures, QWidget* parent) : PaintedControl(pictures, parent) {
  QAccessible::installFactory(ReadingOf);
  setCursor(Qt::PointingHandCursor);
}

}  // namespace desktop::qt
