// A run of the program on the real desktop, and a player's hands for it.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <deque>
#include <functional>
#include <string>

#include "desktop/qt/form_view.h"
#include "desktop/qt/qt_desktop.h"
#include "shell/frmMain.h"

namespace on_screen {

/// The real desktop, less its speakers and the end of its process.
class Desk : public desktop::qt::QtDesktop {
 public:
  bool hurries = true;                   ///< a wait takes a millisecond, and events run in it
  std::function<void()> inRest = [] {};  ///< runs at the end of each rest
  int rests = 0;
  std::deque<float> draws;  ///< dealt first; then a generator goes on
  std::string lastSound;

  double Clock() const override { return QtDesktop::Clock() + skipped_; }
  void RunEventsUntil(double moment) override;
  void Randomize() override {}
  float Random() override;
  void PlayWave(const desktop::WaveImage& image) override { lastSound = image.name; }
  void EndProcess() override {}

 private:
  double skipped_ = 0;
};

/// Has `look` see the next question box once it is open. It must answer.
void WhenAsked(const std::function<void(QMessageBox&)>& look);
void Answer(QMessageBox& box, QMessageBox::StandardButton answer);

/// Starts on the opening form, with an empty store.
class OnDesk : public testing::Test {
 protected:
  void SetUp() override;
  /// Goes on to the first turn.
  void StartGame();

  /// The form on the screen, or nullptr.
  desktop::qt::FormView* ViewOf(const desktop::Form& form);
  /// A control by what a screen reader calls it.
  QWidget* Control(const desktop::Form& form, const QString& name);
  QString Focus() const { return QApplication::focusWidget() ? QApplication::focusWidget()->accessibleName() : ""; }

  /// What is on the screen within the widget or a part of it, in device pixels.
  QImage Shown(QWidget& widget, QRect part = {});
  /// The form looks as if it had been painted anew.
  testing::AssertionResult IsFresh(const desktop::Form& form);

  // Points are the layout's pixels on the form.
  void Press(const desktop::Form& form, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Move(const desktop::Form& form, QPoint to);
  void Release(const desktop::Form& form, QPoint at, Qt::MouseButton button = Qt::LeftButton);
  void Click(const desktop::Form& form, QPoint at);
  void Carry(const desktop::Form& form, QPoint from, QPoint to);
  void Key(Qt::Key key);
  /// Chooses an entry of the menu by its text.
  void Menu(const QString& text);

  Desk desktop;
  thistle::frmMain frame{desktop};
  thistle::frmGame& table = frame.Game;

 private:
  QPoint InWindow(const desktop::Form& form, QPoint at);

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
