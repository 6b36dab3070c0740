// What must hold of every text that the settings store can hand out. Under libFuzzer this looks for
// texts that break it, guided by the code they reach; corpus_main.cpp runs the same over the corpus.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>

#include "game/settings.h"

namespace {

using namespace thistle::settings;

void Demand(bool holds, const char* what, std::string_view text) {
  if (holds) return;
  std::fprintf(stderr, "%s, of \"%.*s\"\n", what, static_cast<int>(text.size()), text.data());
  std::abort();
}

/// Reads a number by other means: the C library knows the same ones, and hexadecimal and spelled-out ones too.
double NumberOf(std::string text) {
  text = text.substr(0, text.find_first_of("xXiInN"));
  return std::strtod(text.c_str(), nullptr);
}

std::string Shortest(float number) {
  char text[64];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

void CheckText(std::string_view text) {
  const double number = LeadingNumber(text);
  const std::int64_t count = PieceCount(text);
  const auto place = Place(text);
  const auto flag = Flag(text);
  Demand(count >= 0 && count <= std::int64_t{1} << 53, "a count that no pile can hold", text);
  const double other = NumberOf(std::string(text));
  const bool beyond = std::isinf(other) && std::abs(number) >= std::numeric_limits<double>::max();
  Demand(number == other || beyond, "a number that the C library reads in another way", text);
  const bool countable = other >= 0 && other <= 0x1p53;
  Demand(count == (countable ? static_cast<std::int64_t>(other) : 0), "a count that is not the number cut off", text);
  Demand(!place || std::isfinite(*place), "a place that is nowhere", text);
  Demand(flag.has_value() == (text == "True" || text == "False"), "a flag from another word", text);

  // What a run stores it must read back as the same.
  Demand(PieceCount(std::to_string(count)) == count, "a count that does not come back", text);
  Demand(!place || Place(Shortest(*place)) == place, "a place that does not come back", text);
  Demand(!flag || Flag(*flag ? kTrue : kFalse) == flag, "a flag that does not come back", text);

  // Blanks before a number do not matter, nor anything behind it that cannot go on with it.
  for (const auto& changed :
       {" \t\r\n\v\f" + std::string(text), std::string(text) + "|1", std::string(text) + "zeal"}) {
    Demand(LeadingNumber(changed) == number, "another number", changed);
    Demand(PieceCount(changed) == count, "another count", changed);
    Demand(Place(changed) == place, "another place", changed);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CheckText({reinterpret_cast<const char*>(data), size});
  return 0;
}
