#include "desktop/common/delivery.h"

namespace desktop::common {

namespace {

float Inside(const Form& form, float length) { return length - static_cast<float>(form.Border); }

}  // namespace

Delivery::Delivery(Frame& frame, Screen& screen, Waits& waits)
    : frame_(frame), screen_(screen), waits_(waits), pointer_(frame) {}

void Delivery::Deliver(const std::function<void()>& handler) {
  handler();
  screen_.Follow();
  waits_.LookUp();
}

void Delivery::Press(Form& form, int button, float x, float y) {
  Deliver([&] { pointer_.Press(form, button, Inside(form, x), Inside(form, y)); });
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
    if (TakesFocusByMouse(control)) form.Focus = &control;
  });
}

void Delivery::ClickControl(Form& form, Element& control) {
  Deliver([&] {
    if (control.Reacts()) form.Click(control);
  });
}

Scroll Delivery::PressKey(Key key, bool held) {
  if (frame_.Children().empty()) return Scroll::None;
  Form& form = *frame_.Children().back();
  const KeyMeaning meaning = MeaningOf(form, key, held);
  if (meaning.scroll != Scroll::None) return meaning.scroll;
  Deliver([&] {
    if (meaning.focus) form.Focus = meaning.focus;
    if (meaning.click && meaning.click->Kind == Kind::OptionButton) form.Focus = meaning.click;
    if (meaning.click) form.Click(*meaning.click);
  });
  return Scroll::None;
}

void Delivery::OpenMenu() {
  // An open menu takes the mouse; the release of what was held would never arrive.
  Deliver([this] { pointer_.Lose(); });
}

void Delivery::ChooseMenu(std::string_view name) {
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
  form.Focus = &control;
  screen_.Follow();
}

void Delivery::PrepareQuestion() {
  pointer_.Lose();
  screen_.Follow();
}

}  // namespace desktop::common
