// A document in lines, in a type of which every letter is ten pixels wide.
#include "desktop/common/document_layout.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace desktop::common {

namespace {

using Strings = std::vector<std::string>;
using Runs = std::vector<Run>;  // a test class has a Run of its own

class EvenType : public DocumentMeasure {
 public:
  double Advance(std::string_view text, const Font&) const override {
    return 10.0 * static_cast<double>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
  }
  double Height(const Font& font) const override { return font.points; }
  double Spacing(const Font& font) const override { return font.points + 2; }
  double Ascent(const Font& font) const override { return font.points - 4; }
};

const TextStyle kSmall{{12, false, false, false}, {}};
const TextStyle kLarge{{20, true, false, false}, {}};
const Picture kPicture{"Picture", 25, 40};

Run Words(std::string_view text, const TextStyle& style = kSmall) { return {std::string(text), &style, nullptr, {}}; }
Run Shown() { return {{}, nullptr, &kPicture, "heart"}; }

class DocumentLayoutTest : public testing::Test {
 protected:
  /// A document of one paragraph in lines 100 pixels wide.
  DocumentLayout LaidOut(Runs runs, Align alignment = Align::Left) {
    document_ = {40, {{alignment, std::move(runs)}}};
    return {document_, 100, type_};
  }

  /// What stands in a line, piece by piece.
  static Strings Texts(const DocumentLayout& layout, std::size_t line) {
    Strings texts;
    for (const Piece& piece : layout.lines().at(line).pieces) texts.push_back(layout.Words(piece.words));
    return texts;
  }

  EvenType type_;
  Document document_;
};

TEST_F(DocumentLayoutTest, BreaksAtBlanksAndNowhereElse) {
  const auto layout = LaidOut({Words("One two   three fourteenletters "), Words("a"), Words("b.", kLarge)});
  ASSERT_EQ(layout.lines().size(), 4U);
  EXPECT_EQ(Texts(layout, 0), Strings{"One two"});
  EXPECT_EQ(Texts(layout, 1), Strings{"three"}) << "what is too long gets a line of its own";
  EXPECT_EQ(Texts(layout, 2), Strings{"fourteenletters"});
  EXPECT_EQ(Texts(layout, 3), (Strings{"a", "b."})) << "runs are no place to break";
  EXPECT_EQ(layout.lines()[0].words, (Stretch{0, 10}));
  // A line that is just full, blanks aside.
  EXPECT_EQ(LaidOut({Words("One 234567  ")}).lines().size(), 1U);
}

TEST_F(DocumentLayoutTest, TabsGoToTheNextMultiple) {
  const auto layout = LaidOut({Words("\tab\tcd\t"), Shown()});
  const auto& pieces = layout.lines()[0].pieces;
  ASSERT_EQ(pieces.size(), 2U);
  EXPECT_EQ(pieces[0].left, 40);
  EXPECT_EQ(pieces[1].left, 80);
  EXPECT_EQ(layout.lines()[1].pieces[0].left, 0) << "a picture that does not fit goes into the next line";
}

TEST_F(DocumentLayoutTest, LinesStandOnTheirBaseLinesBelowEachOther) {
  const auto layout = LaidOut({Words("ab", kSmall), Words("c", kLarge), Shown(), Words(" longword ab")});
  ASSERT_EQ(layout.lines().size(), 3U);
  EXPECT_EQ(layout.lines()[0].ascent, 40) << "the picture's";
  EXPECT_EQ(layout.lines()[0].height, 40 + 6) << "and what the larger type has below";
  EXPECT_EQ(layout.lines()[1].top, 46);
  EXPECT_EQ(layout.Height(), 46 + 14 + 14);
  EXPECT_EQ(LaidOut({Words("", kLarge)}).Height(), 22) << "an empty line is as high as its style";
}

TEST_F(DocumentLayoutTest, LinesAreAlignedWithoutTheBlanksAtTheirEnds) {
  EXPECT_EQ(LaidOut({Words("abcd  ")}, Align::Centre).lines()[0].pieces[0].left, 30);
  EXPECT_EQ(LaidOut({Words("abcd  ")}, Align::Right).lines()[0].pieces[0].left, 60);
}

TEST_F(DocumentLayoutTest, APointIsBetweenTwoLetters) {
  const auto layout = LaidOut({Words("a\xC2\xA3"), Shown(), Words("\tb")});
  const auto at = [&](double x) { return layout.OffsetAt(x, 5); };
  EXPECT_EQ(at(-3), 0U);
  EXPECT_EQ(at(4), 0U);
  EXPECT_EQ(at(6), 1U);
  EXPECT_EQ(at(16), 3U) << "never amid the bytes of a letter";
  EXPECT_EQ(at(30), 3U) << "a picture is one letter";
  EXPECT_EQ(at(40), 8U);
  EXPECT_EQ(at(79), 9U) << "left of the first letter after a tab";
  EXPECT_EQ(at(500), 10U);
  EXPECT_EQ(layout.OffsetAt(0, 500), 10U);
}

TEST_F(DocumentLayoutTest, MarksWhatIsSelectedAndGivesItsWords) {
  document_ = {40, {{Align::Left, {Words("ab cd efghij"), Shown()}}, {Align::Left, {Words("kl")}}}};
  const DocumentLayout layout{document_, 100, type_};
  EXPECT_EQ(layout.words(), "ab cd efghijheart\nkl");
  EXPECT_EQ(layout.Marked({1, 5}), (std::vector<Rect>{{10, 0, 40, 14}}));
  EXPECT_EQ(layout.Marked({4, 19}), (std::vector<Rect>{{40, 0, 10, 14}, {0, 14, 85, 46}, {0, 60, 10, 14}}));
  EXPECT_TRUE(layout.Marked({5, 5}).empty());
  EXPECT_EQ(layout.Words({6, 19}), "efghijheart\nk");
}

}  // namespace

}  // namespace desktop::common
