#include "tests/simulated/play.h"

#include <algorithm>

namespace simulated {

using thistle::frmGame;

float GroupDraw(int group) { return (static_cast<float>(group) + 0.5F) / 6; }

float SpinDraw(int groups) { return groups == 1 ? 0.25F : 0.75F; }

Store Stashed(std::int64_t tens, std::int64_t fives, std::int64_t ones) {
  const std::string at = "Thistle and Lantern/Settings/Stash";
  return {{at + "0", std::to_string(tens)}, {at + "1", std::to_string(fives)}, {at + "2", std::to_string(ones)}};
}

thistle::Counts StashOf(const Store& store) {
  thistle::Counts counts{};
  for (int d = 0; d < thistle::kDenominations; ++d)
    counts[d] = std::stoll(store.at("Thistle and Lantern/Settings/Stash" + std::to_string(d)));
  return counts;
}

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
    if (table().Money[n].Visible && IsHome(n)) return Drag(n, OnSquare(square, dx, dy));
  }
  return false;
}

bool Play::Drag(int piece, Spot to) {
  const Spot from = Grip(piece);
  return Do([&] { desktop.Drag(from.x, from.y, to.x, to.y); });
}

bool Play::Press(int piece) {
  const Spot from = Grip(piece);
  return Do([&] { desktop.Press(from.x, from.y); });
}

bool Play::Move(Spot to) {
  return Do([&] {
    desktop.Move(to.x, to.y);
    desktop.Move(to.x, to.y);
  });
}

bool Play::Release(Spot at) {
  return Do([&] {
    desktop.Move(at.x, at.y);
    desktop.Release(at.x, at.y);
  });
}

bool Play::ClickChange() {
  const auto& button = table().Command1;
  return Do([&] { desktop.ClickAt(button.Left + 5, button.Top + 5); });
}

bool Play::ThrowCup() {
  const auto& cup = table().CupStanding;
  return Do([&] { desktop.ClickAt(cup.Left + cup.Width / 2, cup.Top + cup.Height / 2); });
}

}  // namespace simulated
