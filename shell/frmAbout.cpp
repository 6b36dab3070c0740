#include "shell/frmAbout.h"

#include <string>

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "desktop/building_blocks.h"
#include "desktop/units.h"
#include "game/identity.h"

namespace thistle {

namespace {

using desktop::Align;
using desktop::Place;

constexpr Place kForm{2265, 1680, 4950, 2730};
constexpr int kBorder = 3;  // pixels

constexpr Place kImage1{240, 240, 480, 480};
constexpr Place kTitle{960, 240, 3600, 480};
constexpr Place kVersion{1800, 960, 1680, 345};
constexpr Place kDescription{1080, 1440, 3360, 450};
constexpr Place kOK{3270, 2100, 1470, 390};

/// A line of the form as the rectangle that its pen covers: it runs along the pen's middle.
struct PenLine {
  Place Covered;
  desktop::Colour Colour;
};

constexpr PenLine kLines[] = {
    {{120, 1920, 4620, 30}, colours::kRuleDark},   // at 1935, 2 pixels wide
    {{120, 1950, 4620, 30}, colours::kRuleLight},  // at 1965
    {{0, 0, 4800, 45}, colours::kAboutBorder},     // at 15, 3 pixels wide
    {{0, 0, 45, 2610}, colours::kAboutBorder},     // at 15 from the left
    {{0, 2595, 4800, 45}, colours::kAboutBorder},  // at 2610
    {{4815, 0, 45, 2640}, colours::kAboutBorder},  // at 4830 from the left
};

}  // namespace

frmAbout::frmAbout(Module1& module1) : Form("frmAbout"), module1_(module1) {
  NormalLeft = desktop::Pixels(kForm.Left);
  NormalTop = desktop::Pixels(kForm.Top);
}

void frmAbout::LayOut() {
  Clear();
  Width = kForm.Width / desktop::kTwipsPerPixel;
  Height = kForm.Height / desktop::kTwipsPerPixel;
  Border = kBorder;
  BackColor = colours::kAbout;
  AccessibleName = "About";
  for (std::size_t i = 0; i < Lines.size(); ++i) {
    Lines[i] = desktop::Laid(desktop::Kind::Line, "Line", static_cast<int>(i), kLines[i].Covered);
    Lines[i].BackColor = kLines[i].Colour;
    Add(Lines[i]);
  }
  Add(Image1 = desktop::Laid(desktop::Kind::Image, "Image1", 0, kImage1));
  lblTitle = desktop::LaidLabel("lblTitle", 0, kTitle, Align::Left);
  lblTitle.Font = {21.75, true, true, false};
  lblTitle.ForeColor = colours::kTitle;
  Add(lblTitle);
  lblVersion = desktop::LaidLabel("lblVersion", 0, kVersion, Align::Left);
  lblVersion.Font = {14.25, false, false, false};
  Add(lblVersion);
  lblDescription = desktop::LaidLabel("lblDescription", 0, kDescription, Align::Left);
  lblDescription.Font = {15.75, true, false, false};
  Add(lblDescription);
  Add(cmdOK = desktop::LaidClosingButton("cmdOK", kOK, "OK", colours::kWoodenButton));
}

void frmAbout::Form_Load() {
  LayOut();
  lblVersion.Caption = "Version " + std::to_string(identity::kMajor) + "." + std::to_string(identity::kMinor) + "." +
                       std::to_string(identity::kRevision);
  lblTitle.Caption = identity::kTitle;
  lblDescription.Caption = "from " + std::string(identity::kCompany);
  module1_.PlaceForm(*this);
  cmdOK.SetPicture(pictures::Wood);
  Image1.SetPicture(pictures::ThistleLantern32);
  module1_.frmMain.Show(*this);
  module1_.desktop.SetFocus(*this, cmdOK);
}

void frmAbout::Click(desktop::Element& element) {
  if (&element == &cmdOK) cmdOK_Click();
}

void frmAbout::cmdOK_Click() { module1_.frmMain.Unload(*this); }

}  // namespace thistle
