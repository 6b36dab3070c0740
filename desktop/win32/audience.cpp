#include "desktop/win32/audience.h"

#include <utility>

#include "desktop/win32/form_view.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

void TellOf(const FormView& view, DWORD event, std::size_t stop) {
  NotifyWinEvent(event, view.handle(), OBJID_CLIENT, static_cast<LONG>(stop) + 1);
}

}  // namespace

Audience::Audience(FormView& view)
    : view_(view), reading_(new FormReading(view)), news_(view.handle()), telling_(view.form()) {
  // They ask for those themselves.
  for (const Stop& stop : view.form().Stops()) values_.push_back(stop.Value);
}

void Audience::Call() {
  if (!std::exchange(called_, true)) PostMessageW(view_.handle(), kTellMessage, 0, 0);
}

void Audience::Tell() {
  called_ = false;
  TellStops();
  if (const std::string news = telling_.News(); !news.empty()) news_.Say(Wide(news));
}

void Audience::TellStops() {
  const std::vector<Stop> stops = view_.form().Stops();
  for (std::size_t i = 0; i < stops.size(); ++i)
    if (std::exchange(values_[i], stops[i].Value) != stops[i].Value) TellOf(view_, EVENT_OBJECT_VALUECHANGE, i);
  const int at = view_.form().AtStop;
  // A control that takes the keyboard says so itself.
  if (std::exchange(atStop_, at) != at && at != kNoStop && GetFocus() == view_.handle())
    TellOf(view_, EVENT_OBJECT_FOCUS, static_cast<std::size_t>(at));
}

void Audience::NoteKeyboard() {
  atStop_ = kNoStop;
  Call();
}

}  // namespace desktop::win32
