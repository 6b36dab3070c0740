// Where a text stands in its box, and how far its ink reaches.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/common/rect.h"
#include "desktop/element.h"

namespace desktop::common {

/// The widths and heights of type as a desktop has it, in the layout's pixels.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// The width of a text on one line.
  virtual double Advance(std::string_view text, const Font& font) const = 0;
  /// The height of one line, from the top of its tallest letters to the bottom of its deepest.
  virtual double Height(const Font& font) const = 0;
  /// From the top of a line to the top of the next.
  virtual double Spacing(const Font& font) const = 0;
};

/// A line of text and the upper left corner of its box, in the layout's pixels.
struct TextLine {
  std::string text;
  double left = 0;
  double top = 0;
  double width = 0;
};

/// The lines of a label's caption, from the form's corner. The text is broken at line ends and, where a line
/// is too long for the box, at blanks. A word that is wider than the box grows out of it on the side from
/// which its alignment turns away; a text may reach below its box.
std::vector<TextLine> LinesOf(const Element& label, const TextMeasure& measure);

/// The lines of a caption in the middle of a box. Empty lines around the words only put them there.
std::vector<TextLine> LinesInMiddle(std::string_view caption, const Font& font, const Rect& box,
                                    const TextMeasure& measure);

/// What drawing the element touches, in the layout's pixels: its box, and the text that reaches out of it.
Rect PaintedArea(const Element& element, const TextMeasure& measure);

}  // namespace desktop::common
