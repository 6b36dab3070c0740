// Which handler of the table an event reaches.
#include "game/frmGame.h"

namespace thistle {

using desktop::IsOneOf;

bool frmGame::HoldsBack(const desktop::Element& element) const {
  // A step of an exchange shows and hides pieces by their count alone, and a throw in the middle of
  // one could find the money short. So nothing but the button itself reacts until it is over.
  return !exchanges_.empty() && (IsOneOf(Money, element) || &element == &CupStanding);
}

void frmGame::MouseDown(desktop::Element& element, int Button, float X, float Y) {
  if (IsOneOf(Money, element)) Money_MouseDown(element.Index, Button, X, Y);
}

void frmGame::MouseMove(desktop::Element& element, int Button, float X, float Y) {
  if (IsOneOf(Money, element)) Money_MouseMove(element.Index, Button, X, Y);
}

void frmGame::MouseUp(desktop::Element& element, int Button, float X, float Y) {
  if (IsOneOf(Money, element)) Money_MouseUp(element.Index, Button, X, Y);
}

void frmGame::MouseLost(desktop::Element& element) {
  if (IsOneOf(Money, element)) Money_MouseLost(element.Index);
}

void frmGame::Click(desktop::Element& element) {
  if (&element == &CupStanding) RunToItsEnd(&frmGame::CupStanding_Click);
  if (&element == &Command1) RunToItsEnd(&frmGame::Command1_Click);
}

}  // namespace thistle
