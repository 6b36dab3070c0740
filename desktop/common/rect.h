// Whole pixels: points, sizes and rectangles.
#pragma once

#include <algorithm>

namespace desktop::common {

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

/// Holds the pixels from its left and top edge up to, and without, its right and bottom edge.
struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  bool operator==(const Rect&) const = default;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool IsEmpty() const { return width <= 0 || height <= 0; }

  bool Meets(const Rect& other) const { return !Shared(other).IsEmpty(); }

  /// What lies in both; empty where they do not overlap.
  Rect Shared(const Rect& other) const {
    return Between(std::max(left, other.left), std::max(top, other.top), std::min(Right(), other.Right()),
                   std::min(Bottom(), other.Bottom()));
  }

  /// The smallest that holds both.
  Rect United(const Rect& other) const {
    return Between(std::min(left, other.left), std::min(top, other.top), std::max(Right(), other.Right()),
                   std::max(Bottom(), other.Bottom()));
  }

  Rect Grown(int margin) const { return {left - margin, top - margin, width + 2 * margin, height + 2 * margin}; }

  Rect Moved(int x, int y) const { return {left + x, top + y, width, height}; }

  static Rect Between(int left, int top, int right, int bottom) { return {left, top, right - left, bottom - top}; }
};

}  // namespace desktop::common
