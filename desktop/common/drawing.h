// What a form showed when it was drawn last, and so what must be drawn again.
#pragma once

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

#include "desktop/common/text_box.h"
#include "desktop/form.h"

namespace desktop::common {

/// The pictures of own size that are on a form or will come onto it.
std::vector<const Picture*> PicturesOf(const Form& form);

/// Knows the images and labels of one form, and the ring around where the keyboard is. Places are the layout's pixels
/// from inside the form's border.
class Drawing {
 public:
  /// All of the form counts as drawn. Both must outlive the drawing.
  Drawing(const Form& form, const TextMeasure& measure);

  /// Takes over what the records say now. Returns where they differ from what was drawn last: the old and the
  /// new place of each that has changed, and what two that have changed their order have in common.
  std::vector<Rect> Follow();

  /// The outer edge of the ring, if it shows, in the layout's pixels from inside the form's border.
  const std::optional<Rect>& Ring() const { return ring_; }

  /// The visible images and labels that meet any of `areas`, back to front.
  std::vector<const Element*> Meeting(std::span<const Rect> areas) const;

 private:
  /// What an element looked like when it was drawn last.
  struct Drawn {
    Element record;
    Rect painted;
    std::size_t order = 0;  ///< its place from back to front
  };

  void FollowRecords(std::vector<Rect>& damage);
  void FollowOrder(std::vector<Rect>& damage);
  void FollowRing(std::vector<Rect>& damage);

  const Form& form_;
  const TextMeasure& measure_;
  std::unordered_map<const Element*, Drawn> drawn_;
  std::vector<Element*> order_;
  std::optional<Rect> ring_;
};

}  // namespace desktop::common
