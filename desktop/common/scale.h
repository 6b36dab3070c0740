// From the layout's pixels to the pixels of a screen, and which picture serves which screen.
#pragma once

#include "desktop/common/rect.h"
#include "desktop/form.h"

namespace desktop::common {

/// `ratio` device pixels stand side by side in one pixel of the layout. It need not be whole.
class Scale {
 public:
  explicit Scale(double ratio = 1) : ratio_(ratio) {}

  double ratio() const { return ratio_; }
  bool operator==(const Scale&) const = default;

  /// The device pixel nearest to a length of the layout; halves go up.
  int Device(double length) const;
  /// The box of an element. Place and size are rounded apart, so that a picture has the same size
  /// wherever it stands.
  Rect Device(const Element& element) const;
  Rect Device(const Rect& layout) const;
  /// All device pixels that the rectangle and what is rounded from it can touch.
  Rect Outward(const Rect& layout) const;
  /// The layout's pixels that a device rectangle touches.
  Rect Layout(const Rect& device) const;
  /// The pixel of the layout that is shown on a device pixel; the last one where there are several.
  int Pixel(int device) const;
  /// A picture that is not stretched.
  Size Device(const Picture& picture) const;
  /// The thickness of a line that is one pixel of the layout thick.
  int Line() const;

 private:
  double ratio_;
};

/// The box of a form in its frame, of an element or of a stop, in the layout's pixels. No form stands further out than
/// 16 bits tell, however absurd the place from which it counts.
Rect BoxOf(const Form& form);
Rect BoxOf(const Element& element);
Rect BoxOf(const Stop& stop);

/// The scales in which pictures are carried; every picture is in the first and the last, and the die and the
/// cup, as a dithered shadow bears no scaling, in all.
inline constexpr double kCarriedScales[] = {1, 1.25, 1.5, 1.75, 2};

/// The scale of the carried picture that is shown `wanted` pixels wide where it measures `width` in the
/// layout. `isCarried` tells whether there is one in a scale between the first and the last. What does not
/// fit exactly is reduced from the largest, or from the smallest where that is large enough.
template <typename IsCarried>
double CarriedScale(int width, int wanted, const IsCarried& isCarried) {
  constexpr double kLeast = kCarriedScales[0];
  constexpr double kMost = kCarriedScales[std::size(kCarriedScales) - 1];
  if (wanted <= width) return kLeast;
  for (const double scale : kCarriedScales)
    if (scale != kMost && Scale(scale).Device(width) == wanted && isCarried(scale)) return scale;
  return kMost;
}

/// Whether a carried picture is shown in this size by leaving off its last row or column: its sizes are rounded up, so
/// that it can be cut but need not be scaled.
inline bool IsCut(Size carried, Size shown) {
  const int width = carried.width - shown.width;
  const int height = carried.height - shown.height;
  return width >= 0 && width <= 1 && height >= 0 && height <= 1 && width + height > 0;
}

}  // namespace desktop::common
