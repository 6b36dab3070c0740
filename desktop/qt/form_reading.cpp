#include "desktop/qt/form_reading.h"

#include <algorithm>

#include "desktop/qt/painted_reading.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

QAccessibleInterface* Made(const QString& className, QObject* object) {
  if (className != QLatin1String(FormView::staticMetaObject.className())) return nullptr;
  return new FormReading(static_cast<FormView&>(*object));
}

void Tell(QAccessibleInterface* reading, QAccessible::Event what) {
  QAccessibleEvent event(reading, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

FormReading::FormReading(FormView& view)
    : QAccessibleWidget(&view, QAccessible::Form),
      view_(view),
      news_(QAccessible::registerAccessibleInterface(new NewsReading(view))) {
  const auto count = static_cast<int>(view.form().Stops().size());
  for (int i = 0; i < count; ++i) stops_.push_back(QAccessible::registerAccessibleInterface(new StopReading(view, i)));
}

FormReading::~FormReading() {
  QAccessible::deleteAccessibleInterface(news_);
  for (const QAccessible::Id id : stops_) QAccessible::deleteAccessibleInterface(id);
  for (const auto& [label, id] : texts_) QAccessible::deleteAccessibleInterface(id);
}

void FormReading::Offer() { QAccessible::installFactory(Made); }

FormReading& FormReading::Of(FormView& view) {
  return static_cast<FormReading&>(*QAccessible::queryAccessibleInterface(&view));
}

std::vector<QAccessibleInterface*> FormReading::Children() const {
  std::vector<QAccessibleInterface*> children;
  const std::vector<Stop> stops = view_.form().Stops();
  for (std::size_t i = 0; i < stops.size(); ++i) children.push_back(ReadingOf(static_cast<int>(i), stops[i]));
  for (const Element* element : view_.form().Graphics())
    if (element->Kind == Kind::Label && !element->Caption.empty() && !element->SaidByStop)
      children.push_back(ReadingOf(*element));
  for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
    QAccessibleInterface* control = QAccessibleWidget::child(i);
    if (std::ranges::find(children, control) == children.end()) children.push_back(control);
  }
  children.push_back(QAccessible::accessibleInterface(news_));
  return children;
}

/// A control that is a stop has a widget, which speaks for itself.
QAccessibleInterface* FormReading::ReadingOf(int number, const Stop& stop) const {
  if (stop.Control) return QAccessible::queryAccessibleInterface(view_.WidgetOf(*stop.Control));
  return QAccessible::accessibleInterface(stops_[static_cast<std::size_t>(number)]);
}

QAccessibleInterface* FormReading::ReadingOf(const Element& label) const {
  const auto [at, fresh] = texts_.try_emplace(&label, 0U);
  if (fresh) at->second = QAccessible::registerAccessibleInterface(new TextReading(view_, label));
  return QAccessible::accessibleInterface(at->second);
}

QAccessibleInterface* FormReading::child(int index) const {
  const auto children = Children();
  const bool isOne = index >= 0 && index < static_cast<int>(children.size());
  return isOne ? children[static_cast<std::size_t>(index)] : nullptr;
}

int FormReading::indexOfChild(const QAccessibleInterface* child) const {
  const auto children = Children();
  const auto found = std::ranges::find(children, child);
  return found == children.end() ? -1 : static_cast<int>(found - children.begin());
}

QAccessibleInterface* FormReading::focusChild() const {
  const int at = view_.form().AtStop;
  return at == kNoStop || !view_.hasFocus() ? QAccessibleWidget::focusChild() : child(at);
}

QString FormReading::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Description) return QAccessibleWidget::text(kind);
  return Text(common::InWords(view_.form()));
}

void FormReading::Tell(const std::string& news) {
  TellStops();
  if (!news.empty()) static_cast<NewsReading&>(*QAccessible::accessibleInterface(news_)).Say(news);
}

void FormReading::TellStops() {
  const std::vector<Stop> stops = view_.form().Stops();
  values_.resize(stops.size());
  for (std::size_t i = 0; i < stops.size(); ++i)
    if (std::exchange(values_[i], stops[i].Value) != stops[i].Value)
      qt::Tell(ReadingOf(static_cast<int>(i), stops[i]), QAccessible::DescriptionChanged);
  const int at = view_.form().AtStop;
  // A control that takes the keyboard says so itself.
  if (std::exchange(atStop_, at) != at && at != kNoStop && view_.hasFocus()) qt::Tell(child(at), QAccessible::Focus);
}

}  // namespace desktop::qt
