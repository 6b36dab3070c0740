#include "tests/qt/desk.h"

#include <QBackingStore>
#include <QMenuBar>
#include <QSettings>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "tests/qt/sheet.h"

namespace on_screen {

using desktop::qt::FormView;

void Desk::RunEventsUntil(double moment) {
  ++rests;
  if (hurries) skipped_ += std::max(0.0, moment - Clock() - 0.001);
  QtDesktop::RunEventsUntil(moment);
  inRest();
}

float Desk::Random() {
  if (draws.empty()) return QtDesktop::Random();
  const float draw = draws.front();
  draws.pop_front();
  return draw;
}

void WhenAsked(const std::function<void(QMessageBox&)>& look) {
  QTimer::singleShot(1, [look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    box && box->isVisible() ? look(*box) : WhenAsked(look);
  });
}

void Answer(QMessageBox& box, QMessageBox::StandardButton answer) {
  QTest::mouseClick(box.button(answer), Qt::LeftButton);
}

void OnDesk::SetUp() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home_.path());
  thistle::Main(frame);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
}

void OnDesk::StartGame() {
  Key(Qt::Key_Return);
  ASSERT_TRUE(table.Loaded);
}

FormView* OnDesk::ViewOf(const desktop::Form& form) {
  for (QObject* child : desktop.window().area().children())
    if (auto* view = dynamic_cast<FormView*>(child); view && &view->form() == &form && !view->isHidden()) return view;
  return nullptr;
}

QWidget* OnDesk::Control(const desktop::Form& form, const QString& name) {
  for (QWidget* child : ViewOf(form)->findChildren<QWidget*>())
    if (child->accessibleName() == name) return child;
  return nullptr;
}

QImage OnDesk::Shown(QWidget& widget, QRect part) {
  if (part.isNull()) part = widget.rect();
  QCoreApplication::sendPostedEvents();
  QWidget& window = *widget.window();
  // Taken from behind the window: the platform's own grab cuts off what a scaled screen adds.
  const auto* all = dynamic_cast<const QImage*>(window.backingStore()->paintDevice());
  QImage shown = all->copy(Device(QRect(widget.mapTo(&window, part.topLeft()), part.size())) & all->rect());
  shown.setDevicePixelRatio(1);
  return shown.convertedTo(QImage::Format_RGB32);
}

testing::AssertionResult OnDesk::IsFresh(const desktop::Form& form) {
  QWidget& view = *ViewOf(form);
  const QImage before = Shown(view);
  view.repaint();
  return Same(before, Shown(view));
}

QPoint OnDesk::InWindow(const desktop::Form& form, QPoint at) {
  FormView* view = ViewOf(form);
  return view->mapTo(view->window(), at + QPoint(form.Border, form.Border));
}

void OnDesk::Press(const desktop::Form& form, QPoint at, Qt::MouseButton button) {
  QTest::mousePress(desktop.window().windowHandle(), button, {}, InWindow(form, at));
}

void OnDesk::Move(const desktop::Form& form, QPoint to) {
  QTest::mouseMove(desktop.window().windowHandle(), InWindow(form, to));
}

void OnDesk::Release(const desktop::Form& form, QPoint at, Qt::MouseButton button) {
  QTest::mouseRelease(desktop.window().windowHandle(), button, {}, InWindow(form, at));
}

void OnDesk::Click(const desktop::Form& form, QPoint at) {
  Press(form, at);
  Release(form, at);
}

void OnDesk::Carry(const desktop::Form& form, QPoint from, QPoint to) {
  Press(form, from);
  Release(form, to);
}

void OnDesk::Key(Qt::Key key) { QTest::keyClick(desktop.window().windowHandle(), key); }

void OnDesk::Menu(const QString& text) {
  const auto entries = desktop.window().findChildren<QAction*>();
  const auto entry = std::ranges::find_if(
      entries, [&](QAction* action) { return QString(action->text()).remove('&') == text && !action->menu(); });
  ASSERT_NE(entry, entries.end()) << text.toStdString();
  (*entry)->trigger();
}

}  // namespace on_screen
