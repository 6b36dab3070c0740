#include "desktop/qt/form_view.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTimer>
#include <utility>

#include "desktop/common/painting.h"
#include "desktop/qt/canvas.h"
#include "desktop/qt/form_reading.h"
#include "desktop/qt/text.h"
#include "desktop/qt/text_view.h"

namespace desktop::qt {

FormView::FormView(Form& form, common::Delivery& delivery, PictureStore& pictures, QWidget* parent)
    : QWidget(parent), form_(form), delivery_(delivery), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  installEventFilter(this);
  FormReading::Offer();
  setAccessibleName(Text(form.AccessibleName));
  DecodePictures();
}

/// So that no step of a throw has to wait for one.
void FormView::DecodePictures() {
  const common::Scale scale(devicePixelRatioF());
  for (const Picture* picture : common::PicturesOf(form_)) pictures_.Sized(*picture, scale.Device(*picture));
}

void FormView::Follow() {
  setGeometry(ToQt(common::BoxOf(form_)));
  for (const common::Rect& area : drawing_.Follow()) {
    const common::Scale scale(devicePixelRatioF());
    marked_ += ToQt(scale.Layout(scale.Outward(area)).Moved(form_.Border, form_.Border));
  }
  controls_.Follow();
  FollowPointer();
}

void FormView::Draw(bool atOnce) {
  const bool isHeard = QAccessible::isActive();
  const QRegion marked = std::exchange(marked_, {});
  if (!marked.isEmpty()) atOnce || isHeard ? repaint(marked) : update(marked);
  if (!isHeard || std::exchange(tells_, true)) return;
  // Once what is shown now has been shown: all that one hand has done at once.
  QTimer::singleShot(0, this, [this] {
    tells_ = false;
    FormReading::Of(*this).Tell(telling_.News());
  });
}

void FormView::FollowPointer() {
  if (shape_ == form_.MousePointer) return;
  shape_ = form_.MousePointer;
  setCursor(shape_ == PointerShape::NoDrop ? Qt::ForbiddenCursor : Qt::ArrowCursor);
}

void FormView::TakeKeyboard() {
  const Element* focus = common::FocusOf(form_);
  QWidget& holder = focus ? controls_.WidgetOf(*focus) : *this;
  holder.setFocus();
}

void FormView::Retire() {
  hide();
  deleteLater();
}

void FormView::paintEvent(QPaintEvent* event) {
  QtCanvas canvas(*this, pictures_);
  const common::Scale& scale = canvas.scale();
  common::PaintBorder(canvas, form_, scale);
  canvas.BeginAt({form_.Border, form_.Border});
  const common::Rect inside{0, 0, form_.Width - 2 * form_.Border, form_.Height - 2 * form_.Border};
  for (const QRect& rect : event->region()) {
    const common::Rect area{rect.x() - form_.Border, rect.y() - form_.Border, rect.width(), rect.height()};
    // One by one, and at whole scales not into the next: within a region of several the toolkit draws pictures span by
    // span, on threads of its own.
    const common::Rect device = scale.Outward(area.Shared(inside));
    canvas.ClipTo(device);
    common::PaintInside(canvas, form_, drawing_, device, scale);
  }
}

/// The pixel of the layout that is shown where the event was.
QPointF FormView::OnForm(const QMouseEvent& event) const {
  const common::Scale scale(devicePixelRatioF());
  const QPoint device = (event.position() * scale.ratio() - PaintedBeside(*this)).toPoint();
  return {static_cast<qreal>(scale.Pixel(device.x())), static_cast<qreal>(scale.Pixel(device.y()))};
}

void FormView::mousePressEvent(QMouseEvent* event) {
  const QPointF at = OnForm(*event);
  const int button = ButtonOf(event->button());
  if (button == 0) return;
  delivery_.Press(form_, button, static_cast<float>(at.x()), static_cast<float>(at.y()));
  // While an element holds the mouse, a move without a button tells that the release was lost.
  setMouseTracking(delivery_.HeldOn() == &form_);
}

void FormView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void FormView::mouseMoveEvent(QMouseEvent* event) {
  if (delivery_.HeldOn() != &form_) return;
  const QPointF at = OnForm(*event);
  delivery_.Move(ButtonsOf(event->buttons()), static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void FormView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setMouseTracking(false);
  if (delivery_.HeldOn() != &form_) return;
  const QPointF at = OnForm(*event);
  delivery_.Release(ButtonOf(event->button()), static_cast<float>(at.x()), static_cast<float>(at.y()));
}

/// A widget that has gone passes the focus on by itself. The records say where it goes.
bool FormView::focusNextPrevChild(bool) { return true; }

/// Keys mean the same wherever on the form the focus is.
bool FormView::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isRepeated = repeats_.Has(key);
  return key.type() == QEvent::KeyPress && TakeKey(key, isRepeated);
}

/// False for a key that means nothing here.
bool FormView::TakeKey(QKeyEvent& event, bool isRepeated) {
  auto* text = findChild<TextView*>();
  const auto key = KeyOf(event);
  if (key) {
    const common::Scroll scroll = delivery_.PressKey(*key, isRepeated);
    if (text) text->ScrollBy(scroll);
  } else if (text && event.matches(QKeySequence::Copy)) {
    text->copy();
  } else {
    return false;
  }
  return true;
}

}  // namespace desktop::qt
