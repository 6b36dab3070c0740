#include "desktop/qt/form_reading.h"

#include <QAccessibleWidget>
#include <map>
#include <vector>

#include "desktop/qt/canvas.h"
#include "desktop/qt/form_view.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

/// A text that is painted on a form.
class PaintedText : public QAccessibleInterface {
 public:
  PaintedText(FormView& view, const Element& label) : view_(view), label_(label) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::StaticText; }
  QRect rect() const override {
    const int border = view_.form().Border;
    const QRect box = ToQt(common::BoxOf(label_).Moved(border, border));
    return {view_.mapToGlobal(box.topLeft()), box.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = !label_.Visible || !view_.isVisible();
    return state;
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? WithoutReturns(label_.Caption).trimmed() : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}

 private:
  FormView& view_;
  const Element& label_;
};

class FormReading : public QAccessibleWidget {
 public:
  explicit FormReading(FormView& view) : QAccessibleWidget(&view, QAccessible::Form), view_(view) {}
  ~FormReading() override {
    for (const auto& [label, id] : texts_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return static_cast<int>(Labels().size()) + QAccessibleWidget::childCount(); }

  QAccessibleInterface* child(int index) const override {
    const auto labels = Labels();
    const int count = static_cast<int>(labels.size());
    if (index >= count) return QAccessibleWidget::child(index - count);
    return index < 0 ? nullptr : TextOf(*labels[static_cast<std::size_t>(index)]);
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto labels = Labels();
    for (std::size_t i = 0; i < labels.size(); ++i)
      if (TextOf(*labels[i]) == child) return static_cast<int>(i);
    const int among = QAccessibleWidget::indexOfChild(child);
    return among < 0 ? among : static_cast<int>(labels.size()) + among;
  }

 private:
  std::vector<const Element*> Labels() const {
    std::vector<const Element*> labels;
    for (const Element* element : view_.form().Graphics())
      if (element->Kind == Kind::Label && !element->Caption.empty()) labels.push_back(element);
    return labels;
  }

  QAccessibleInterface* TextOf(const Element& label) const {
    const auto [at, fresh] = texts_.try_emplace(&label, 0U);
    if (fresh) at->second = QAccessible::registerAccessibleInterface(new PaintedText(view_, label));
    return QAccessible::accessibleInterface(at->second);
  }

  FormView& view_;
  mutable std::map<const Element*, QAccessible::Id> texts_;
};

QAccessibleInterface* ReadingOf(const QString& className, QObject* object) {
  if (className != QLatin1String(FormView::staticMetaObject.className())) return nullptr;
  return new FormReading(static_cast<FormView&>(*object));
}

}  // namespace

void DescribeToReaders() { QAccessible::installFactory(ReadingOf); }

}  // namespace desktop::qt
