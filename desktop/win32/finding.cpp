#include "desktop/win32/finding.h"

#include <oleacc.h>

#include <algorithm>

#include "desktop/common/telling.h"
#include "desktop/win32/form_view.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

LONG Shown(bool shown) { return shown ? 0 : STATE_SYSTEM_INVISIBLE; }

LONG Focused(bool focused) { return focused ? STATE_SYSTEM_FOCUSED : 0; }

LONG StateOf(const Stop& stop) {
  if (stop.OnlyRead) return STATE_SYSTEM_READONLY;
  return stop.CanBeUsed() ? STATE_SYSTEM_FOCUSABLE : STATE_SYSTEM_UNAVAILABLE;
}

Finding OfControl(const FormView& view, const Element& control) {
  Finding found;
  found.window = view.WindowOf(control);
  found.state = Shown(control.Visible) | Focused(GetFocus() == found.window);
  found.place = view.InView(view.scale().Device(control));
  return found;
}

Finding OfStop(const FormView& view, const Stop& stop) {
  Finding found;
  found.name = Wide(stop.Name);
  found.value = found.description = Wide(stop.Value);
  if (!stop.Deeds.empty()) found.action = Wide(stop.Deeds.front().Name);
  found.role = stop.OnlyRead ? ROLE_SYSTEM_STATICTEXT : ROLE_SYSTEM_PUSHBUTTON;
  found.state = StateOf(stop) | Shown(stop.Visible);
  found.place = view.InView(view.scale().Device(common::BoxOf(stop)));
  return found;
}

Finding OfLabel(const FormView& view, const Element& label) {
  Finding found;
  found.name = SpokenName(label.Caption);
  found.role = ROLE_SYSTEM_STATICTEXT;
  found.state = STATE_SYSTEM_READONLY | Shown(label.Visible);
  found.place = view.InView(view.scale().Device(label));
  return found;
}

bool Holds(const common::Rect& place, POINT point) {
  return point.x >= place.left && point.x < place.Right() && point.y >= place.top && point.y < place.Bottom();
}

bool IsRead(const Element* element) {
  return element->Kind == Kind::Label && !element->Caption.empty() && !element->SaidByStop;
}

}  // namespace

Finding FormItself(const FormView& view) {
  const Form& form = view.form();
  Finding found;
  found.name = Wide(form.AccessibleName);
  found.description = Wide(common::InWords(form));
  found.role = ROLE_SYSTEM_DIALOG;
  found.state = STATE_SYSTEM_FOCUSABLE | Shown(IsWindowVisible(view.handle())) |
                Focused(GetFocus() == view.handle() && form.AtStop == kNoStop);
  found.place = {0, 0, view.scale().Device(form.Width), view.scale().Device(form.Height)};
  return found;
}

std::vector<Finding> FindingsOn(const FormView& view) {
  const Form& form = view.form();
  const std::vector<Stop> stops = form.Stops();
  std::vector<Finding> findings;
  for (const Stop& stop : stops) findings.push_back(stop.Control ? OfControl(view, *stop.Control) : OfStop(view, stop));
  const auto at = static_cast<std::size_t>(form.AtStop);
  if (form.AtStop != kNoStop && at < stops.size()) findings[at].state |= Focused(GetFocus() == view.handle());
  for (const Element* element : form.Graphics())
    if (IsRead(element)) findings.push_back(OfLabel(view, *element));
  for (const Element* control : form.Controls())
    if (std::ranges::find(stops, control, &Stop::Control) == stops.end()) findings.push_back(OfControl(view, *control));
  const LONG all = Shown(IsWindowVisible(view.handle()));
  for (Finding& found : findings) found.state |= all;
  return findings;
}

bool Covers(const Finding& found, POINT point) {
  return !(found.state & STATE_SYSTEM_INVISIBLE) && Holds(found.place, point);
}

LONG NumberBeside(LONG start, LONG direction, LONG count) {
  const bool isForm = start == CHILDID_SELF;
  if (isForm && direction == NAVDIR_FIRSTCHILD)
    start = 1;
  else if (isForm && direction == NAVDIR_LASTCHILD)
    start = count;
  else if (!isForm && direction == NAVDIR_NEXT)
    ++start;
  else if (!isForm && direction == NAVDIR_PREVIOUS)
    --start;
  else
    return CHILDID_SELF;
  return start <= count ? start : CHILDID_SELF;
}

}  // namespace desktop::win32
