#include "shell/frmHelp.h"

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "Graphics/instructions.h"
#include "desktop/building_blocks.h"
#include "game/identity.h"
#include "shell/frame_size.h"

namespace thistle {

namespace {

using desktop::Kind;
using desktop::Place;

constexpr Place kRichTextBox1{0, 0, 9495, 5610};
constexpr Place kImage1[] = {{0, 5610, 480, 480}, {9000, 5610, 480, 480}};
constexpr Place kCommand1{3990, 5640, 1500, 390};

}  // namespace

void frmHelp::LayOut() {
  Clear();
  FillFrame(*this);
  AccessibleName = "Instructions";
  for (int i = 0; i < 2; ++i) Add(Image1[i] = desktop::Laid(Kind::Image, "Image1", i, kImage1[i]));
  document_ = Instructions(identity::kSupportAddress, identity::kWebSite);
  RichTextBox1 = desktop::Laid(Kind::TextView, "RichTextBox1", 0, kRichTextBox1);
  RichTextBox1.Text = &document_;
  RichTextBox1.AccessibleName = "Instructions";
  Add(RichTextBox1);
  Command1 = desktop::LaidButton("Command1", kCommand1, "Return", colours::kWoodenButton);
  Command1.Font.points = 12;
  Command1.BackColor = colours::kReturn;
  Add(Command1);
}

void frmHelp::Form_Load() {
  LayOut();
  module1_.PlaceForm(*this);
  Command1.SetPicture(pictures::Wood);
  for (auto& image : Image1) image.SetPicture(pictures::ThistleLantern32);
  module1_.frmMain.Show(*this);
  module1_.desktop.SetFocus(*this, Command1);
}

void frmHelp::Click(desktop::Element& element) {
  if (&element == &Command1) Command1_Click();
}

void frmHelp::Command1_Click() { module1_.frmMain.Unload(*this); }

}  // namespace thistle
