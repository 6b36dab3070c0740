// A form on the screen: a canvas for its images and labels, widgets for its controls.
#pragma once

#include <QRegion>
#include <QWidget>

#include "desktop/common/delivery.h"
#include "desktop/common/drawing.h"
#include "desktop/common/telling.h"
#include "desktop/common/views.h"
#include "desktop/qt/control.h"
#include "desktop/qt/fonts.h"
#include "desktop/qt/input.h"
#include "desktop/qt/picture_store.h"

namespace desktop::qt {

class FormView : public QWidget, public common::View {
  Q_OBJECT  // a screen reader's interface is looked up by the class's name

      public : FormView(Form& form, common::Delivery& delivery, PictureStore& pictures, QWidget* parent);

  // --- common::View
  void Follow() override;
  void Draw(bool atOnce) override;
  void Show(bool shown) override { setVisible(shown); }
  void Raise() override { raise(); }
  void TakeKeyboard() override;
  void Retire() override;

  Form& form() const { return form_; }
  QWidget* WidgetOf(const Element& control) const { return &controls_.WidgetOf(control); }
  /// For a screen reader.
  void MoveHand(const Hand& hand) { delivery_.MoveHand(form_, hand); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void DecodePictures();
  void FollowPointer();
  QPointF OnForm(const QMouseEvent& event) const;
  bool TakeKey(QKeyEvent& event, bool isRepeated);

  Form& form_;
  common::Delivery& delivery_;
  PictureStore& pictures_;
  TypeMeasure type_;
  common::Drawing drawing_{form_, type_};
  common::Telling telling_{form_};
  QRegion marked_;  ///< to be drawn again
  Repeats repeats_;
  bool tells_ = false;  ///< a screen reader is about to be told
  Controls controls_{form_, delivery_, pictures_, *this};
  PointerShape shape_ = PointerShape::Default;
};

}  // namespace desktop::qt
