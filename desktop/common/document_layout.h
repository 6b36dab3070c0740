// A document in lines, for a desktop that has no view of its own for one.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "desktop/common/rect.h"
#include "desktop/common/text_box.h"
#include "desktop/document.h"

namespace desktop::common {

/// A measure that also tells where letters stand.
class DocumentMeasure : public TextMeasure {
 public:
  /// From the top of a line to the base line, on which letters and pictures stand.
  virtual double Ascent(const Font& font) const = 0;
};

/// A stretch of the document's words.
struct Stretch {
  std::size_t begin = 0;  ///< bytes from the start
  std::size_t end = 0;
  bool operator==(const Stretch&) const = default;
};

/// What one run shows in one line: some of its words, or its picture.
struct Piece {
  const Run* run = nullptr;
  Stretch words;
  double left = 0;
  double width = 0;
};

struct DocumentLine {
  double top = 0;
  double height = 0;
  double ascent = 0;  ///< from the top to the base line
  std::vector<Piece> pieces;
  Stretch words;  ///< with the blanks at which it is broken
};

/// Lengths are the layout's pixels from the document's upper left corner.
class DocumentLayout {
 public:
  /// Breaks the paragraphs at blanks into lines `width` wide, as far as their words fit. Document and measure must
  /// outlive the layout.
  DocumentLayout(const Document& document, double width, const DocumentMeasure& measure);

  const std::vector<DocumentLine>& lines() const { return lines_; }
  /// All that the document says, a line feed between two paragraphs. A picture is what it means.
  const std::string& words() const { return words_; }
  std::string Words(Stretch part) const { return words_.substr(part.begin, part.end - part.begin); }
  double Height() const { return lines_.empty() ? 0 : lines_.back().top + lines_.back().height; }

  /// The gap between two letters, in bytes of the words, that is nearest to a point. A picture is one letter.
  std::size_t OffsetAt(double x, double y) const;
  /// What is marked where a part of the words is selected, one rectangle a line.
  std::vector<Rect> Marked(Stretch part) const;

 private:
  friend class LineBreaker;

  std::size_t OffsetIn(const Piece& piece, double x) const;
  double LeftOf(const DocumentLine& line, std::size_t offset) const;
  double Advance(const Piece& piece, std::size_t end) const;

  const DocumentMeasure& measure_;
  std::string words_;
  std::vector<DocumentLine> lines_;
};

}  // namespace desktop::common
