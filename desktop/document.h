// A formatted text with pictures in its lines, as plain data.
#pragma once

#include <string>
#include <vector>

#include "desktop/look.h"
#include "desktop/picture.h"

namespace desktop {

struct TextStyle {
  desktop::Font Font;
  Colour ForeColor;
};

/// A stretch of text in one style, or a picture that stands in the line at its own size.
struct Run {
  std::string Text;  ///< tabs go to the next multiple of the document's tab distance
  const TextStyle* Style = nullptr;
  const desktop::Picture* Picture = nullptr;
  std::string Meaning;  ///< what a picture says, for a screen reader
};

struct Paragraph {
  Align Alignment = Align::Left;
  std::vector<Run> Runs;
};

struct Document {
  int TabDistance = 0;  ///< pixels
  std::vector<Paragraph> Paragraphs;
};

}  // namespace desktop
