// A form on the screen: a canvas for its images and labels, widgets for its controls.
#pragma once

#include <QRegion>
#include <QWidget>
#include <unordered_map>
#include <vector>

#include "desktop/form.h"
#include "desktop/qt/control.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

class Events;

/// Follows the records of one form. What was drawn last is kept apart from what the records say, and
/// only the difference of the two is drawn again.
class FormView : public QWidget {
 public:
  FormView(Form& form, Events& events, PictureStore& pictures, QWidget* parent);

  /// Brings the screen up to what the records say now.
  void Follow();
  /// Gives the keyboard to this form: to the control that had it last, or else to its default one.
  void TakeKeyboard();
  void SetFocus(const Element& control);

  Form& form() const { return form_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  /// What an element looked like when it was drawn last.
  struct Drawn {
    Element record;
    QRect painted;
  };

  void DecodePictures();
  void FollowElements();
  void FollowOrder();
  void FollowControls();
  void FollowDescription();
  Control& ControlOf(Element& element);
  void PressOn(bool Element::*role);
  bool ScrollsView(int key);
  void PaintBorder(QPainter& painter) const;
  QPointF OnForm(const QMouseEvent& event) const;
  /// `area` in the layout's pixels, widened where device pixels straddle it.
  void Damage(const QRect& area);

  Form& form_;
  Events& events_;
  PictureStore& pictures_;
  std::unordered_map<const Element*, Drawn> drawn_;
  std::vector<Element*> order_;
  std::unordered_map<const Element*, Control*> controls_;
  PointerShape shape_ = PointerShape::Default;
  QString description_;
};

}  // namespace desktop::qt
