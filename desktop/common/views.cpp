#include "desktop/common/views.h"

#include <algorithm>
#include <utility>

#include "desktop/common/keyboard.h"

namespace desktop::common {

Views::Views(const Frame& frame, std::function<View*(Form&)> make) : frame_(frame), make_(std::move(make)) {}

void Views::Follow() {
  RetireUnloaded();
  const auto forms = frame_.Children();
  if (!forms.empty()) common::TakeKeyboard(*forms.back());
  for (Form* form : forms) {
    const auto at = views_.find(form);
    View* const view = at != views_.end() ? at->second : views_.emplace(form, make_(*form)).first->second;
    view->Follow();
  }
  FollowOrder();
}

void Views::RetireUnloaded() {
  const auto& forms = frame_.Children();
  for (auto at = views_.begin(); at != views_.end();) {
    if (std::ranges::find(forms, at->first) != forms.end()) {
      ++at;
      continue;
    }
    View* const gone = at->second;
    at = views_.erase(at);
    gone->Retire();
  }
}

void Views::FollowOrder() {
  const auto& forms = frame_.Children();
  const Element* const focus = forms.empty() ? nullptr : FocusOf(*forms.back());
  const bool reordered = order_ != forms;
  if (!reordered && focus == focus_) return;
  order_ = forms;
  focus_ = focus;
  if (reordered)
    for (const Form* form : order_) views_.at(form)->Raise();
  // Only then: an open menu has the keyboard for itself.
  if (!order_.empty()) views_.at(order_.back())->TakeKeyboard();
}

}  // namespace desktop::common
