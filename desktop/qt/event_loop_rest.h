// A rest in Qt's event loop.
#pragma once

#include <QEventLoop>
#include <QTimer>
#include <cmath>

#include "desktop/common/waits.h"

namespace desktop::qt {

/// Ends of itself after `seconds`, never early.
class EventLoopRest : public common::Rest {
 public:
  explicit EventLoopRest(double seconds) {
    const std::chrono::milliseconds whole(std::lround(std::ceil(seconds * 1000)));
    QTimer::singleShot(whole, Qt::PreciseTimer, &loop_, &QEventLoop::quit);
  }

  void Run() override { loop_.exec(); }
  void End() override { loop_.quit(); }

 private:
  QEventLoop loop_;
};

}  // namespace desktop::qt
