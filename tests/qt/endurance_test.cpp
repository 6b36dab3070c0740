// A long sitting in fast motion: the memory in use stays where it was.
#include <malloc.h>

#include "tests/qt/desk.h"

namespace {

using namespace on_screen;

using Endurance = AtTable;

TEST_F(Endurance, MemoryStaysFlat) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer keeps what has been freed";
#endif
  const auto playFor = [&](double hours) {
    const double end = desktop.Clock() + 3600 * hours;
    for (int turn = 0; desktop.Clock() < end; ++turn) {
      Menu("About");
      Key(Qt::Key_Return);
      const int square = turn % 6;
      frame.module1.MoneyCount = {13, 12, 10};  // luck must not end the sitting
      Carry(table, {188, 300}, {30 + 104 * square, 180});
      ASSERT_FALSE(table.Label1[square].Caption.empty()) << "turn " << turn;
      Click(table, {45, 80});
    }
  };
  playFor(0.06);
  const std::size_t before = mallinfo2().uordblks;
  // Hours on the game's clock.
  playFor(qEnvironmentVariableIsSet("ENDURANCE_HOURS") ? qgetenv("ENDURANCE_HOURS").toDouble() : 0.25);
  // Room for what the toolkit caches; a hundred bytes a turn are more within the hours of a sitting.
  EXPECT_LT(mallinfo2().uordblks, before + 50'000);
}

}  // namespace
