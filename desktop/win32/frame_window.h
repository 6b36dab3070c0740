// The frame on the screen: one window with a menu bar, in which the forms stand.
#pragma once

#include <functional>

#include "desktop/common/delivery.h"
#include "desktop/common/scale.h"
#include "desktop/common/snap_back.h"
#include "desktop/frame.h"
#include "desktop/win32/menu_bar.h"
#include "desktop/win32/window.h"

namespace desktop::win32 {

/// The scale in which places on the desktop are told, whatever screen the window stands on.
common::Scale DesktopScale();

/// Keeps itself at its fixed size in the normal state without taking away maximise.
class FrameWindow : public Window {
 public:
  /// `rescale` hears of another scale of the screen, when the window has its new size.
  FrameWindow(Frame& frame, common::Delivery& delivery, std::function<void(common::Scale)> rescale);

  /// Appears at the frame's place and size.
  void Appear();

 protected:
  void Paint() override;
  LRESULT Handle(UINT message, WPARAM wide, LPARAM details) override;

 private:
  common::Size FixedSize() const;
  SIZE ReckonedSize() const;
  void StandAt(POINT place);
  common::WindowLook Look() const;
  POINT Place() const;
  POINT Corner() const;
  bool IsPlaceHere() const;
  void NotePlace();
  void Fit();
  void LookLater();
  void SnapBack();
  void Rescale(UINT dpi, const RECT& suggested);
  void Close();

  Frame& frame_;
  common::Delivery& delivery_;
  std::function<void(common::Scale)> rescale_;
  MenuBar menu_;
  common::Scale scale_;  ///< of the screen on which it stands
  SIZE outer_{};         ///< the fixed size with the decoration
  common::SnapBack snapBack_;
  bool appeared_ = false;
  bool held_ = false;  ///< by its title bar
};

}  // namespace desktop::win32
