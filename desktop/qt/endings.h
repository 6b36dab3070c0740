// Whatever else ends a run: signals, the session's end, a window system that has gone.
#pragma once

#include <QObject>
#include <functional>

namespace desktop::qt {

/// Calls `end` for each of them, from wherever the program is: in a wait, under a menu, behind a question. `end` does
/// not return in the program; a signal that it ignores stays ignored. There is one of these at a time.
class Endings : public QObject {
 public:
  explicit Endings(std::function<void()> end);
  ~Endings() override;

 protected:
  /// The session's end, and the platform's own Quit, which an open question would otherwise forbid.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void CatchSignals();

  std::function<void()> end_;
};

}  // namespace desktop::qt
