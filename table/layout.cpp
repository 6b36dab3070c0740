// The table form as it is laid out, before its load fills it in.
#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "desktop/building_blocks.h"
#include "desktop/units.h"
#include "game/frmGame.h"
#include "game/texts.h"
#include "table/places.h"

namespace thistle {

namespace {

using desktop::Align;
using desktop::Element;
using desktop::Kind;
using desktop::Laid;
using desktop::LaidImage;
using desktop::LaidLabel;

/// An image that has no picture yet, hidden and dead.
Element Empty(std::string_view name, int index, const desktop::Place& place) {
  Element image = Laid(Kind::Image, name, index, place);
  image.Visible = false;
  image.Enabled = false;
  return image;
}

}  // namespace

void frmGame::LayOutTable() {
  Clear();
  Width = places::kTable.Width / desktop::kTwipsPerPixel;
  Height = places::kTable.Height / desktop::kTwipsPerPixel;
  BackColor = colours::kTable;
  AccessibleName = texts::kTable;

  Shape1 = Laid(Kind::Shape, "Shape1", 0, places::kShape1);
  Shape1.BackColor = colours::kCloth;
  Add(Shape1);

  for (int i = 0; i < kDice; ++i) {
    Dice[i] = LaidImage("Dice", i, places::kDice[i], pictures::Anidice[0]);
    Dice[i].Enabled = false;
  }
  for (const int i : {0, 2, 1}) Add(Dice[i]);

  CupThrow = LaidImage("CupThrow", 0, places::kCupThrow, pictures::CupThrow);
  CupStanding = LaidImage("CupStanding", 0, places::kCupStanding, pictures::CupStanding);
  CupLeft = LaidImage("CupLeft", 0, places::kCupLeft, pictures::CupLeft);
  CupRight = LaidImage("CupRight", 0, places::kCupRight, pictures::CupRight);
  CupCentre = LaidImage("CupCentre", 0, places::kCupCentre, pictures::CupCentre);
  for (Element* cup : {&CupThrow, &CupStanding, &CupLeft, &CupRight, &CupCentre}) Add(*cup);

  for (int s = 0; s < kSquares; ++s) Add(Image1[s] = LaidImage("Image1", s, places::kImage1.At(s), pictures::Mat[s]));
  for (int s = 0; s < kSquares; ++s) {
    Label1[s] = LaidLabel("Label1", s, places::kLabel1.At(s), Align::Centre);
    Label1[s].BackColor = colours::kMat;
    Label1[s].SaidByStop = true;
    Add(Label1[s]);
  }
  for (const int i : {1, 2, 3, 4, 0}) {
    Label2[i] = LaidLabel("Label2", i, places::kLabel2[i], i == 0 ? Align::Centre : Align::Left, texts::kLabel2[i]);
    Label2[i].Font.underline = i == 0;
    Label2[i].SaidByStop = true;
    Add(Label2[i]);
  }
  for (int i = 0; i <= kDenominations; ++i) {
    Label3[i] = LaidLabel("Label3", i, places::kLabel3[i], Align::Right);
    Label3[i].SaidByStop = true;
    Add(Label3[i]);
  }

  for (int n = 0; n < kPieces; ++n) {
    const auto& pile = places::kMoney[Denomination(n)];
    Add(Money[n] = Empty("Money", n, pile.At(n % kPiecesOfAKind)));
  }
  for (int i = 0; i < 2; ++i) {
    Instruction[i] = LaidLabel("Instruction", i, places::kInstruction[i], Align::Centre, texts::kInstruction[i]);
    Instruction[i].BackColor = colours::kInstruction;
    Add(Instruction[i]);
  }
  for (int p = 0; p < kPayouts; ++p) Add(Payout[p] = Empty("Payout", p, places::Payout(p)));

  Command1 = desktop::LaidButton("Command1", places::kCommand1, texts::kGetChange, colours::kWoodenButton);
  Command1.BackColor = colours::kCommand1;
  Add(Command1);

  PicturesToCome = {&pictures::TenPound, &pictures::FivePound, &pictures::OnePound};
  for (const auto& frame : pictures::Anidice) PicturesToCome.push_back(&frame);
}

}  // namespace thistle
