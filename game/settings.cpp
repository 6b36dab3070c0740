#include "game/settings.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
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

/// The same number with its digits as a whole one, so that there is no point whose look depends on the user's
/// language: "12.5e3" as "125e2".
std::string WithoutPoint(std::string_view number) {
  constexpr long kFar = 100000;  // no double has such an exponent
  const auto end = std::min(number.find_first_of("eE"), number.size());
  std::string plain(number.substr(0, end));
  long exponent = 0;
  for (std::size_t at = end + 1; at < number.size(); ++at)
    if (IsDigit(number[at])) exponent = std::min(10 * exponent + (number[at] - '0'), kFar);
  if (end + 1 < number.size() && number[end + 1] == '-') exponent = -exponent;
  if (const auto point = plain.find('.'); point != std::string::npos) {
    exponent -= static_cast<long>(plain.size() - point - 1);
    plain.erase(point, 1);
  }
  return plain + "e" + std::to_string(exponent);
}

std::optional<double> ParseNumber(std::string_view text) {
  const auto start = text.find_first_not_of(" \t\r\n\v\f");
  if (start == std::string_view::npos) return std::nullopt;
  text.remove_prefix(start);
  const std::size_t length = NumberLength(text);
  if (length == 0) return std::nullopt;
  // from_chars would do, but some libraries lack it.
  return std::strtod(WithoutPoint(text.substr(0, length)).c_str(), nullptr);
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
