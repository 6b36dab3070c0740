#include "shell/frmSupport.h"

#include "Graphics/catalogue.h"
#include "Graphics/colours.h"
#include "desktop/building_blocks.h"
#include "game/identity.h"
#include "shell/frame_size.h"

namespace thistle {

namespace {

using desktop::Element;
using desktop::Kind;
using desktop::Place;

constexpr Place kImage1[] = {{7440, 240, 1920, 1920}, {120, 240, 1920, 1920}};
constexpr Place kOK{3990, 4680, 1500, 390};

Place Row(int top, int height) { return {1365, top, 6750, height}; }

Element Text(std::string_view name, const Place& place, std::string_view caption, double points,
             desktop::Colour colour) {
  Element label = desktop::LaidLabel(name, 0, place, desktop::Align::Centre, caption);
  label.Font.points = points;
  label.ForeColor = colour;
  return label;
}

Element Link(std::string_view name, const Place& place, std::string_view address) {
  Element link = Text(name, place, address, 18, colours::kLink);
  link.Kind = Kind::Link;
  link.Font.underline = true;
  return link;
}

}  // namespace

void frmSupport::LayOut() {
  Clear();
  FillFrame(*this);
  AccessibleName = "Support";
  for (int i = 0; i < 2; ++i) Add(Image1[i] = desktop::Laid(Kind::Image, "Image1", i, kImage1[i]));
  Add(Label1 = Text("Label1", Row(120, 735), "Support", 27.75, colours::kTitle));
  Add(Label2 = Text("Label2", Row(1200, 495), "For All Support Questions", 18, colours::kRed));
  Add(Label3 = Text("Label3", Row(1800, 495), "Email Us at", 18, colours::kRed));
  Add(Label4 = Link("Label4", Row(2400, 495), identity::kSupportAddress));
  Add(Label5 = Text("Label5", Row(3120, 495), "Or Visit Our Web Site at", 18, colours::kRed));
  Add(Label6 = Link("Label6", Row(3720, 495), identity::kWebSite));
  Add(cmdOK = desktop::LaidClosingButton("cmdOK", kOK, "Return", colours::kWoodenButton));
}

void frmSupport::Form_Load() {
  LayOut();
  module1_.PlaceForm(*this);
  cmdOK.SetPicture(pictures::Wood);
  for (auto& image : Image1) image.SetPicture(pictures::ThistleAndLantern128);
  module1_.frmMain.Show(*this);
}

void frmSupport::Click(Element& element) {
  if (&element == &Label4) Label4_Click();
  if (&element == &Label6) Label6_Click();
  if (&element == &cmdOK) cmdOK_Click();
}

void frmSupport::Label4_Click() { module1_.desktop.OpenMail(identity::kSupportAddress); }

void frmSupport::Label6_Click() { module1_.desktop.OpenPage(identity::kWebSite); }

void frmSupport::cmdOK_Click() { module1_.frmMain.Unload(*this); }

}  // namespace thistle
