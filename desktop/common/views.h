// The forms on show: one view for each, in their order.
#pragma once

#include <functional>
#include <map>
#include <vector>

#include "desktop/frame.h"

namespace desktop::common {

/// A form on the screen of a real desktop.
class View {
 public:
  virtual ~View() = default;
  /// Takes over what the form's records say now, and marks what must be drawn again.
  virtual void Follow() = 0;
  /// Draws what is marked: at once, or when the platform finds time for it.
  virtual void Draw(bool atOnce) = 0;
  /// One that others hide from view whole does not show, nor is it said to.
  virtual void Show(bool shown) = 0;
  /// Comes in front of all other views.
  virtual void Raise() = 0;
  /// Its form is the one in front: the keyboard goes to the control that the records name.
  virtual void TakeKeyboard() = 0;
  /// Goes off the screen, for good. Its own handler may be what unloaded the form, so it ends itself once nothing of
  /// it runs any more.
  virtual void Retire() = 0;
};

class Views {
 public:
  /// `make` gives a new view, which lives until it is retired.
  Views(const Frame& frame, std::function<View*(Form&)> make);

  /// Makes views for new forms, retires those of unloaded ones, and has all of them follow, stand in the forms' order,
  /// give the keyboard to the form in front, and draw.
  void Follow(bool atOnce = false);

 private:
  void RetireUnloaded();
  void FollowOrder();

  const Frame& frame_;
  std::function<View*(Form&)> make_;
  std::map<const Form*, View*> views_;
  std::vector<Form*> order_;
  const Element* focus_ = nullptr;  ///< on the form in front
};

}  // namespace desktop::common
