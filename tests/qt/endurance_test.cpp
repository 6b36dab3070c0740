// A long sitting in fast motion: the memory in use stays where it was.
#include <malloc.h>

#include <cstdlib>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

/// Hours of play on the game's clock; ENDURANCE_HOURS asks for more.
double Hours() {
  const char* asked = std::getenv("ENDURANCE_HOURS");
  return asked ? std::atof(asked) : 0.25;
}

std::size_t BytesInUse() { return mallinfo2().uordblks; }

class Endurance : public AtTable {
 protected:
  void PlayFor(double hours) {
    const double end = desktop.Clock() + 3600 * hours;
    for (int turn = 0; desktop.Clock() < end; ++turn) {
      desktop.sounds.clear();
      if (turn % 8 == 0) Menu("About");  // and behind the table again at the next click
      const int square = turn % 6;
      frame.module1.MoneyCount = {13, 12, 10};  // luck must not end the sitting
      Press(table, {188, 300});
      Move(table, {30 + 104 * square, 180});
      Release(table, {30 + 104 * square, 180});
      ASSERT_FALSE(table.Label1[square].Caption.empty()) << "turn " << turn;
      Click(table, {45, 80});
    }
  }
};

TEST_F(Endurance, MemoryStaysFlat) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer keeps what has been freed";
#endif
  PlayFor(Hours() / 4);
  const std::size_t before = BytesInUse();
  PlayFor(Hours());
  // Room for what the toolkit caches; a hundred bytes a turn are more within the hours of a sitting.
  EXPECT_LT(BytesInUse(), before + 50'000);
}

}  // namespace
