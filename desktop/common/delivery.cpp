#include "desktop/common/delivery.h"

#include <algorithm>

#include "desktop/common/walk.h"

namespace desktop::common {

namespace {

float Inside(const Form& form, float length) { return length - static_cast<float>(form.Border); }

/// The keyboard goes to the stop, and to the control that it is, if it is one.
void StandAt(Form& form, int stop) {
  form.AtStop = stop;
  form.Focus = ControlAt(form, form.Stops(), stop);
}

void Focus(Form& form, Element& control) {
  form.Focus = &control;
  form.AtStop = StopOf(form.Stops(), control);
}

/// Counts a question for as long as it is open, however it ends.
class Asking {
 public:
  explicit Asking(int& questions) : questions_(questions) { ++questions_; }
  ~Asking() { --questions_; }
  Asking(const Asking&) = delete;
  Asking& operator=(const Asking&) = delete;

 private:
  int& questions_;
};

}  // namespace

Delivery::Delivery(Frame& frame, Screen& screen, Waits& waits)
    : frame_(frame), screen_(screen), waits_(waits), pointer_(frame) {}

void Delivery::Deliver(const std::function<void()>& handler) {
  handler();
  LoseOnGone();
  screen_.Follow();
  waits_.LookUp();
}

/// A form that is left by a key takes with it the view on which the release would arrive.
void Delivery::LoseOnGone() {
  const auto& forms = frame_.Children();
  if (HeldOn() && std::ranges::find(forms, HeldOn()) == forms.end()) pointer_.Lose();
}

void Delivery::Press(Form& form, int button, float x, float y) {
  Deliver([&] {
    form.ShowsStop = false;
    pointer_.Press(form, button, Inside(form, x), Inside(form, y));
  });
}

void Delivery::Move(int held, float x, float y) {
  const Form* form = HeldOn();
  if (!form) return;
  Deliver([&] { pointer_.Move(held, Inside(*form, x), Inside(*form, y)); });
}

void Delivery::Release(int button, float x, float y) {
  const Form* form = HeldOn();
  if (!form) return;
  Deliver([&] { pointer_.Release(button, Inside(*form, x), Inside(*form, y)); });
}

void Delivery::PressControl(Form& form, Element& control) {
  Deliver([&] {
    frame_.Show(form);
    form.ShowsStop = false;
    if (TakesFocusByMouse(control)) Focus(form, control);
  });
}

void Delivery::ClickControl(Form& form, Element& control) {
  if (asking_ > 0) return;
  Deliver([&] {
    if (control.Reacts()) form.Click(control);
  });
}

Scroll Delivery::PressKey(Key key, bool held) {
  if (frame_.Children().empty() || asking_ > 0) return Scroll::None;
  Form& form = *frame_.Children().back();
  const KeyMeaning meaning = MeaningOf(form, key, held);
  if (meaning.scroll != Scroll::None) return meaning.scroll;
  Deliver([&] {
    form.ShowsStop = true;
    if (meaning.stop != kNoStop) StandAt(form, meaning.stop);
    if (meaning.focus) form.Focus = meaning.focus;
    if (meaning.click && meaning.click->Kind == Kind::OptionButton) form.Focus = meaning.click;
    if (meaning.click) form.Click(*meaning.click);
  });
  if (meaning.hand) MoveHand(form, *meaning.hand);
  return Scroll::None;
}

void Delivery::MoveHand(Form& form, const Hand& hand) {
  const bool inFront = !frame_.Children().empty() && frame_.Children().back() == &form;
  if (!inFront || frame_.State == WindowState::Minimised || asking_ > 0 || HeldOn()) return;
  Deliver([&] { pointer_.Press(form, kLeftButton, hand.FromX, hand.FromY); });
  if (!HeldOn()) return;
  Deliver([&] { pointer_.Move(kLeftButton, hand.ToX, hand.ToY); });
  if (!HeldOn()) return;
  Deliver([&] { pointer_.Release(kLeftButton, hand.ToX, hand.ToY); });
}

void Delivery::OpenMenu() {
  // An open menu takes the mouse; the release of what was held would never arrive.
  Deliver([this] { pointer_.Lose(); });
}

void Delivery::ChooseMenu(std::string_view name) {
  if (asking_ > 0) return;
  Deliver([&] {
    pointer_.Lose();
    frame_.MenuClick(name);
  });
}

void Delivery::Hide() {
  Deliver([this] { pointer_.Lose(); });
}

void Delivery::Resize(WindowState state) {
  frame_.State = state;
  Deliver([&] {
    if (state == WindowState::Minimised) pointer_.Lose();
    frame_.Resize();
  });
}

void Delivery::Close() {
  Deliver([this] { frame_.Close(); });
}

void Delivery::SetFocus(Form& form, Element& control) {
  Focus(form, control);
  screen_.Follow();
}

bool Delivery::Ask(const std::function<bool()>& question) {
  const Asking asking(asking_);
  pointer_.Lose();
  screen_.Follow();
  return question();
}

}  // namespace desktop::common
