#include "desktop/qt/form_view.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "desktop/qt/element_painter.h"
#include "desktop/qt/events.h"

namespace desktop::qt {

namespace {

int ButtonOf(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return kLeftButton;
  if (button == Qt::RightButton) return kRightButton;
  if (button == Qt::MiddleButton) return kMiddleButton;
  return 0;
}

int ButtonsOf(Qt::MouseButtons buttons) {
  int held = 0;
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
    if (buttons.testFlag(button)) held |= ButtonOf(button);
  return held;
}

bool Reacts(const Element& control) { return control.Visible && control.Enabled; }

}  // namespace

FormView::FormView(Form& form, Events& events, PictureStore& pictures, QWidget* parent)
    : QWidget(parent), form_(form), events_(events), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  DecodePictures();
  FollowElements();
}

void FormView::DecodePictures() {
  const double ratio = devicePixelRatioF();
  for (const Picture* picture : form_.PicturesToCome) pictures_.At(*picture, ratio);
  for (const Element* element : form_.Graphics())
    if (element->Picture && !element->Stretch) pictures_.At(*element->Picture, ratio);
}

void FormView::Follow() {
  setGeometry(qRound(form_.Left), qRound(form_.Top), form_.Width, form_.Height);
  FollowElements();
  FollowOrder();
  FollowControls();
  FollowDescription();
  if (shape_ != form_.MousePointer) {
    shape_ = form_.MousePointer;
    setCursor(shape_ == PointerShape::NoDrop ? Qt::ForbiddenCursor : Qt::ArrowCursor);
  }
  show();
}

void FormView::FollowElements() {
  for (const Element* element : form_.Graphics()) {
    const auto [at, fresh] = drawn_.try_emplace(element);
    Drawn& drawn = at->second;
    if (!fresh && drawn.record == *element) continue;
    if (!fresh && drawn.record.Visible) Damage(drawn.painted);
    drawn = {*element, PaintedRect(*element)};
    if (element->Visible) Damage(drawn.painted);
  }
}

/// Where two things that overlap have changed places, what they share is drawn again.
void FormView::FollowOrder() {
  const auto& now = form_.Graphics();
  if (order_ == now) return;
  std::vector<const Element*> shown;
  for (const Element* element : now)
    if (element->Visible) shown.push_back(element);
  std::unordered_map<const Element*, std::size_t> before;
  for (std::size_t i = 0; i < order_.size(); ++i) before[order_[i]] = i;
  for (std::size_t back = 0; back < shown.size() && !order_.empty(); ++back)
    for (std::size_t front = back + 1; front < shown.size(); ++front) {
      if (before[shown[back]] < before[shown[front]]) continue;
      const QRect shared = drawn_[shown[back]].painted & drawn_[shown[front]].painted;
      if (!shared.isEmpty()) Damage(shared);
    }
  order_ = now;
}

void FormView::FollowControls() {
  for (Element* element : form_.Controls()) {
    Control& control = ControlOf(*element);
    control.widget().setGeometry(qRound(element->Left) + form_.Border, qRound(element->Top) + form_.Border,
                                 qRound(element->Width), qRound(element->Height));
    control.widget().setEnabled(element->Enabled);
    control.widget().setVisible(element->Visible);
    control.Follow(*element);
  }
}

Control& FormView::ControlOf(Element& element) {
  Control*& control = controls_[&element];
  if (control) return *control;
  ControlEvents events;
  // A press brings the form to the front even if no click comes of it.
  events.pressed = [this] { events_.Deliver([this] { events_.frame().Show(form_); }); };
  events.clicked = [this, &element] {
    events_.Deliver([&] {
      if (Reacts(element)) form_.Click(element);
    });
  };
  control = MakeControl(element, events, pictures_, this);
  return *control;
}

void FormView::FollowDescription() {
  if (!QAccessible::isActive()) return;
  const QString words = QString::fromStdString(form_.Description());
  if (words == description_) return;
  description_ = words;
  setAccessibleDescription(words);
  QAccessibleEvent changed(this, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&changed);
}

void FormView::Damage(const QRect& area) {
  const bool whole = devicePixelRatioF() == qRound(devicePixelRatioF());
  const int margin = whole ? 0 : 1;
  update(area.translated(form_.Border, form_.Border).adjusted(-margin, -margin, margin, margin));
}

void FormView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double ratio = devicePixelRatioF();
  // The menu's height may put the form between two device pixels at odd scales. Everything is drawn
  // in whole device pixels from the nearest corner.
  const QTransform device = painter.deviceTransform();
  const QPoint corner = device.map(QPointF(form_.Border, form_.Border)).toPoint();
  painter.fillRect(event->rect(), ToQt(form_.BackColor));
  if (form_.Border > 0) PaintBorder(painter);
  painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * device.inverted());
  const QRegion damaged = event->region().translated(-form_.Border, -form_.Border);
  for (const Element* element : form_.Graphics()) {
    if (!element->Visible) continue;
    const auto drawn = drawn_.find(element);
    if (drawn == drawn_.end() || damaged.intersects(drawn->second.painted.adjusted(-1, -1, 1, 1)))
      Paint(painter, *element, pictures_, ratio);
  }
}

/// A fixed dialog's border: raised, lit from above and from the left.
void FormView::PaintBorder(QPainter& painter) const {
  constexpr QRgb kUpper[] = {0xE3E3E3, 0xFFFFFF, 0xF0F0F0};
  constexpr QRgb kLower[] = {0x696969, 0xA0A0A0, 0xF0F0F0};
  for (int line = 0; line < form_.Border; ++line) {
    const QRect edge = rect().adjusted(line, line, -line, -line);
    painter.fillRect(edge.left(), edge.top(), edge.width(), 1, QColor(kUpper[line]));
    painter.fillRect(edge.left(), edge.top(), 1, edge.height(), QColor(kUpper[line]));
    painter.fillRect(edge.left(), edge.bottom(), edge.width(), 1, QColor(kLower[line]));
    painter.fillRect(edge.right(), edge.top(), 1, edge.height(), QColor(kLower[line]));
  }
}

QPointF FormView::OnForm(const QMouseEvent& event) const {
  // Whole pixels, to the nearest: at odd scales the platform reports fractions.
  const QPoint point = event.position().toPoint();
  return {static_cast<qreal>(point.x() - form_.Border), static_cast<qreal>(point.y() - form_.Border)};
}

void FormView::mousePressEvent(QMouseEvent* event) {
  const QPointF at = OnForm(*event);
  const int button = ButtonOf(event->button());
  if (button == 0) return;
  events_.Deliver(
      [&] { events_.pointer().Press(form_, button, static_cast<float>(at.x()), static_cast<float>(at.y())); });
  // While an element holds the mouse, a move without a button tells that the release was lost.
  setMouseTracking(events_.pointer().HeldOn() == &form_);
}

void FormView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void FormView::mouseMoveEvent(QMouseEvent* event) {
  if (events_.pointer().HeldOn() != &form_) return;
  const QPointF at = OnForm(*event);
  const int held = ButtonsOf(event->buttons());
  events_.Deliver([&] { events_.pointer().Move(held, static_cast<float>(at.x()), static_cast<float>(at.y())); });
}

void FormView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) setMouseTracking(false);
  if (events_.pointer().HeldOn() != &form_) return;
  const QPointF at = OnForm(*event);
  const int button = ButtonOf(event->button());
  events_.Deliver([&] { events_.pointer().Release(button, static_cast<float>(at.x()), static_cast<float>(at.y())); });
}

void FormView::keyPressEvent(QKeyEvent* event) {
  if (ScrollsView(event->key()) || event->isAutoRepeat()) return;
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter) PressOn(&Element::Default);
  if (event->key() == Qt::Key_Escape) PressOn(&Element::Cancel);
}

/// The keys that scroll reach the form's view wherever the focus is.
bool FormView::ScrollsView(int key) {
  const auto* view = findChild<QAbstractScrollArea*>();
  if (!view) return false;
  struct Step {
    int key;
    QAbstractSlider::SliderAction action;
  };
  constexpr Step kSteps[] = {{Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
                             {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
                             {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
                             {Qt::Key_End, QAbstractSlider::SliderToMaximum}};
  const auto* step = std::ranges::find(kSteps, key, &Step::key);
  if (step == std::end(kSteps)) return false;
  view->verticalScrollBar()->triggerAction(step->action);
  return true;
}

void FormView::PressOn(bool Element::*role) {
  for (Element* control : form_.Controls())
    if (control->*role && Reacts(*control)) {
      events_.Deliver([&] { form_.Click(*control); });
      return;
    }
}

bool FormView::focusNextPrevChild(bool next) {
  // Tab stays on the form in front: what lies beneath must not take keys unseen.
  std::vector<QWidget*> stops;
  for (const Element* element : form_.Controls())
    if (const auto at = controls_.find(element); at != controls_.end() && element->TakesFocus() && Reacts(*element))
      stops.push_back(&at->second->widget());
  if (stops.empty()) {
    setFocus();
    return true;
  }
  if (!next) std::ranges::reverse(stops);
  const auto at = std::ranges::find_if(stops, [](const QWidget* stop) { return stop->hasFocus(); });
  const bool last = at == stops.end() || at + 1 == stops.end();
  (last ? stops.front() : *(at + 1))->setFocus(Qt::TabFocusReason);
  return true;
}

void FormView::TakeKeyboard() {
  if (QWidget* last = focusWidget(); last && last->isVisibleTo(this)) {
    last->setFocus();
    return;
  }
  setFocus();
  for (const Element* element : form_.Controls())
    if (element->Default && Reacts(*element)) SetFocus(*element);
}

void FormView::SetFocus(const Element& control) {
  if (const auto at = controls_.find(&control); at != controls_.end()) at->second->widget().setFocus();
}

}  // namespace desktop::qt
