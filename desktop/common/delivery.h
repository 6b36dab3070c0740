// How what happens on the screen reaches the handlers, and what every desktop does before and after one.
#pragma once

#include <functional>
#include <string_view>

#include "desktop/common/keyboard.h"
#include "desktop/common/pointer.h"
#include "desktop/common/waits.h"

namespace desktop::common {

/// The side of a desktop that shows.
class Screen {
 public:
  virtual ~Screen() = default;
  /// Brings what is on the screen up to what the records say.
  virtual void Follow() = 0;
};

/// After each event the screen follows the records, and the innermost wait looks up. A desktop calls these and
/// nothing else of a form or of the frame. Points are the layout's pixels from the form's outer corner.
class Delivery {
 public:
  Delivery(Frame& frame, Screen& screen, Waits& waits);

  // --- The mouse on a form. While an element holds it, moves and releases go to that one's form.

  void Press(Form& form, int button, float x, float y);
  void Move(int held, float x, float y);
  void Release(int button, float x, float y);
  /// The form on which the mouse is held, or nullptr.
  Form* HeldOn() const { return pointer_.HeldOn(); }
  const Element* Holder() const { return pointer_.Holder(); }

  // --- Controls

  /// The mouse goes down on a control: its form comes to the front even if no click comes of it.
  void PressControl(Form& form, Element& control);
  /// By mouse, or for a screen reader. Nothing happens where the control has gone or is dead by now.
  void ClickControl(Form& form, Element& control);
  /// A key on the form in front. Returns how its text scrolls.
  Scroll PressKey(Key key, bool held);
  /// A hand moves on the form, by a key or for a screen reader: press, move and release arrive one after the other, as
  /// the player's own would. Nothing happens where the player could not do so now: not on the form in front, the
  /// window is minimised, the mouse is held, or a question is open.
  void MoveHand(Form& form, const Hand& hand);

  // --- The window

  void OpenMenu();
  void ChooseMenu(std::string_view name);
  /// The window can no longer be seen.
  void Hide();
  /// The window has another size or state.
  void Resize(WindowState state);
  /// The window is asked to close, or the session ends. Does not return where the process ends.
  void Close();

  // --- What handlers ask of the desktop

  void ReleaseMouse() { pointer_.Lose(); }
  void SetFocus(Form& form, Element& control);
  /// Shows a question, which takes the mouse and has all keys for itself until it is answered.
  bool Ask(const std::function<bool()>& question);

  /// Runs `handler` as one event.
  void Deliver(const std::function<void()>& handler);

 private:
  void LoseOnGone();

  Frame& frame_;
  Screen& screen_;
  Waits& waits_;
  Pointer pointer_;
  /// Questions that are open. The platform keeps mouse and keys from what lies beneath, but not a screen reader.
  int asking_ = 0;
};

}  // namespace desktop::common
