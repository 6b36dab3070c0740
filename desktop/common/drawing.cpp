#include "desktop/common/drawing.h"

#include <algorithm>
#include <utility>

#include "desktop/common/walk.h"

namespace desktop::common {

std::vector<const Picture*> PicturesOf(const Form& form) {
  std::vector<const Picture*> pictures = form.PicturesToCome;
  for (const Element* element : form.Graphics())
    if (element->Picture && !element->Stretch) pictures.push_back(element->Picture);
  return pictures;
}

Drawing::Drawing(const Form& form, const TextMeasure& measure) : form_(form), measure_(measure) { Follow(); }

std::vector<Rect> Drawing::Follow() {
  std::vector<Rect> damage;
  FollowRecords(damage);
  FollowOrder(damage);
  FollowRing(damage);
  return damage;
}

void Drawing::FollowRecords(std::vector<Rect>& damage) {
  for (const Element* element : form_.Graphics()) {
    const auto [at, fresh] = drawn_.try_emplace(element);
    Drawn& drawn = at->second;
    if (!fresh && drawn.record == *element) continue;
    if (!fresh && drawn.record.Visible) damage.push_back(drawn.painted);
    drawn.record = *element;
    drawn.painted = PaintedArea(*element, measure_);
    if (element->Visible) damage.push_back(drawn.painted);
  }
}

void Drawing::FollowOrder(std::vector<Rect>& damage) {
  const auto& now = form_.Graphics();
  if (order_ == now) return;
  std::vector<const Drawn*> shown;
  for (const Element* element : now)
    if (element->Visible) shown.push_back(&drawn_.at(element));
  // Where two that overlap have changed places, what they share is drawn again.
  if (!order_.empty())
    for (auto front = shown.begin(); front != shown.end(); ++front)
      for (auto back = shown.begin(); back != front; ++back)
        if ((*back)->order > (*front)->order && (*back)->painted.Meets((*front)->painted))
          damage.push_back((*back)->painted.Shared((*front)->painted));
  order_ = now;
  for (std::size_t place = 0; place < now.size(); ++place) drawn_.at(now[place]).order = place;
}

void Drawing::FollowRing(std::vector<Rect>& damage) {
  const std::optional<Rect> before = std::exchange(ring_, RingOf(form_));
  if (before == ring_) return;
  for (const auto& ring : {before, ring_})
    if (ring) damage.push_back(*ring);
}

std::vector<const Element*> Drawing::Meeting(std::span<const Rect> areas) const {
  std::vector<const Element*> met;
  for (const Element* element : form_.Graphics()) {
    if (!element->Visible) continue;
    const auto at = drawn_.find(element);
    const bool meets = at == drawn_.end() ||
                       std::ranges::any_of(areas, [&](const Rect& area) { return area.Meets(at->second.painted); });
    if (meets) met.push_back(element);
  }
  return met;
}

}  // namespace desktop::common
