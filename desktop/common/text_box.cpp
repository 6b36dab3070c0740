#include "desktop/common/text_box.h"

#include <algorithm>
#include <cmath>

#include "desktop/common/scale.h"

namespace desktop::common {

namespace {

/// Cuts `text` at line feeds. Forms end a line with a carriage return and a line feed.
std::vector<std::string> Split(std::string_view text) {
  std::vector<std::string> lines(1);
  for (const char c : text) {
    if (c == '\n')
      lines.emplace_back();
    else if (c != '\r')
      lines.back() += c;
  }
  return lines;
}

/// Breaks one line at blanks into lines that fit into `room`, as far as its words do.
std::vector<std::string> Wrap(const std::string& line, double room, const Font& font, const TextMeasure& measure) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  std::size_t fits = std::string::npos;  // the last blank up to which the line fits
  for (std::size_t at = line.find(' '); at != std::string::npos; at = line.find(' ', at + 1)) {
    if (measure.Advance(line.substr(start, at - start), font) > room && fits != std::string::npos) {
      lines.push_back(line.substr(start, fits - start));
      start = fits + 1;
    }
    fits = at;
  }
  if (fits != std::string::npos && fits >= start && measure.Advance(line.substr(start), font) > room) {
    lines.push_back(line.substr(start, fits - start));
    start = fits + 1;
  }
  lines.push_back(line.substr(start));
  return lines;
}

/// Where a line of `width` begins in a box. One that is too wide sticks out where the alignment turns away.
double Begin(Align alignment, const Rect& box, double width) {
  if (alignment == Align::Left) return box.left;
  if (alignment == Align::Right) return box.Right() - width;
  return box.left + (box.width - width) / 2;
}

/// Type leans out of its advance in italics, and its smoothed edges out of its box.
int Lean(double height) { return static_cast<int>(height) / 4; }

}  // namespace

std::vector<TextLine> LinesOf(const Element& label, const TextMeasure& measure) {
  const Rect box = BoxOf(label);
  const double spacing = measure.Spacing(label.Font);
  std::vector<TextLine> lines;
  double top = box.top;
  for (const std::string& line : Split(label.Caption))
    for (std::string& text : Wrap(line, box.width, label.Font, measure)) {
      const double width = measure.Advance(text, label.Font);
      lines.push_back({std::move(text), Begin(label.Alignment, box, width), top, width});
      top += spacing;
    }
  return lines;
}

std::vector<TextLine> LinesInMiddle(std::string_view caption, const Font& font, const Rect& box,
                                    const TextMeasure& measure) {
  auto texts = Split(caption);
  const auto isEmpty = [](const std::string& text) { return text.empty(); };
  texts.erase(texts.begin(), std::ranges::find_if_not(texts, isEmpty));
  while (!texts.empty() && texts.back().empty()) texts.pop_back();
  if (texts.empty()) return {};
  const double spacing = measure.Spacing(font);
  const double height = spacing * static_cast<double>(texts.size() - 1) + measure.Height(font);
  double top = box.top + (box.height - height) / 2;
  std::vector<TextLine> lines;
  for (std::string& text : texts) {
    const double width = measure.Advance(text, font);
    lines.push_back({std::move(text), Begin(Align::Centre, box, width), top, width});
    top += spacing;
  }
  return lines;
}

Rect PaintedArea(const Element& element, const TextMeasure& measure) {
  Rect area = BoxOf(element);
  if ((element.Kind != Kind::Label && element.Kind != Kind::Link) || element.Caption.empty()) return area;
  const double height = measure.Height(element.Font);
  for (const TextLine& line : LinesOf(element, measure)) {
    const auto left = static_cast<int>(std::floor(line.left));
    const auto right = static_cast<int>(std::ceil(line.left + line.width));
    const auto top = static_cast<int>(std::floor(line.top));
    const Rect ink = Rect::Between(left, top, right, static_cast<int>(std::ceil(line.top + height)));
    const int lean = Lean(height);
    area = area.United({ink.left - lean, ink.top, ink.width + 2 * lean, ink.height});
  }
  return area;
}

}  // namespace desktop::common
