// What keys mean on keyboards of other countries.
#include "desktop/win32/input.h"

#include <gtest/gtest.h>

namespace desktop::win32 {

namespace {

TEST(Input, APlusIsOneWhereverTheKeyboardHasIt) {
  EXPECT_EQ(KeyOf('1', L'1'), Key::One);
  EXPECT_EQ(KeyOf('6', L'-'), Key::Six) << "a digit that takes the shift key elsewhere";
  EXPECT_EQ(KeyOf('1', L'+'), Key::Plus);
  EXPECT_EQ(KeyOf(VK_ADD, L'+'), Key::Plus);
  EXPECT_EQ(KeyOf(VK_OEM_PLUS, L'='), Key::Plus);
  EXPECT_EQ(WrittenBy('A', 0x1E0000), L'a');
  EXPECT_EQ(WrittenBy(VK_UP, 0x1480000), 0);
}

}  // namespace

}  // namespace desktop::win32
