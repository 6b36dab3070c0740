// The scrolling view of a document. A part of it can be selected with the mouse, and copied.
#pragma once

#include <optional>

#include "desktop/common/document_layout.h"
#include "desktop/common/keyboard.h"
#include "desktop/win32/canvas.h"
#include "desktop/win32/control.h"
#include "desktop/win32/window.h"

namespace desktop::win32 {

class TextView : public Window, public Control {
 public:
  TextView(ControlEvents events, Materials& materials, HWND parent);

  // --- Control
  HWND window() const override { return handle(); }
  void Follow(const Element& record) override;
  void Rescale() override { LayOut(); }

  void ScrollBy(common::Scroll scroll);
  /// `notches` of the wheel, in the system's units of WHEEL_DELTA; upwards where positive.
  void Wheel(int notches);
  /// The selected words go to the clipboard.
  void Copy() const;

 protected:
  void Paint() override;
  LRESULT Handle(UINT message, WPARAM wide, LPARAM details) override;

 private:
  void LayOut();
  void PaintLine(WindowCanvas& canvas, const common::DocumentLine& line) const;
  void ScrollTo(int top);
  void MoveBar(int action);
  int Page() const;
  void Select(LPARAM point);
  void SelectUnder(LPARAM point);
  void FollowMouse();
  common::Stretch Selected() const;

  ControlEvents events_;
  Materials& materials_;
  const Document* shown_ = nullptr;
  std::optional<common::DocumentLayout> layout_;
  double ratio_ = 1;  ///< of the scale that the lines were laid out for
  int top_ = 0;       ///< how far the document is scrolled, in device pixels
  int notched_ = 0;   ///< of the wheel, less than one step
  bool selecting_ = false;
  LPARAM mouse_ = 0;        ///< while selecting
  std::size_t anchor_ = 0;  ///< where the selection began
  std::size_t caret_ = 0;   ///< where it ends
};

}  // namespace desktop::win32
