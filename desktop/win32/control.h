// The windows in front of a form's canvas.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "desktop/element.h"
#include "desktop/win32/materials.h"

namespace desktop::win32 {

/// A window that follows one record. Keys that reach it go on to its parent.
class Control {
 public:
  virtual ~Control() = default;
  virtual HWND window() const = 0;
  /// Takes over what the record says. Costs next to nothing where it says the same as before.
  virtual void Follow(const Element& record) = 0;
  /// The window has come to a screen of another scale.
  virtual void Rescale() = 0;
};

/// What a control asks of its form.
struct ControlEvents {
  std::function<void()> pressed;  ///< by the mouse
  std::function<void()> clicked;  ///< by the mouse
  /// Paints what lies behind the control, whose upper left corner is the canvas's.
  std::function<void(class WindowCanvas&)> paintGround;
};

/// Makes the window for a record of a control's kind. What `materials` refers to lives longer.
std::unique_ptr<Control> MakeControl(const Element& record, ControlEvents events, Materials& materials, HWND parent);

}  // namespace desktop::win32
