#include "desktop/common/pointer.h"

#include <utility>

#include "desktop/units.h"

namespace desktop::common {

namespace {

float OffsetX(const Element& element, float x) { return (x - element.Left) * kTwipsPerPixel; }
float OffsetY(const Element& element, float y) { return (y - element.Top) * kTwipsPerPixel; }

}  // namespace

void Pointer::Press(Form& form, int button, float x, float y) {
  if (element_ && button != kLeftButton) {
    form_->MouseDown(*element_, button, OffsetX(*element_, x), OffsetY(*element_, y));
    return;
  }
  // A second left press without a release between: the release was lost on its way.
  Lose();
  frame_.Show(form);
  Element* element = form.ElementAt(x, y);
  if (!element || form.HoldsBack(*element)) return;
  if (button == kLeftButton) {
    form_ = &form;
    element_ = element;
  }
  form.MouseDown(*element, button, OffsetX(*element, x), OffsetY(*element, y));
}

void Pointer::Move(int held, float x, float y) {
  if (!element_) return;
  if ((held & kLeftButton) == 0) {
    Lose();
    return;
  }
  form_->MouseMove(*element_, held, OffsetX(*element_, x), OffsetY(*element_, y));
}

void Pointer::Release(int button, float x, float y) {
  if (!element_) return;
  if (button != kLeftButton) {
    form_->MouseUp(*element_, button, OffsetX(*element_, x), OffsetY(*element_, y));
    return;
  }
  // A click may run for seconds: the hold must be over before its handler starts.
  Form& form = *std::exchange(form_, nullptr);
  Element& element = *std::exchange(element_, nullptr);
  const bool reacts = element.Visible && element.Enabled && !form.HoldsBack(element);
  const bool click = reacts && element.Contains(x, y);
  form.MouseUp(element, button, OffsetX(element, x), OffsetY(element, y));
  if (click) form.Click(element);
}

void Pointer::Lose() {
  if (!element_) return;
  Form& form = *std::exchange(form_, nullptr);
  form.MouseLost(*std::exchange(element_, nullptr));
}

}  // namespace desktop::common
