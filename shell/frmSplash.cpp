#include "shell/frmSplash.h"

#include <string>

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "desktop/building_blocks.h"
#include "game/identity.h"
#include "shell/frame_size.h"

namespace thistle {

namespace {

using desktop::Align;
using desktop::Element;
using desktop::LaidButton;
using desktop::LaidImage;
using desktop::Place;

constexpr Place kPanel{120, 0, 9225, 4455};
constexpr Place kImage1 = Place{120, 360, 1920, 1920}.In(kPanel);
constexpr Place kCompany = Place{2040, 360, 7020, 540}.In(kPanel);
constexpr Place kWarning = Place{2040, 1200, 7020, 675}.In(kPanel);
constexpr Place kProduct = Place{2040, 1920, 7020, 945}.In(kPanel);
constexpr Place kInstructions{120, 4680, 2250, 1215};
constexpr Place kOptions{2445, 4680, 2250, 1215};
constexpr Place kPlayGame{4770, 4680, 2250, 1215};
constexpr Place kExit{7095, 4680, 2250, 1215};

constexpr desktop::Font kButtonFont{15.75, true, false, false};

Element Title(std::string_view name, const Place& place, std::string_view caption, double points, bool italic) {
  Element label = desktop::LaidLabel(name, 0, place, Align::Centre, caption);
  label.Font = {points, true, italic, false};
  return label;
}

/// The word stands on the middle one of three lines.
std::string OnThreeLines(std::string_view word) { return "\r\n" + std::string(word) + "\r\n"; }

}  // namespace

void frmSplash::LayOut() {
  Clear();
  FillFrame(*this);
  AccessibleName = identity::kTitle;

  fraMainFrame = desktop::Laid(desktop::Kind::Panel, "fraMainFrame", 0, kPanel);
  fraMainFrame.BackColor = colours::kTable;
  Add(fraMainFrame);
  Add(Image1 = LaidImage("Image1", 0, kImage1, pictures::ThistleAndLantern128));
  Add(lblCompanyProduct = Title("lblCompanyProduct", kCompany, identity::kCompany, 24, false));
  Add(lblWarning = Title("lblWarning", kWarning, "presents", 24, true));
  Add(lblProductName = Title("lblProductName", kProduct, identity::kTitle, 42, true));
  lblProductName.ForeColor = colours::kTitle;

  Add(ExitButton = LaidButton("ExitButton", kExit, OnThreeLines("Exit"), colours::kWoodenButton));
  Add(cmdOptions = LaidButton("cmdOptions", kOptions, OnThreeLines("Options"), colours::kWoodenButton));
  Add(PlayGame = LaidButton("PlayGame", kPlayGame, OnThreeLines("Play Game"), colours::kWoodenButton));
  Add(Instructions = LaidButton("Instructions", kInstructions, OnThreeLines("Instructions"), colours::kWoodenButton));
  for (Element* button : Controls()) {
    button->Font = kButtonFont;
    button->SetPicture(pictures::Wood);
  }
}

void frmSplash::Form_Load() {
  LayOut();
  Left = NormalLeft;
  Top = NormalTop;
  module1_.frmMain.Show(*this);
  module1_.PlayResSound("rulebritannia");
  module1_.desktop.SetFocus(*this, PlayGame);
}

void frmSplash::Click(Element& element) {
  if (&element == &Instructions) Instructions_Click();
  if (&element == &cmdOptions) cmdOptions_Click();
  if (&element == &PlayGame) PlayGame_Click();
  if (&element == &ExitButton) ExitButton_Click();
}

void frmSplash::Instructions_Click() { module1_.frmMain.Open(ways_.frmHelp); }

void frmSplash::cmdOptions_Click() { module1_.frmMain.Open(ways_.frmOptions); }

void frmSplash::PlayGame_Click() {
  module1_.frmMain.Unload(*this);
  module1_.frmMain.Open(ways_.frmGame);
}

void frmSplash::ExitButton_Click() { module1_.frmMain.Close(); }

}  // namespace thistle
