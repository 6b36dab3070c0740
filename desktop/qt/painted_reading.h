// What a screen reader finds of something that is painted on a form and has no widget of its own.
#pragma once

#include <QAccessible>

#include "desktop/common/scale.h"
#include "desktop/qt/form_view.h"

namespace desktop::qt {

class PaintedReading : public QAccessibleInterface {
 public:
  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::State state() const override;

 protected:
  explicit PaintedReading(FormView& view) : view_(view) {}

  /// Its place in the layout's pixels, from inside the form's border.
  virtual common::Rect Box() const = 0;
  virtual bool Shows() const = 0;

  FormView& view() const { return view_; }

 private:
  FormView& view_;
};

/// A text.
class TextReading : public PaintedReading {
 public:
  TextReading(FormView& view, const Element& label) : PaintedReading(view), label_(label) {}

  QAccessible::Role role() const override { return QAccessible::StaticText; }
  QString text(QAccessible::Text kind) const override;

 protected:
  common::Rect Box() const override { return common::BoxOf(label_); }
  bool Shows() const override { return label_.Visible; }

 private:
  const Element& label_;
};

/// One of the form's stops. What a key does there is an action.
class StopReading : public PaintedReading, public QAccessibleActionInterface {
 public:
  StopReading(FormView& view, int number) : PaintedReading(view), number_(number) {}

  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& action) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  common::Rect Box() const override { return common::BoxOf(stop()); }
  bool Shows() const override { return stop().Visible; }

 private:
  Stop stop() const { return view().form().Stops().at(static_cast<std::size_t>(number_)); }

  int number_;
};

/// What has happened, said without being asked.
class NewsReading : public PaintedReading {
 public:
  explicit NewsReading(FormView& view) : PaintedReading(view) {}

  void Say(const std::string& words);

  QAccessible::Role role() const override { return QAccessible::Notification; }
  QString text(QAccessible::Text kind) const override { return kind == QAccessible::Name ? words_ : QString(); }

 protected:
  common::Rect Box() const override { return {}; }
  bool Shows() const override { return !words_.isEmpty(); }

 private:
  QString words_;
};

}  // namespace desktop::qt
