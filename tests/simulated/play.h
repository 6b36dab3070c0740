// A run of the program on the simulated desktop, and a player's hands for it.
#pragma once

#include <array>
#include <memory>
#include <stdexcept>

#include "desktop/simulated/simulated_desktop.h"
#include "shell/frmMain.h"

namespace simulated {

using desktop::simulated::ProcessEnded;
using desktop::simulated::SimulatedDesktop;
using desktop::simulated::Store;

/// Faces to deal: the float that makes RandomDice start a die on a group, and the one that makes
/// ThrowDice turn it by one group or by two.
float GroupDraw(int group);
float SpinDraw(int groups);

/// A store as a run leaves it that ends with these counts in its piles.
Store Stashed(std::int64_t tens, std::int64_t fives, std::int64_t ones);

/// The counts that a run has left.
thistle::Counts StashOf(const Store& store);
constexpr std::int64_t Pounds(const thistle::Counts& counts) { return 10 * counts[0] + 5 * counts[1] + counts[2]; }

/// A point of the frame's client area, in pixels.
struct Spot {
  float x;
  float y;
};

/// A spot inside a square of the mat, reckoned from its top left corner.
constexpr Spot OnSquare(int square, float dx = 20, float dy = 20) {
  return {6 + 104 * static_cast<float>(square) + dx, 156 + dy};
}

/// Nothing is there: between two squares of the mat.
inline constexpr Spot kGap{107, 200};

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
  /// Where a piece can be gripped: on the strip that the pieces to its right leave free.
  Spot Grip(int piece) { return {table().Money[piece].Left + 4, table().Money[piece].Top + 4}; }
  bool Drag(int piece, Spot to);
  bool Press(int piece);
  /// The pointer comes to rest there: its last move covers no distance.
  bool Move(Spot to);
  /// Moves there and lets go.
  bool Release(Spot at);
  bool IsHome(int piece) {
    return table().Money[piece].Top == table().HomeTop[piece] && table().Money[piece].Left == table().HomeLeft[piece];
  }
  /// Clicks "Get Change"; comes back when the exchange is over.
  bool ClickChange();
  /// Clicks the cup; comes back when the next turn is open or the process has ended.
  bool ThrowCup();

  thistle::frmGame& table() { return frame->Game; }
  thistle::Module1& money() { return frame->module1; }

  SimulatedDesktop desktop;
  std::unique_ptr<thistle::frmMain> frame;
  bool ended = false;
};

/// What AtTable needs before its run begins.
struct OwnStore {
  Store store;
};

/// A run that has come to its first turn.
class AtTable : public OwnStore, public Play {
 public:
  /// With the stake of a fresh game.
  AtTable() : Play(store) { Begin(); }
  /// With money of an earlier game.
  explicit AtTable(std::array<std::int64_t, 3> counts)
      : OwnStore{Stashed(counts[0], counts[1], counts[2])}, Play(store) {
    desktop.answers = {true};
    Begin();
  }

 private:
  void Begin() {
    if (!StartAtTable()) throw std::logic_error("the run ended before its first turn");
  }
};

}  // namespace simulated
