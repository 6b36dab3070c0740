// Waits inside waits.
#pragma once

namespace desktop::common {

/// A rest of one wait in the desktop's event loop.
class Rest {
 public:
  virtual ~Rest() = default;
  /// Runs the events that arrive, until the moment of the wait has come or the rest is ended.
  virtual void Run() = 0;
  /// Has Run return as soon as the event that is being handled is over. May be called at any time.
  virtual void End() = 0;
};

/// Handlers wait, and handlers that run meanwhile wait inside them: an inner wait is over before an outer one can
/// go on.
class Waits {
 public:
  /// Runs `rest` as the innermost one. However it is left, the one around it is the innermost again.
  void Run(Rest& rest);

  /// Something has happened. The innermost wait looks whether it still has to wait.
  void LookUp();

  /// Rests that are open now, one inside the other.
  int Depth() const { return depth_; }

 private:
  Rest* innermost_ = nullptr;
  int depth_ = 0;
};

}  // namespace desktop::common
