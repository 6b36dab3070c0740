// What the keyboard can stand on beside the controls of a form, what keys do there, and what a screen reader says of
// it.
#pragma once

#include <string>
#include <vector>

#include "desktop/element.h"
#include "desktop/key.h"

namespace desktop {

/// What a hand does on a form: it presses the left button at one point, moves to another and lets go. Places are pixels
/// from inside the form's border.
struct Hand {
  float FromX, FromY;
  float ToX, ToY;
};

/// Something that can be done without a mouse. A hand does it, through the same handlers as a player's own.
struct Deed {
  std::vector<Key> Keys;  ///< any of them
  std::string Name;       ///< of the action that a screen reader offers
  desktop::Hand Hand;
};

inline constexpr int kNoStop = -1;

/// The stops that the arrow keys lead to, by their number, or kNoStop.
struct Neighbours {
  int Left = kNoStop;
  int Up = kNoStop;
  int Right = kNoStop;
  int Down = kNoStop;
};

/// Places are pixels from inside the form's border.
struct Stop {
  std::string Name;
  std::string Value;  ///< what there is to say of it now
  float Left = 0;
  float Top = 0;
  float Width = 0;
  float Height = 0;
  bool Visible = true;
  bool OnlyRead = false;             ///< nothing can ever be done there
  const Element* Control = nullptr;  ///< the control that it is; that one knows by itself what keys do on it
  desktop::Neighbours Neighbours;
  std::vector<Deed> Deeds;  ///< what can be done there now

  /// The keyboard passes over the others.
  bool CanBeUsed() const { return Control ? Control->Reacts() : !Deeds.empty(); }
};

}  // namespace desktop
