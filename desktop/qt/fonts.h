// The carried type: Liberation Serif, so that every caption fits its box on every machine.
#pragma once

#include <QFont>

#include "desktop/common/text_box.h"
#include "desktop/look.h"

namespace desktop::qt {

/// Sized in pixels, so that the layout holds whatever the screen's density. A style's font file is
/// loaded when it is asked for first.
QFont ToQt(const Font& font);

/// The carried type's widths and heights.
class TypeMeasure : public common::TextMeasure {
 public:
  double Advance(std::string_view text, const Font& font) const override;
  double Height(const Font& font) const override;
  double Spacing(const Font& font) const override;
};

}  // namespace desktop::qt
