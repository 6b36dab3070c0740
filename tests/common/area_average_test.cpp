// Pictures in other sizes.
#include "desktop/common/area_average.h"

#include <gtest/gtest.h>

namespace desktop::common {

namespace {

TEST(AreaAverageTest, EachPixelIsTheMeanOfWhatItCovers) {
  const Pixels picture{{4, 2}, {0xFF000000, 0xFF000004, 0x80808080, 0, 0xFF00000C, 0xFF000000, 0x80808080, 0}};
  EXPECT_EQ(AreaAveraged(picture, {4, 2}).values, picture.values);
  EXPECT_EQ(AreaAveraged(picture, {2, 1}).values, (std::vector<std::uint32_t>{0xFF000004, 0x40404040}));
  // Three columns of four: each covers one and a third.
  const Pixels row{{4, 1}, {0, 32, 60, 88}};
  EXPECT_EQ(AreaAveraged(row, {3, 1}).values, (std::vector<std::uint32_t>{8, 46, 81}));
  EXPECT_EQ(AreaAveraged({{1, 1}, {7}}, {3, 2}).values, std::vector<std::uint32_t>(6, 7));
}

TEST(Cut, KeepsTheUpperLeftPart) {
  const Pixels cut = Cut({{3, 2}, {1, 2, 3, 4, 5, 6}}, {2, 2});
  EXPECT_EQ(cut.size, (Size{2, 2}));
  EXPECT_EQ(cut.values, (std::vector<std::uint32_t>{1, 2, 4, 5}));
}

}  // namespace

}  // namespace desktop::common
