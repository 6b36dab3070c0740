// Chance and pace: drawing the dice, showing a throw, and waiting.
#include <algorithm>
#include <cmath>

#include "Graphics/catalogue.h"
#include "game/frmGame.h"
#include "game/pace.h"

namespace thistle {

void frmGame::FixedDelay(double howlong) {
  const double end = module1_.desktop.Clock() + howlong;
  while (!Hurrying() && module1_.desktop.Clock() < end) module1_.desktop.RunEventsUntil(end);
}

void frmGame::Play(std::string_view sound) const {
  if (!Hurrying()) module1_.PlayResSound(sound);
}

void frmGame::RandomDice() {
  constexpr int kGroups = kDieFrames / kFramesOfGroup;
  for (int die = 0; die < kDice; ++die) {
    const float r = module1_.desktop.Random();
    // In double precision the product stays below 6 for every float below 1.
    DiceFrame[die] = static_cast<int>(std::floor(static_cast<double>(r) * kGroups)) * kFramesOfGroup;
    ShowDie(die);
  }
}

void frmGame::ShowDie(int die) {
  DiceSquare[die] = FaceSquare[DiceFrame[die] / kFramesOfGroup];
  Dice[die].SetPicture(pictures::Anidice[DiceFrame[die]]);
}

void frmGame::ThrowDice() {
  Throwing = true;
  RandomDice();
  const int LastTick = DrawSpins();
  ShakeCup();
  RollDice(LastTick);
  Throwing = false;
}

/// Takes the dice off the table and draws how far each will turn. Returns the tick on which the last
/// one stops.
int frmGame::DrawSpins() {
  int LastTick = 0;
  for (int die = 0; die < kDice; ++die) {
    Dice[die].Visible = false;
    const float r = module1_.desktop.Random();
    DiceSpin[die] = (static_cast<int>(std::floor(2.0 * r)) + 1) * kFramesOfGroup;
    LastTick = std::max(LastTick, die + DiceSpin[die]);
  }
  return LastTick;
}

void frmGame::ShakeCup() {
  constexpr int kSwings = 6;
  CupStanding.Visible = false;
  CupCentre.Visible = true;
  Play("shakedice");
  FixedDelay(pace::kCupLifted);
  CupCentre.Visible = false;
  for (int swing = 0; swing < kSwings; ++swing) {
    CupRight.Visible = true;
    FixedDelay(pace::kCupSwing);
    CupRight.Visible = false;
    CupLeft.Visible = true;
    FixedDelay(pace::kCupSwing);
    CupLeft.Visible = false;
  }
  CupThrow.Visible = true;
  FixedDelay(pace::kCupTipped);
  CupThrow.Visible = false;
  CupStanding.Visible = true;
  Play("RollDice");
}

void frmGame::RollDice(int LastTick) {
  for (int tick = 1; tick <= LastTick; ++tick) {
    for (int die = 0; die < kDice; ++die)
      if (tick >= die + 1 && tick <= die + DiceSpin[die]) TurnDie(die);
    if (tick == LastTick) Play("RollDiceEnd");
    FixedDelay(pace::kRollTick);
  }
}

void frmGame::TurnDie(int die) {
  // The middle die rolls the other way.
  const int step = die == 1 ? kDieFrames - 1 : 1;
  Dice[die].Visible = true;
  DiceFrame[die] = (DiceFrame[die] + step) % kDieFrames;
  ShowDie(die);
}

}  // namespace thistle
