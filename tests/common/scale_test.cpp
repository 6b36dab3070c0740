// Layout pixels and device pixels.
#include "desktop/common/scale.h"

#include <gtest/gtest.h>

#include "tests/common/bench_form.h"

namespace {

using namespace desktop::common;

constexpr double kRatios[] = {0.5, 0.75, 0.9, 1, 1.1, 1.25, 1.3, 1.5, 1.75, 2, 2.4, 3};

TEST(Scale, RoundsToTheNearestDevicePixel) {
  EXPECT_EQ(Scale(1.25).Device(6), 8);
  EXPECT_EQ(Scale(1.5).Device(-1), -1);
  EXPECT_EQ(Scale(1.25).Device(bench::Laid(desktop::Kind::Image, 6, 156, 59, 31)), (Rect{8, 195, 74, 39}));
  EXPECT_EQ(Scale(1.5).Device(Rect{1, 1, 1, 1}), (Rect{2, 2, 1, 1}));
  EXPECT_EQ(Scale(1.5).Device(desktop::Picture{"", 59, 31}), (Size{89, 47}));
  for (const auto& [ratio, line] : {std::pair{0.5, 1}, {1.0, 1}, {1.25, 1}, {1.5, 2}, {2.0, 2}, {3.0, 3}})
    EXPECT_EQ(Scale(ratio).Line(), line) << ratio;
}

TEST(Scale, EachDevicePixelBelongsToWhatIsPaintedOnIt) {
  for (const double ratio : kRatios)
    for (int pixel = 0; pixel < 1300; ++pixel) {
      const Scale scale(ratio);
      const int layout = scale.Pixel(pixel);
      EXPECT_LE(scale.Device(layout), pixel) << ratio;
      EXPECT_GT(scale.Device(layout + 1), pixel) << ratio;
    }
}

TEST(Scale, WhatIsDrawnAgainCoversAllThatWasDrawn) {
  for (const double ratio : kRatios)
    for (int left = -40; left < 650; ++left) {
      const Scale scale(ratio);
      const auto element = bench::Laid(desktop::Kind::Image, static_cast<float>(left), 0, 59, 31);
      const Rect damaged = scale.Outward(BoxOf(element));
      EXPECT_EQ(damaged.United(scale.Device(element)), damaged) << ratio << " " << left;
      const Rect again = scale.Outward(scale.Layout(damaged));
      EXPECT_EQ(again.United(damaged), again) << "by way of the layout";
    }
}

TEST(Scale, APictureIsShownFromTheFileThatFitsOrElseReducedFromTheLargest) {
  const auto all = [](double) { return true; };
  const auto none = [](double) { return false; };
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0})
    EXPECT_EQ(CarriedScale(92, Scale(ratio).Device(92), all), ratio);
  EXPECT_EQ(CarriedScale(92, 115, none), 2);
  EXPECT_EQ(CarriedScale(92, 120, all), 2) << "between two";
  EXPECT_EQ(CarriedScale(92, 276, all), 2);
  EXPECT_EQ(CarriedScale(92, 46, all), 1);
  EXPECT_EQ(CarriedScale(400, 89, all), 1) << "stretched to a button";
}

TEST(Scale, APictureThatIsAHairTooLargeIsCutAndNotScaled) {
  EXPECT_TRUE(IsCut({115, 132}, {115, 131}));
  for (const Size shown : {Size{115, 132}, {115, 130}, {116, 131}, {92, 105}}) EXPECT_FALSE(IsCut({115, 132}, shown));
}

}  // namespace
