// What a screen reader finds on a form, and what it is told without being asked.
#pragma once

#include <QAccessibleWidget>
#include <map>
#include <string>
#include <vector>

#include "desktop/qt/form_view.h"

namespace desktop::qt {

/// A reader finds the form by its name, and on it its stops in the order of Tab, the other texts that are painted
/// there, and the controls in front of them.
class FormReading : public QAccessibleWidget {
 public:
  explicit FormReading(FormView& view);
  ~FormReading() override;

  /// From now on readers find forms so. To be said once or more often, before one asks.
  static void Offer();
  static FormReading& Of(FormView& view);

  /// Tells a reader what has changed since the last call: the keyboard's stop, the stops' values, and the news. To be
  /// said when the picture shows it.
  void Tell(const std::string& news);

  int childCount() const override { return static_cast<int>(Children().size()); }
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;
  QString text(QAccessible::Text kind) const override;

 private:
  std::vector<QAccessibleInterface*> Children() const;
  QAccessibleInterface* ReadingOf(int number, const Stop& stop) const;
  QAccessibleInterface* ReadingOf(const Element& label) const;
  void TellStops();

  FormView& view_;
  QAccessible::Id news_;
  std::vector<QAccessible::Id> stops_;
  mutable std::map<const Element*, QAccessible::Id> texts_;
  std::vector<std::string> values_;  ///< of the stops, as told
  int atStop_ = kNoStop;             ///< as told
};

}  // namespace desktop::qt
