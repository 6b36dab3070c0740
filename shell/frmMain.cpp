#include "shell/frmMain.h"

#include <charconv>
#include <cmath>
#include <string>

#include "Graphics/colours.h"
#include "game/identity.h"
#include "game/settings.h"
#include "shell/frame_size.h"
#include "shell/menu_entries.h"

namespace thistle {

namespace {

/// A place as the store keeps it: the shortest decimal digits that read back as the same float.
std::string PlaceText(float twips) {
  char text[64];
  const auto [end, error] = std::to_chars(text, text + sizeof text, twips, std::chars_format::fixed);
  return {text, end};
}

/// Where something of `size` stands in the middle of `room` twips.
float Centred(float start, float room, float size) { return start + std::floor((room - size) / 2); }

}  // namespace

frmMain::frmMain(desktop::Desktop& desktop)
    : module1(desktop, *this),
      Game(module1),
      Help(module1),
      Options(module1),
      Support(module1),
      About(module1),
      Splash(module1, {Game, Options, Help}) {}

void frmMain::MDIForm_Load() {
  BackColor = colours::kTable;
  Icon = "Icon";
  Menu = menu::Entries();
  ClientWidth = frame_size::kClientWidth;
  ClientHeight = frame_size::kClientHeight;

  const auto area = module1.desktop.WorkArea();
  Left = settings::Place(module1.ReadSetting(settings::kMainLeft, ""))
             .value_or(Centred(area.Left, area.Width, frame_size::kOuterWidth));
  Top = settings::Place(module1.ReadSetting(settings::kMainTop, ""))
            .value_or(Centred(area.Top, area.Height, frame_size::kOuterHeight));
  module1.OriginLeft = Left;
  module1.OriginTop = Top;
  module1.SoundOn = settings::Flag(module1.ReadSetting(settings::kSoundOn, settings::kTrue)).value_or(true);
  Caption = identity::kTitle;
  module1.desktop.ShowFrame(*this);
  Open(Splash);
}

void frmMain::MDIForm_Unload() {
  // The forms have gone with the frame. A piece in the player's hand went home before.
  module1.desktop.ReleaseMouse();
  module1.PlayResSound("doorshut");
  module1.SaveSetting(settings::kSoundOn, module1.SoundOn ? settings::kTrue : settings::kFalse);
  // While nobody has filled the counts, what the run before stored stands. An exchange under way costs nothing.
  const Counts money = Game.MoneyAfterExchanges();
  if (module1.MoneyDealt)
    for (int d = 0; d < kDenominations; ++d) module1.SaveSetting(settings::kStash[d], std::to_string(money[d]));
  if (State == desktop::WindowState::Normal && HasPlace) {
    module1.SaveSetting(settings::kMainLeft, PlaceText(Left));
    module1.SaveSetting(settings::kMainTop, PlaceText(Top));
  }
  module1.desktop.EndProcess();
}

}  // namespace thistle
