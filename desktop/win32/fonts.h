// The carried type: Liberation Serif, so that every caption fits its box on every machine.
#pragma once

#include <windows.h>

#include <map>
#include <tuple>

#include "desktop/common/document_layout.h"
#include "desktop/common/scale.h"
#include "desktop/win32/dib.h"
#include "desktop/win32/handles.h"

namespace desktop::win32 {

/// The carried type on a screen of one scale. Hinted for the screen, type may be wider than it was drawn; here no text
/// counts as wider than that, and none is written wider, so that no caption outgrows its box on any screen.
class Fonts : public common::DocumentMeasure {
 public:
  explicit Fonts(common::Scale scale);

  /// A style's font file is loaded when it is asked for first.
  HFONT At(const Font& font) const;

  // --- common::DocumentMeasure
  double Advance(std::string_view text, const Font& font) const override;
  double Height(const Font& font) const override;
  double Spacing(const Font& font) const override;
  double Ascent(const Font& font) const override;

 private:
  using Key = std::tuple<int, bool, bool, bool>;

  HFONT OfHeight(int pixels, const Font& font) const;
  TEXTMETRICW MetricsOf(const Font& font) const;
  int Extent(std::wstring_view text, HFONT type) const;

  common::Scale scale_;
  Dib ground_;  ///< of the kind that is painted on: on another, type may have other widths
  Context context_;
  mutable std::map<Key, Type> types_;
};

}  // namespace desktop::win32
