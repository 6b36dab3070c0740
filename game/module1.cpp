#include "game/module1.h"

#include "desktop/units.h"
#include "game/identity.h"
#include "game/settings.h"
#include "sounds/play_res_sound.h"

namespace thistle {

void Module1::PlayResSound(std::string_view name) const { thistle::PlayResSound(desktop, SoundOn, name); }

void Module1::PlaceForm(desktop::Form& form) const {
  const bool maximised = frmMain.State == desktop::WindowState::Maximised;
  form.Top = form.NormalTop + (maximised ? OriginTop / desktop::kTwipsPerPixel : 0);
  form.Left = form.NormalLeft + (maximised ? OriginLeft / desktop::kTwipsPerPixel : 0);
}

bool Module1::Ask(std::string_view text) const { return desktop.AskYesNo(text, identity::kTitle); }

std::string Module1::ReadSetting(std::string_view key, std::string_view fallback) const {
  return desktop.ReadSetting(identity::kTitle, settings::kSection, key, fallback);
}

void Module1::SaveSetting(std::string_view key, std::string_view text) const {
  desktop.SaveSetting(identity::kTitle, settings::kSection, key, text);
}

}  // namespace thistle
