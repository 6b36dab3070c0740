#include "game/settings.h"

#include <charconv>
#include <cmath>

namespace thistle::settings {

namespace {

std::optional<double> ParseNumber(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n\v\f");
  if (start == std::string_view::npos) return std::nullopt;
  text.remove_prefix(start);
  // from_chars knows no plus sign, and it must not be followed by another sign.
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::invalid_argument) return std::nullopt;
  // Beyond a double's range from_chars leaves the number alone. No run writes such a thing.
  if (error == std::errc::result_out_of_range) return HUGE_VAL;
  return number;
}

}  // namespace

double LeadingNumber(std::string_view text) { return ParseNumber(text).value_or(0); }

std::int64_t PieceCount(std::string_view text) {
  constexpr double kMost = 0x1p53;
  const double number = LeadingNumber(text);
  // The comparison also turns away what is not a number.
  if (!(number >= 0 && number <= kMost)) return 0;
  return static_cast<std::int64_t>(number);
}

std::optional<float> Place(std::string_view text) {
  const auto number = ParseNumber(text);
  if (!number) return std::nullopt;
  const auto place = static_cast<float>(*number);
  return std::isfinite(place) ? std::optional(place) : std::nullopt;
}

std::optional<bool> Flag(std::string_view text) {
  if (text == kTrue) return true;
  if (text == kFalse) return false;
  return std::nullopt;
}

}  // namespace thistle::settings
