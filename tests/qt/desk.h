// A run of the program on the real desktop, and a player's hands for it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QBackingStore>
#include <QImage>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <deque>
#include <functional>
#include <string>

#include "desktop/qt/form_view.h"
#include "desktop/qt/qt_desktop.h"
#include "shell/frmMain.h"
#include "tests/qt/sheet.h"

namespace on_screen {

using desktop::qt::FormView;

/// The real desktop, less its speakers and the end of its process.
class Desk : public desktop::qt::QtDesktop {
 public:
  bool hurries = true;                   ///< a wait takes a millisecond, and events run in it
  std::function<void()> inRest = [] {};  ///< runs at the end of each rest
  int rests = 0;
  std::deque<float> draws;  ///< dealt first; then a generator goes on
  std::string lastSound;

  double Clock() const override { return QtDesktop::Clock() + skipped_; }
  void RunEventsUntil(double moment) override {
    ++rests;
    if (hurries) skipped_ += std::max(0.0, moment - Clock() - 0.001);
    QtDesktop::RunEventsUntil(moment);
    inRest();
  }
  void Randomize() override {}
  float Random() override {
    if (draws.empty()) return QtDesktop::Random();
    const float draw = draws.front();
    draws.pop_front();
    return draw;
  }
  void PlayWave(const desktop::WaveImage& image) override { lastSound = image.name; }
  void EndProcess() override {}

 private:
  double skipped_ = 0;
};

/// Has `look` see the next question box once it is open. It must answer.
inline void WhenAsked(const std::function<void(QMessageBox&)>& look) {
  QTimer::singleShot(1, [look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    box && box->isVisible() ? look(*box) : WhenAsked(look);
  });
}
inline void Answer(QMessageBox& box, QMessageBox::StandardButton answer) {
  QTest::mouseClick(box.button(answer), Qt::LeftButton);
}

/// Starts on the opening form, with an empty store.
class OnDesk : public testing::Test {
 protected:
  void SetUp() override {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home_.path());
    thistle::Main(frame);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
  }
  /// Goes on to the first turn.
  void StartGame() {
    Key(Qt::Key_Return);
    ASSERT_TRUE(table.Loaded);
  }

  /// The form on the screen, or nullptr.
  FormView* ViewOf(const desktop::Form& form) {
    for (QObject* child : desktop.window().area().children())
      if (auto* view = dynamic_cast<FormView*>(child); view && &view->form() == &form && !view->isHidden()) return view;
    return nullptr;
  }
  /// A control by what a screen reader calls it.
  QWidget* Control(const desktop::Form& form, const QString& name) {
    for (QWidget* child : ViewOf(form)->findChildren<QWidget*>())
      if (child->accessibleName() == name) return child;
    return nullptr;
  }
  QString Focus() const { return QApplication::focusWidget() ? QApplication::focusWidget()->accessibleName() : ""; }

  /// What is on the screen within the widget or a part of it, in device pixels.
  QImage Shown(QWidget& widget, QRect part = {}) {
    if (part.isNull()) part = widget.rect();
    QCoreApplication::sendPostedEvents();
    QWidget& window = *widget.window();
    // Taken from behind the window: the platform's own grab cuts off what a scaled screen adds.
    const auto* all = dynamic_cast<const QImage*>(window.backingStore()->paintDevice());
    QImage shown = all->copy(Device(QRect(widget.mapTo(&window, part.topLeft()), part.size())) & all->rect());
    shown.setDevicePixelRatio(1);
    return shown.convertedTo(QImage::Format_RGB32);
  }
  /// The form looks as if it had been painted anew.
  testing::AssertionResult IsFresh(const desktop::Form& form) {
    QWidget& view = *ViewOf(form);
    const QImage before = Shown(view);
    view.repaint();
    return Same(before, Shown(view));
  }

  // Points are the layout's pixels on the form.
  void Press(const desktop::Form& form, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(desktop.window().windowHandle(), button, {}, InWindow(form, at));
  }
  void Move(const desktop::Form& form, QPoint to) {
    QTest::mouseMove(desktop.window().windowHandle(), InWindow(form, to));
  }
  void Release(const desktop::Form& form, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(desktop.window().windowHandle(), button, {}, InWindow(form, at));
  }
  void Click(const desktop::Form& form, QPoint at) {
    Press(form, at);
    Release(form, at);
  }
  void Carry(const desktop::Form& form, QPoint from, QPoint to) {
    Press(form, from);
    Release(form, to);
  }
  void Key(Qt::Key key) { QTest::keyClick(desktop.window().windowHandle(), key); }
  /// Chooses an entry of the menu by its text.
  void Menu(const QString& text) {
    const auto entries = desktop.window().findChildren<QAction*>();
    const auto entry = std::ranges::find_if(
        entries, [&](QAction* action) { return QString(action->text()).remove('&') == text && !action->menu(); });
    ASSERT_NE(entry, entries.end()) << text.toStdString();
    (*entry)->trigger();
  }

  Desk desktop;
  thistle::frmMain frame{desktop};
  thistle::frmGame& table = frame.Game;

 private:
  QPoint InWindow(const desktop::Form& form, QPoint at) {
    FormView* view = ViewOf(form);
    return view->mapTo(view->window(), at + QPoint(form.Border, form.Border));
  }

  QTemporaryDir home_;
};

/// On the table, at the first turn.
class AtTable : public OnDesk {
 protected:
  void SetUp() override {
    OnDesk::SetUp();
    StartGame();
  }
};

}  // namespace on_screen
