// Where a text stands in its box.
#include "desktop/common/text_box.h"

#include <gtest/gtest.h>

#include "tests/common/bench_form.h"

namespace {

using namespace desktop::common;
using desktop::Align;
using desktop::Kind;

std::string Words(const std::vector<TextLine>& lines) {
  std::string words;
  for (const TextLine& line : lines) {
    char place[64];
    std::snprintf(place, sizeof place, "%g,%g ", line.left, line.top);
    words += place + line.text + "|";
  }
  return words;
}

const bench::Type kType;

TEST(TextBox, ATextIsAlignedBrokenAtBlanksAndGrowsOutOfTheBox) {
  const std::tuple<const char*, Align, const char*> rows[] = {
      {"abc", Align::Left, "100,50 abc|"},
      {"abc", Align::Right, "150,50 abc|"},
      {"abc", Align::Centre, "125,50 abc|"},
      {"a\r\n\r\nb", Align::Left, "100,50 a|100,74 |100,98 b|"},
      {"one two three", Align::Right, "110,50 one two|130,74 three|"},
      {"one twotwotwotwo", Align::Left, "100,50 one|100,74 twotwotwotwo|"},
      {"a b c d e f g h", Align::Centre, "105,50 a b c d|105,74 e f g h|"},
      {"£10000000000", Align::Right, "50,50 £10000000000|"},
      {"0123456789", Align::Left, "100,50 0123456789|"},
      {"0123456789", Align::Centre, "90,50 0123456789|"}};
  for (const auto& [caption, alignment, lines] : rows) {
    desktop::Element label = bench::Laid(Kind::Label, 100, 50, 80, 30, caption);
    label.Alignment = alignment;
    EXPECT_EQ(Words(LinesOf(label, kType)), lines);
  }
}

TEST(TextBox, ACaptionStandsInTheMiddleWhateverEmptyLinesAreAroundIt) {
  const Rect box{0, 0, 100, 60};
  EXPECT_EQ(Words(LinesInMiddle("\r\nPlay\r\n", {}, box, kType)), "30,20 Play|");
  EXPECT_EQ(Words(LinesInMiddle("a\r\nb", {}, box, kType)), "45,8 a|45,32 b|");
  EXPECT_EQ(Words(LinesInMiddle("\r\n", {}, box, kType)), "");
}

TEST(TextBox, InkReachesOutOfTheBoxWithTheTextAndItsLean) {
  desktop::Element label = bench::Laid(Kind::Label, 100, 50, 80, 10, "0123456789");
  EXPECT_EQ(PaintedArea(label, kType), (Rect{95, 50, 110, 20}));
  label.Caption = "ab";
  EXPECT_EQ(PaintedArea(label, kType), (Rect{95, 50, 85, 20}));
  label.Caption.clear();
  EXPECT_EQ(PaintedArea(label, kType), (Rect{100, 50, 80, 10}));
  label.Kind = Kind::Image;
  label.Caption = "no text of its own";
  EXPECT_EQ(PaintedArea(label, kType), (Rect{100, 50, 80, 10}));
}

}  // namespace
