#include "desktop/common/walk.h"

#include <algorithm>

#include "desktop/common/edges.h"

namespace desktop::common {

namespace {

bool IsAmong(const std::vector<Stop>& stops, int at) { return at >= 0 && at < static_cast<int>(stops.size()); }

const Stop& StopAt(const std::vector<Stop>& stops, int at) { return stops[static_cast<std::size_t>(at)]; }

bool IsArrow(Key key) { return key == Key::Left || key == Key::Up || key == Key::Right || key == Key::Down; }

int NeighbourOf(const Stop& stop, Key key) {
  switch (key) {
    case Key::Left:
      return stop.Neighbours.Left;
    case Key::Up:
      return stop.Neighbours.Up;
    case Key::Right:
      return stop.Neighbours.Right;
    case Key::Down:
      return stop.Neighbours.Down;
    default:
      return kNoStop;
  }
}

const Deed* DeedOf(const std::vector<Deed>& deeds, Key key) {
  const auto does = [key](const Deed& deed) { return std::ranges::find(deed.Keys, key) != deed.Keys.end(); };
  const auto found = std::ranges::find_if(deeds, does);
  return found == deeds.end() ? nullptr : &*found;
}

}  // namespace

int NextStop(const std::vector<Stop>& stops, int at, bool forward) {
  const int count = static_cast<int>(stops.size());
  if (!IsAmong(stops, at)) at = forward ? -1 : count;
  for (int step = 1; step <= count; ++step) {
    const int next = ((forward ? at + step : at - step) + 2 * count) % count;
    if (StopAt(stops, next).CanBeUsed()) return next;
  }
  return kNoStop;
}

int StopBeside(const std::vector<Stop>& stops, int at, Key key) {
  if (at == kNoStop && IsArrow(key)) return NextStop(stops, at, true);
  // No way is longer than that, even where neighbours lead in a circle.
  for (std::size_t steps = 0; steps < stops.size() && IsAmong(stops, at); ++steps) {
    at = NeighbourOf(StopAt(stops, at), key);
    if (IsAmong(stops, at) && StopAt(stops, at).CanBeUsed()) return at;
  }
  return kNoStop;
}

std::optional<Hand> HandOf(const Form& form, const std::vector<Stop>& stops, int at, Key key) {
  const Deed* deed = IsAmong(stops, at) ? DeedOf(StopAt(stops, at).Deeds, key) : nullptr;
  if (deed) return deed->Hand;
  const std::vector<Deed> anywhere = form.DeedsAnywhere();
  deed = DeedOf(anywhere, key);
  return deed ? std::optional(deed->Hand) : std::nullopt;
}

int StopOf(const std::vector<Stop>& stops, const Element& control) {
  const auto found = std::ranges::find(stops, &control, &Stop::Control);
  return found == stops.end() ? kNoStop : static_cast<int>(found - stops.begin());
}

Element* ControlAt(const Form& form, const std::vector<Stop>& stops, int at) {
  if (!IsAmong(stops, at)) return nullptr;
  const auto found = std::ranges::find(form.Controls(), StopAt(stops, at).Control);
  return found == form.Controls().end() ? nullptr : *found;
}

std::optional<Stop> StopWithKeyboard(const Form& form) {
  if (form.AtStop == kNoStop) return std::nullopt;
  const std::vector<Stop> stops = form.Stops();
  return IsAmong(stops, form.AtStop) ? std::optional(StopAt(stops, form.AtStop)) : std::nullopt;
}

std::optional<Rect> RingOf(const Form& form) {
  const std::optional<Stop> stop = form.ShowsStop ? StopWithKeyboard(form) : std::nullopt;
  if (!stop || !stop->Visible) return std::nullopt;
  const Rect inside{0, 0, form.Width - 2 * form.Border, form.Height - 2 * form.Border};
  return BoxOf(*stop).Grown(kRingWidth).Shared(inside);
}

}  // namespace desktop::common
