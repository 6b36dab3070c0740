#include "desktop/common/views.h"

#include <algorithm>
#include <utility>

#include "desktop/common/keyboard.h"
#include "desktop/common/scale.h"

namespace desktop::common {

namespace {

/// Whether one of the forms in front of `form` leaves nothing of it in view.
bool IsCovered(const Form& form, const std::vector<Form*>& forms) {
  const auto at = std::ranges::find(forms, &form);
  return std::any_of(at + 1, forms.end(),
                     [&](const Form* front) { return BoxOf(*front).United(BoxOf(form)) == BoxOf(*front); });
}

}  // namespace

Views::Views(const Frame& frame, std::function<View*(Form&)> make) : frame_(frame), make_(std::move(make)) {}

void Views::Follow(bool atOnce) {
  RetireUnloaded();
  const auto forms = frame_.Children();
  if (!forms.empty()) common::TakeKeyboard(*forms.back());
  for (Form* form : forms) {
    const auto at = views_.find(form);
    View* const view = at != views_.end() ? at->second : views_.emplace(form, make_(*form)).first->second;
    view->Follow();
    view->Show(!IsCovered(*form, forms));
  }
  FollowOrder();
  for (const auto& [form, view] : views_) view->Draw(atOnce);
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
