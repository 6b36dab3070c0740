// The mouse on the forms: which element a press reaches, and who gets the moves and the release.
#pragma once

#include "desktop/frame.h"

namespace desktop::common {

/// From a left press on an element to the left release, that element gets every mouse event,
/// wherever the pointer is: it holds the mouse. Other buttons never start a hold, so that no
/// element sees a left release, or a move with the left button down, without its own left press.
/// Points are pixels from the form's top left corner inside its border.
class Pointer {
 public:
  explicit Pointer(Frame& frame) : frame_(frame) {}

  /// A button goes down on `form`, which comes to the front of the frame.
  void Press(Form& form, int button, float x, float y);
  /// The pointer moves with the buttons `held` down; the point is on the form that has the hold.
  void Move(int held, float x, float y);
  void Release(int button, float x, float y);
  /// The mouse is taken away. The element that held it is told and gets no release.
  void Lose();

  /// The form on which the mouse is held, or nullptr.
  Form* HeldOn() const { return form_; }
  /// The element that holds the mouse, or nullptr.
  const Element* Holder() const { return element_; }

 private:
  Frame& frame_;
  Form* form_ = nullptr;
  Element* element_ = nullptr;
};

}  // namespace desktop::common
