#include "shell/frmOptions.h"

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "desktop/building_blocks.h"
#include "shell/frame_size.h"

namespace thistle {

namespace {

using desktop::Align;
using desktop::Kind;
using desktop::Place;

constexpr Place kImage1[] = {{120, 240, 1920, 1920}, {7440, 240, 1920, 1920}};
constexpr Place kTitle{2520, 480, 4440, 840};
constexpr Place kOption1[] = {{3480, 2280, 255, 375}, {3480, 3120, 255, 375}};
constexpr Place kLabel1[] = {{4200, 2280, 1935, 495}, {4200, 3120, 1935, 375}};
constexpr Place kOK{3990, 4680, 1500, 390};

constexpr std::string_view kCaption[] = {"Sounds Off", "Sounds On"};
constexpr desktop::Colour kColour[] = {{0x000000}, colours::kRed};

}  // namespace

void frmOptions::LayOut() {
  Clear();
  FillFrame(*this);
  AccessibleName = "Options";
  for (int i = 0; i < 2; ++i) Add(Image1[i] = desktop::Laid(Kind::Image, "Image1", i, kImage1[i]));
  lblTitle = desktop::LaidLabel("lblTitle", 0, kTitle, Align::Centre, "Options");
  lblTitle.Font = {36, true, true, false};
  lblTitle.ForeColor = colours::kTitle;
  Add(lblTitle);
  for (int i = 0; i < 2; ++i) {
    Label1[i] = desktop::LaidLabel("Label1", i, kLabel1[i], Align::Left, kCaption[i]);
    Label1[i].Font = {18, true, true, false};
    Label1[i].ForeColor = kColour[i];
    Add(Label1[i]);
    Option1[i] = desktop::Laid(Kind::OptionButton, "Option1", i, kOption1[i]);
    Option1[i].BackColor = colours::kTable;
    Option1[i].AccessibleName = kCaption[i];
    Add(Option1[i]);
  }
  Add(cmdOK = desktop::LaidClosingButton("cmdOK", kOK, "OK", colours::kWoodenButton));
}

void frmOptions::Form_Load() {
  LayOut();
  module1_.PlaceForm(*this);
  Option1_Click(module1_.SoundOn ? 1 : 0);
  cmdOK.SetPicture(pictures::Wood);
  for (auto& image : Image1) image.SetPicture(pictures::ThistleAndLantern128);
  module1_.frmMain.Show(*this);
  module1_.desktop.SetFocus(*this, cmdOK);
}

void frmOptions::Click(desktop::Element& element) {
  if (desktop::IsOneOf(Option1, element)) Option1_Click(element.Index);
  if (&element == &cmdOK) cmdOK_Click();
}

void frmOptions::Option1_Click(int Index) {
  Option1[0].Value = Index == 0;
  Option1[1].Value = Index == 1;
  module1_.SoundOn = Index == 1;
}

void frmOptions::cmdOK_Click() { module1_.frmMain.Unload(*this); }

}  // namespace thistle
