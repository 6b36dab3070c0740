#include "desktop/common/chance.h"

#include <chrono>

namespace desktop::common {

void Chance::Randomize() {
  std::random_device entropy;
  const auto ticks = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  Seed(ticks ^ (static_cast<std::uint64_t>(entropy()) << 32) ^ entropy());
}

}  // namespace desktop::common
