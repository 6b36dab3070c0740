// The frame on the screen: one window with a menu bar over the area in which the forms stand.
#pragma once

#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/common/delivery.h"
#include "desktop/common/snap_back.h"
#include "desktop/frame.h"

namespace desktop::qt {

/// Keeps itself at its fixed size in the normal state without taking away maximise, and without
/// quarrelling with a window manager that insists on another size.
class FrameWindow : public QWidget {
 public:
  FrameWindow(Frame& frame, common::Delivery& delivery);

  /// Appears at the frame's place and size.
  void Appear();
  /// Runs `task` once the window's first picture is on the screen. To be said before it appears.
  void WhenSeen(std::function<void()> task) { whenSeen_ = std::move(task); }
  /// The widget in which the forms stand.
  QWidget& area() { return *area_; }

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void AddEntry(QWidget& menu, const MenuEntry& entry);
  void LayOut();
  void NoteMenuHeight();
  common::Size FixedSize() const;
  common::WindowLook Look() const;
  void NotePlace();
  void Fit();
  void SnapBack();

  Frame& frame_;
  common::Delivery& delivery_;
  QMenuBar* menu_;
  QWidget* area_;
  common::SnapBack snapBack_;
  QTimer snapTimer_;
  int menuHeight_ = 0;
  std::function<void()> whenSeen_;
};

}  // namespace desktop::qt
