// Whole turns a second of the rules, on the simulated desktop, by the money the player holds.
// Prints one line a measurement: the pounds held, then turns a second.
#include <chrono>
#include <cstdint>
#include <cstdio>

#include "tests/simulated/play.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int64_t kPounds[] = {10, 1'000'000, 1'000'000'000'000'000};
constexpr int kRounds = 9;
constexpr int kTurns = 400;

/// One bet of the last £10 note on each turn's own square, thrown and settled.
double TurnsPerSecond(std::int64_t pounds) {
  simulated::Store store;
  simulated::Play play(store);
  if (!play.StartAtTable()) return 0;
  const auto start = Clock::now();
  for (int turn = 0; turn < kTurns; ++turn) {
    play.money().MoneyCount = {pounds / 10, 0, 0};
    play.desktop.answers = {true};
    play.DealThrow(turn % 6, (turn / 2) % 6, (turn / 3) % 6);
    if (!play.Bet(0, turn % 6) || !play.ThrowCup()) return 0;
  }
  return kTurns / std::chrono::duration<double>(Clock::now() - start).count();
}

}  // namespace

int main() {
  for (int round = 0; round < kRounds; ++round)
    for (const auto pounds : kPounds)
      std::printf("%lld %.1f\n", static_cast<long long>(pounds), TurnsPerSecond(pounds));
  return 0;
}
