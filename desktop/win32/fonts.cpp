#include "desktop/win32/fonts.h"

#include <algorithm>
#include <string>
#include <utility>

#include "desktop/win32/resource.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

constexpr auto kFamily = L"Liberation Serif";
// The grid on which the letters were drawn: in this height they have their true widths.
constexpr int kDrawnHeight = 2048;

void LoadCarried(const Font& font) {
  static constexpr const wchar_t* kStyles[] = {L"Regular", L"Bold", L"Italic", L"BoldItalic"};
  static bool loaded[] = {false, false, false, false};
  const int style = (font.bold ? 1 : 0) + (font.italic ? 2 : 0);
  if (std::exchange(loaded[style], true)) return;
  const auto file = Resource(kStyles[style], L"TYPE");
  DWORD faces = 0;
  // It is only read.
  AddFontMemResourceEx(const_cast<std::byte*>(file.data()), static_cast<DWORD>(file.size()), nullptr, &faces);
}

}  // namespace

Fonts::Fonts(common::Scale scale) : scale_(scale), ground_(MakeDib({1, 1})), context_(CreateCompatibleDC(nullptr)) {
  SelectObject(context_.get(), ground_.bitmap.get());
}

HFONT Fonts::OfHeight(int pixels, const Font& font) const {
  Type& type = types_[{pixels, font.bold, font.italic, font.underline}];
  if (type) return type.get();
  LoadCarried(font);
  LOGFONTW wanted{};
  wanted.lfHeight = -pixels;
  wanted.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
  wanted.lfItalic = font.italic;
  wanted.lfUnderline = font.underline;
  wanted.lfCharSet = DEFAULT_CHARSET;
  wanted.lfOutPrecision = OUT_TT_ONLY_PRECIS;
  wanted.lfPitchAndFamily = VARIABLE_PITCH | FF_ROMAN;
  std::wstring_view(kFamily).copy(wanted.lfFaceName, LF_FACESIZE - 1);
  type.reset(CreateFontIndirectW(&wanted));
  return type.get();
}

HFONT Fonts::At(const Font& font) const { return OfHeight(scale_.Device(font.PixelSize()), font); }

int Fonts::Extent(std::wstring_view text, HFONT type) const {
  SelectObject(context_.get(), type);
  SIZE size{};
  GetTextExtentPoint32W(context_.get(), text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

double Fonts::Advance(std::string_view text, const Font& font) const {
  const std::wstring wide = Wide(text);
  const double drawn = Extent(wide, OfHeight(kDrawnHeight, font)) * font.PixelSize() / kDrawnHeight;
  return std::min(drawn, Extent(wide, At(font)) / scale_.ratio());
}

TEXTMETRICW Fonts::MetricsOf(const Font& font) const {
  SelectObject(context_.get(), At(font));
  TEXTMETRICW metrics{};
  GetTextMetricsW(context_.get(), &metrics);
  return metrics;
}

double Fonts::Height(const Font& font) const { return MetricsOf(font).tmHeight / scale_.ratio(); }

double Fonts::Spacing(const Font& font) const {
  const TEXTMETRICW metrics = MetricsOf(font);
  return (metrics.tmHeight + metrics.tmExternalLeading) / scale_.ratio();
}

double Fonts::Ascent(const Font& font) const { return MetricsOf(font).tmAscent / scale_.ratio(); }

}  // namespace desktop::win32
