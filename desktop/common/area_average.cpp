#include "desktop/common/area_average.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace desktop::common {

namespace {

constexpr int kParts = 4;  // bytes of a pixel

using Mean = std::array<double, kParts>;

/// How much of one pixel lies under another, along one side.
struct Share {
  int from;
  double part;
};

/// For each of `wanted` pixels in a row, what it covers of the `given` ones.
std::vector<std::vector<Share>> Shares(int given, int wanted) {
  std::vector<std::vector<Share>> all(static_cast<std::size_t>(wanted));
  const double step = static_cast<double>(given) / wanted;
  for (int at = 0; at < wanted; ++at) {
    const double begin = at * step;
    const double end = std::min<double>(begin + step, given);
    for (int from = static_cast<int>(begin); from < end; ++from)
      all[static_cast<std::size_t>(at)].push_back(
          {from, (std::min<double>(end, from + 1) - std::max<double>(begin, from)) / step});
  }
  return all;
}

void AddTo(Mean& mean, std::uint32_t value, double part) {
  for (int i = 0; i < kParts; ++i) mean[static_cast<std::size_t>(i)] += part * (value >> 8 * i & 0xFF);
}

std::uint32_t Rounded(const Mean& mean) {
  std::uint32_t value = 0;
  for (int i = 0; i < kParts; ++i)
    value |= static_cast<std::uint32_t>(std::lround(mean[static_cast<std::size_t>(i)])) << 8 * i;
  return value;
}

}  // namespace

Pixels Cut(const Pixels& picture, Size wanted) {
  Pixels result{wanted, {}};
  for (int row = 0; row < wanted.height; ++row) {
    const auto from = picture.values.begin() + row * picture.size.width;
    result.values.insert(result.values.end(), from, from + wanted.width);
  }
  return result;
}

Pixels AreaAveraged(const Pixels& picture, Size wanted) {
  const auto columns = Shares(picture.size.width, wanted.width);
  const auto rows = Shares(picture.size.height, wanted.height);
  Pixels result{wanted, {}};
  result.values.reserve(rows.size() * columns.size());
  for (const auto& row : rows)
    for (const auto& column : columns) {
      Mean mean{};
      for (const Share& y : row)
        for (const Share& x : column)
          AddTo(mean, picture.values[static_cast<std::size_t>(y.from * picture.size.width + x.from)], x.part * y.part);
      result.values.push_back(Rounded(mean));
    }
  return result;
}

}  // namespace desktop::common
