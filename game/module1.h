// What all forms share: the player's money, the sound flag and where forms stand.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "desktop/desktop.h"

namespace thistle {

inline constexpr int kDenominations = 3;

/// Pounds per piece of each denomination: £10 note, £5 note, £1 coin.
inline constexpr std::array<int, kDenominations> PieceValue{10, 5, 1};

/// Pieces of each denomination. No upper limit in play; 64 bits hold more than any game can win.
using Counts = std::array<std::int64_t, kDenominations>;

struct Module1 {
  Module1(desktop::Desktop& services, desktop::Frame& main) : desktop(services), frmMain(main) {}

  desktop::Desktop& desktop;
  desktop::Frame& frmMain;

  /// In the player's piles, without those on the mat or in flight.
  Counts MoneyCount{};
  /// The counts have been filled in this run: with a fresh stake, or with what the last run left.
  bool MoneyDealt = false;
  /// Pounds in the piles for each denomination, and their sum. As fresh as the last ShowTotals.
  std::array<std::int64_t, kDenominations + 1> MoneyValue{};

  bool SoundOn = true;

  /// Where the frame stood at the start of the run, in twips. In a maximised frame the forms stand
  /// at this offset.
  float OriginLeft = 0;
  float OriginTop = 0;

  /// Starts a recording if SoundOn is true; see sounds/play_res_sound.h.
  void PlayResSound(std::string_view name) const;
  /// Gives a form its place in the frame as the frame is now.
  void PlaceForm(desktop::Form& form) const;
  /// Asks with the application's title. True for Yes.
  bool Ask(std::string_view text) const;
  std::string ReadSetting(std::string_view key, std::string_view fallback) const;
  void SaveSetting(std::string_view key, std::string_view text) const;
};

}  // namespace thistle
