#include "desktop/qt/painted_reading.h"

#include "desktop/qt/canvas.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

QRect PaintedReading::rect() const {
  const int border = view_.form().Border;
  const QRect box = ToQt(Box().Moved(border, border));
  return {view_.mapToGlobal(box.topLeft()), box.size()};
}

QAccessible::State PaintedReading::state() const {
  QAccessible::State state;
  state.readOnly = true;
  state.invisible = !Shows() || !view_.isVisible();
  return state;
}

QString TextReading::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? WithoutReturns(label_.Caption).trimmed() : QString();
}

QAccessible::Role StopReading::role() const { return stop().OnlyRead ? QAccessible::StaticText : QAccessible::Button; }

QAccessible::State StopReading::state() const {
  QAccessible::State state = PaintedReading::state();
  state.focusable = stop().CanBeUsed();
  state.disabled = !state.focusable;
  state.focused = view().hasFocus() && view().form().AtStop == number_;
  return state;
}

QString StopReading::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Name) return Text(stop().Name);
  return kind == QAccessible::Description || kind == QAccessible::Value ? Text(stop().Value) : QString();
}

void* StopReading::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList StopReading::actionNames() const {
  QStringList names;
  for (const Deed& deed : stop().Deeds) names += Text(deed.Name);
  return names;
}

void StopReading::doAction(const QString& action) {
  // Later: what is done may take seconds, and the reader waits for this call to end.
  QMetaObject::invokeMethod(
      &view(),
      [&view = view(), action, number = number_] {
        const std::vector<Stop> stops = view.form().Stops();
        for (const Deed& deed : stops[static_cast<std::size_t>(number)].Deeds)
          if (Text(deed.Name) == action) return view.MoveHand(deed.Hand);
      },
      Qt::QueuedConnection);
}

void NewsReading::Say(const std::string& words) {
  words_ = Text(words);
  // A reader speaks what comes into view in this role.
  QAccessibleEvent event(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&event);
}

}  // namespace desktop::qt
