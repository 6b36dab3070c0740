#include "desktop/form.h"

#include <algorithm>
#include <ranges>

namespace desktop {

namespace {

bool TakesMouse(const Element& element) {
  const bool reacts = element.kind == Kind::Image || element.kind == Kind::Label;
  return reacts && element.Visible && element.Enabled;
}

}  // namespace

void Form::Add(Element& element) { (element.IsControl() ? controls_ : graphics_).push_back(&element); }

void Form::Clear() {
  graphics_.clear();
  controls_.clear();
}

void Form::BringToFront(const Element& element) {
  const auto at = std::ranges::find(graphics_, &element);
  if (at != graphics_.end()) std::rotate(at, at + 1, graphics_.end());
}

Element* Form::ElementAt(float x, float y) const {
  for (Element* element : graphics_ | std::views::reverse)
    if (TakesMouse(*element) && element->Contains(x, y)) return element;
  return nullptr;
}

}  // namespace desktop
