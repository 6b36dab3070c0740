#include "tests/simulated/play.h"

#include <algorithm>

namespace simulated {

using thistle::frmGame;

float GroupDraw(int group) { return (static_cast<float>(group) + 0.5F) / 6; }

float SpinDraw(int groups) { return groups == 1 ? 0.25F : 0.75F; }

bool Play::Do(const std::function<void()>& action) {
  if (ended) return false;
  try {
    action();
    desktop.afterEvent();
  } catch (const ProcessEnded&) {
    ended = true;
  }
  return !ended;
}

bool Play::StartAtTable() {
  return Start() && Do([this] {
           const auto& button = frame->Splash.PlayGame;
           desktop.ClickAt(button.Left + 10, button.Top + 10);
         });
}

void Play::DealThrow(int first, int second, int third) {
  constexpr int kGroups = 6;
  const int wanted[] = {first, second, third};
  for (int die = 0; die < thistle::kDice; ++die) {
    const auto at = std::ranges::find(frmGame::FaceSquare, wanted[die]);
    const auto group = static_cast<int>(at - frmGame::FaceSquare.begin());
    // Every die turns by one group, the middle one backwards.
    const int start = die == 1 ? group + 1 : group + kGroups - 1;
    desktop.chance.push_back(GroupDraw(start % kGroups));
  }
  for (int die = 0; die < thistle::kDice; ++die) desktop.chance.push_back(SpinDraw(1));
}

bool Play::Bet(int denomination, int square, float dx, float dy) {
  for (int n = thistle::kPiecesOfAKind * (denomination + 1) - 1; n >= thistle::kPiecesOfAKind * denomination; --n) {
    const auto& piece = table().Money[n];
    const bool home = piece.Top == table().HomeTop[n] && piece.Left == table().HomeLeft[n];
    if (!piece.Visible || !home) continue;
    const auto& ground = table().Image1[square];
    return Do([&] { desktop.Drag(piece.Left + 4, piece.Top + 4, ground.Left + dx, ground.Top + dy); });
  }
  return false;
}

bool Play::ThrowCup() {
  const auto& cup = table().CupStanding;
  return Do([&] { desktop.ClickAt(cup.Left + cup.Width / 2, cup.Top + cup.Height / 2); });
}

}  // namespace simulated
