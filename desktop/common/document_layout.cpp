#include "desktop/common/document_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace desktop::common {

namespace {

/// What is never broken, or a gap between such.
struct Atom {
  enum class Kind { Word, Blanks, Tab, Picture };

  Atom::Kind kind;
  const Run* run;
  Stretch words;
  double width = 0;
};

Atom::Kind KindOf(char c) {
  if (c == '\t') return Atom::Kind::Tab;
  return c == ' ' ? Atom::Kind::Blanks : Atom::Kind::Word;
}

bool IsGap(const Atom& atom) { return atom.kind == Atom::Kind::Blanks || atom.kind == Atom::Kind::Tab; }

/// Whether a byte goes on with a letter that an earlier one has begun.
bool IsInsideLetter(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

/// Breaks one paragraph into lines, and puts them below those before.
class LineBreaker {
 public:
  LineBreaker(DocumentLayout& layout, double room, int tabDistance)
      : layout_(layout), measure_(layout.measure_), room_(room), tabDistance_(tabDistance) {}

  void Break(const Paragraph& paragraph) {
    alignment_ = paragraph.Alignment;
    emptyStyle_ = paragraph.Runs.empty() ? nullptr : paragraph.Runs.front().Style;
    line_.words.begin = layout_.words_.size();
    for (const Run& run : paragraph.Runs) Cut(run);
    for (auto at = atoms_.begin(); at != atoms_.end();) {
      const auto end = IsGap(*at) ? at + 1 : std::find_if(at, atoms_.end(), IsGap);
      Place(at, end);
      at = end;
    }
    EndLine(layout_.words_.size());
  }

 private:
  using Atoms = std::vector<Atom>;

  /// Cuts a run into atoms.
  void Cut(const Run& run) {
    std::string& words = layout_.words_;
    const std::size_t start = words.size();
    words += run.Picture ? run.Meaning : run.Text;
    if (run.Picture) {
      const auto width = static_cast<double>(run.Picture->width);
      atoms_.push_back({Atom::Kind::Picture, &run, {start, words.size()}, width});
      return;
    }
    for (std::size_t begin = start; begin < words.size();) {
      const Atom::Kind kind = KindOf(words[begin]);
      std::size_t end = begin + 1;
      while (end < words.size() && kind != Atom::Kind::Tab && KindOf(words[end]) == kind) ++end;
      const std::string text = words.substr(begin, end - begin);
      const double width = kind == Atom::Kind::Tab ? 0 : measure_.Advance(text, run.Style->Font);
      atoms_.push_back({kind, &run, {begin, end}, width});
      begin = end;
    }
  }

  /// Places a gap, or atoms between which no line may end.
  void Place(Atoms::iterator begin, Atoms::iterator end) {
    if (begin->kind == Atom::Kind::Blanks) {
      blanks_.push_back(*begin);
      return;
    }
    if (begin->kind == Atom::Kind::Tab) {
      PlaceBlanks();
      right_ = (std::floor(right_ / tabDistance_) + 1) * tabDistance_;
      return;
    }
    double width = 0;
    for (const Atom& blanks : blanks_) width += blanks.width;
    for (auto at = begin; at != end; ++at) width += at->width;
    // Blanks at which a line ends belong to no line.
    if (right_ + width > room_ && !line_.pieces.empty())
      EndLine(begin->words.begin);
    else
      PlaceBlanks();
    std::for_each(begin, end, [this](const Atom& atom) { Append(atom); });
  }

  void PlaceBlanks() {
    for (const Atom& blanks : std::exchange(blanks_, {})) Append(blanks);
  }

  void Append(const Atom& atom) {
    Piece* const last = line_.pieces.empty() ? nullptr : &line_.pieces.back();
    if (last && last->run == atom.run && last->words.end == atom.words.begin) {
      last->words.end = atom.words.end;
      last->width += atom.width;
    } else {
      line_.pieces.push_back({atom.run, atom.words, right_, atom.width});
    }
    right_ += atom.width;
  }

  /// Puts the line below the one before. What follows begins at `next` in the words.
  void EndLine(std::size_t next) {
    blanks_.clear();
    double descent = 0;
    const auto hold = [&](double above, double below) {
      line_.ascent = std::max(line_.ascent, above);
      descent = std::max(descent, below);
    };
    const auto holdType = [&](const TextStyle& style) {
      const double ascent = measure_.Ascent(style.Font);
      hold(ascent, measure_.Spacing(style.Font) - ascent);
    };
    for (const Piece& piece : line_.pieces)
      if (piece.run->Picture)
        hold(piece.run->Picture->height, 0);
      else
        holdType(*piece.run->Style);
    if (line_.pieces.empty() && emptyStyle_) holdType(*emptyStyle_);
    line_.top = layout_.Height();
    line_.height = line_.ascent + descent;
    line_.words.end = next;
    const double spare = std::max(0.0, room_ - right_);
    const double shift = alignment_ == Align::Centre ? spare / 2 : alignment_ == Align::Right ? spare : 0;
    for (Piece& piece : line_.pieces) piece.left += shift;
    layout_.lines_.push_back(std::exchange(line_, {}));
    line_.words.begin = next;
    right_ = 0;
  }

  DocumentLayout& layout_;
  const DocumentMeasure& measure_;
  const double room_;
  const double tabDistance_;
  Align alignment_ = Align::Left;
  const TextStyle* emptyStyle_ = nullptr;  ///< how high a line without anything is
  Atoms atoms_;
  Atoms blanks_;  ///< after the line's last word
  DocumentLine line_;
  double right_ = 0;  ///< where the line goes on
};

DocumentLayout::DocumentLayout(const Document& document, double width, const DocumentMeasure& measure)
    : measure_(measure) {
  for (const Paragraph& paragraph : document.Paragraphs) {
    if (!lines_.empty()) words_ += '\n';
    LineBreaker(*this, width, document.TabDistance).Break(paragraph);
  }
}

std::size_t DocumentLayout::OffsetAt(double x, double y) const {
  const auto line = std::ranges::find_if(lines_, [y](const DocumentLine& each) { return y < each.top + each.height; });
  if (line == lines_.end()) return words_.size();
  const auto& pieces = line->pieces;
  const auto piece = std::ranges::find_if(pieces, [x](const Piece& each) { return x < each.left + each.width; });
  if (piece != pieces.end()) return OffsetIn(*piece, x);
  return pieces.empty() ? line->words.begin : pieces.back().words.end;
}

std::size_t DocumentLayout::OffsetIn(const Piece& piece, double x) const {
  std::size_t nearest = piece.words.begin;
  double left = piece.left;
  for (std::size_t end = piece.words.begin; end < piece.words.end;) {
    ++end;
    while (end < piece.words.end && (piece.run->Picture || IsInsideLetter(words_[end]))) ++end;
    const double right = piece.left + Advance(piece, end);
    if (x < (left + right) / 2) break;
    nearest = end;
    left = right;
  }
  return nearest;
}

double DocumentLayout::Advance(const Piece& piece, std::size_t end) const {
  if (end == piece.words.end) return piece.width;
  if (end == piece.words.begin || piece.run->Picture) return 0;
  return measure_.Advance(Words({piece.words.begin, end}), piece.run->Style->Font);
}

double DocumentLayout::LeftOf(const DocumentLine& line, std::size_t offset) const {
  double right = 0;
  for (const Piece& piece : line.pieces) {
    if (offset < piece.words.begin) return piece.left;
    if (offset <= piece.words.end) return piece.left + Advance(piece, offset);
    right = piece.left + piece.width;
  }
  return right;
}

std::vector<Rect> DocumentLayout::Marked(Stretch part) const {
  std::vector<Rect> marked;
  for (const DocumentLine& line : lines_) {
    const std::size_t begin = std::max(part.begin, line.words.begin);
    const std::size_t end = std::min(part.end, line.words.end);
    if (begin >= end) continue;
    const auto left = static_cast<int>(std::floor(LeftOf(line, begin)));
    const auto right = static_cast<int>(std::ceil(LeftOf(line, end)));
    const auto top = static_cast<int>(std::floor(line.top));
    marked.push_back(Rect::Between(left, top, right, static_cast<int>(std::ceil(line.top + line.height))));
  }
  return marked;
}

}  // namespace desktop::common
