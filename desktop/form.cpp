#include "desktop/form.h"

#include <algorithm>

namespace desktop {

namespace {

bool TakesMouse(const Element& element) {
  const bool reacts = element.Kind == Kind::Image || element.Kind == Kind::Label;
  return reacts && element.Reacts();
}

}  // namespace

void Form::Add(Element& element) { (element.IsControl() ? controls_ : graphics_).push_back(&element); }

void Form::Clear() {
  graphics_.clear();
  controls_.clear();
  Focus = nullptr;
  AtStop = kNoStop;
  ShowsStop = false;
}

void Form::BringToFront(const Element& element) {
  const auto at = std::ranges::find(graphics_, &element);
  if (at != graphics_.end()) std::rotate(at, at + 1, graphics_.end());
}

Element* Form::ElementAt(float x, float y) const {
  const auto frontmost = std::find_if(graphics_.rbegin(), graphics_.rend(), [=](const Element* element) {
    return TakesMouse(*element) && element->Contains(x, y);
  });
  return frontmost == graphics_.rend() ? nullptr : *frontmost;
}

}  // namespace desktop
