#include "desktop/common/scale.h"

#include <algorithm>
#include <cmath>

namespace desktop::common {

namespace {

int Nearest(double value) { return static_cast<int>(std::floor(value + 0.5)); }

}  // namespace

int Scale::Device(double length) const { return Nearest(length * ratio_); }

Rect Scale::Device(const Element& element) const {
  return {Device(element.Left), Device(element.Top), Device(element.Width), Device(element.Height)};
}

Rect Scale::Device(const Rect& layout) const {
  return Rect::Between(Device(layout.left), Device(layout.top), Device(layout.Right()), Device(layout.Bottom()));
}

Rect Scale::Outward(const Rect& layout) const {
  const auto down = [this](int length) { return static_cast<int>(std::floor(length * ratio_)); };
  const auto up = [this](int length) { return static_cast<int>(std::ceil(length * ratio_)); };
  const Rect touched = Rect::Between(down(layout.left), down(layout.top), up(layout.Right()), up(layout.Bottom()));
  // Place and size are rounded apart, which may take an edge one pixel further.
  return ratio_ == std::floor(ratio_) ? touched : touched.Grown(1);
}

Rect Scale::Layout(const Rect& device) const {
  const auto down = [this](int length) { return static_cast<int>(std::floor(length / ratio_)); };
  const auto up = [this](int length) { return static_cast<int>(std::ceil(length / ratio_)); };
  return Rect::Between(down(device.left), down(device.top), up(device.Right()), up(device.Bottom()));
}

int Scale::Pixel(int device) const { return static_cast<int>(std::ceil((device + 0.5) / ratio_)) - 1; }

Size Scale::Device(const Picture& picture) const { return {Device(picture.width), Device(picture.height)}; }

int Scale::Line() const { return std::max(1, Nearest(ratio_)); }

Rect BoxOf(const Form& form) {
  const auto inReach = [](float place) { return Nearest(std::clamp(place, -32768.F, 32767.F)); };
  return {inReach(form.Left), inReach(form.Top), form.Width, form.Height};
}

Rect BoxOf(const Element& element) {
  return {Nearest(element.Left), Nearest(element.Top), Nearest(element.Width), Nearest(element.Height)};
}

Rect BoxOf(const Stop& stop) {
  return {Nearest(stop.Left), Nearest(stop.Top), Nearest(stop.Width), Nearest(stop.Height)};
}

}  // namespace desktop::common
