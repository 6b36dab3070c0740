#include "game/settings.h"

#include <cmath>
#include <locale>
#include <sstream>
#include <string>

namespace thistle::settings {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// How many characters at the beginning of `text` make a decimal number with an optional sign, fraction
/// and exponent. 0 where there is none.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  const auto skip = [&](std::string_view any) {
    if (at < text.size() && any.find(text[at]) != std::string_view::npos) ++at;
  };
  const auto digits = [&] {
    const std::size_t begin = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at - begin;
  };
  skip("+-");
  const std::size_t whole = digits();
  skip(".");
  if (digits() + whole == 0) return 0;
  const std::size_t mantissa = at;
  skip("eE");
  if (at == mantissa) return mantissa;
  skip("+-");
  return digits() > 0 ? at : mantissa;
}

std::optional<double> ParseNumber(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n\v\f");
  if (start == std::string_view::npos) return std::nullopt;
  text.remove_prefix(start);
  const std::size_t length = NumberLength(text);
  if (length == 0) return std::nullopt;
  // A point is a point whatever the user's language. from_chars would do, but some libraries lack it.
  std::istringstream stream{std::string(text.substr(0, length))};
  stream.imbue(std::locale::classic());
  double number = 0;
  stream >> number;
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
