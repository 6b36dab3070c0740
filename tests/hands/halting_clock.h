// A clock that runs only while a line is waited for.
#pragma once

#include <mutex>
#include <optional>
#include <string>

#include "desktop/common/clock.h"
#include "tests/hands/told.h"

namespace hands {

/// Orders come from another thread than lines.
class HaltingClock {
 public:
  /// As fast as that, against any other.
  static constexpr double kHaste = 10;

  double Seconds() const {
    const std::lock_guard lock(mutex_);
    return Now();
  }

  /// Not at all where the line has come already.
  void RunUntil(const std::string& text) {
    const std::lock_guard lock(mutex_);
    until_ = text;
    if (!told_.Reaches(until_)) began_ = desktop::common::SteadySeconds();
  }

  /// Before anybody else can know of the line.
  void Hear(const std::string& line) {
    const std::lock_guard lock(mutex_);
    told_.Add(line);
    if (!began_ || !told_.Reaches(until_)) return;
    ran_ = Now();
    began_.reset();
  }

 private:
  double Now() const { return ran_ + (began_ ? kHaste * (desktop::common::SteadySeconds() - *began_) : 0); }

  mutable std::mutex mutex_;
  Told told_;
  std::string until_;
  double ran_ = 0;               ///< seconds, up to the last stop
  std::optional<double> began_;  ///< while it runs
};

}  // namespace hands
