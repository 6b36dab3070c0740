// A run of the program on the simulated desktop, and a player's hands for it.
#pragma once

#include <memory>

#include "shell/frmMain.h"
#include "tests/simulated/simulated_desktop.h"

namespace simulated {

/// Faces to deal: the float that makes RandomDice start a die on a group, and the one that makes
/// ThrowDice turn it by one group or by two.
float GroupDraw(int group);
float SpinDraw(int groups);

/// One run, from its start to the end of its process. The store outlives it.
class Play {
 public:
  explicit Play(Store& store) : desktop(store), frame(std::make_unique<thistle::frmMain>(desktop)) {}

  /// Runs `action` as the desktop would deliver an event. False once the process has ended.
  bool Do(const std::function<void()>& action);

  bool Start() {
    return Do([this] { thistle::Main(*frame); });
  }
  /// Starts and presses Play Game. Answers to the table's offer must stand in desktop.answers.
  bool StartAtTable();

  /// Deals what makes the next throw show these three squares of the mat.
  void DealThrow(int first, int second, int third);
  /// Drags the rightmost piece on show in a pile to a spot on a square. False where the pile is empty.
  bool Bet(int denomination, int square, float dx = 20, float dy = 20);
  /// Clicks the cup; comes back when the next turn is open or the process has ended.
  bool ThrowCup();

  thistle::frmGame& table() { return frame->Game; }
  thistle::Module1& money() { return frame->module1; }

  Desktop desktop;
  std::unique_ptr<thistle::frmMain> frame;
  bool ended = false;
};

}  // namespace simulated
