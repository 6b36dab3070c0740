// The frame on the screen: one window with a menu bar over the area in which the forms stand.
#pragma once

#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/frame.h"

namespace desktop::qt {

class Events;

/// Keeps itself at its fixed size in the normal state without taking away maximise, and without
/// quarrelling with a window manager that insists on another size.
class FrameWindow : public QWidget {
 public:
  FrameWindow(Frame& frame, Events& events);

  /// Appears at the frame's place and size.
  void Appear();
  /// Runs `task` once the window's first picture is on the screen. To be said before it appears.
  void WhenSeen(std::function<void()> task) { whenSeen_ = std::move(task); }
  /// The widget in which the forms stand.
  QWidget& area() { return *area_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeMenu();
  void AddEntry(QWidget& menu, const MenuEntry& entry);
  QSize FixedSize() const;
  void NoteState();
  void NotePlace();
  void Fit();
  void SnapBack();
  bool IsTiled() const;

  Frame& frame_;
  Events& events_;
  QMenuBar* menu_;
  QWidget* area_;
  QTimer snapBack_;
  bool snapping_ = false;  ///< a resize of its own has been asked for and not yet looked at
  int refusals_ = 0;
  std::function<void()> whenSeen_;
};

}  // namespace desktop::qt
