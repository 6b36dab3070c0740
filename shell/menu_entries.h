// The menu bar, entry by entry.
#pragma once

#include <string_view>
#include <vector>

#include "desktop/frame.h"

namespace thistle::menu {

inline constexpr std::string_view kNewGame = "mnuNewGame";
inline constexpr std::string_view kExit = "mnuExit";
inline constexpr std::string_view kOptions = "mnuOptions";
inline constexpr std::string_view kInstructions = "mnuInstr";
inline constexpr std::string_view kSupport = "Support";
inline constexpr std::string_view kAbout = "mnuAbout";

inline std::vector<desktop::MenuEntry> Entries() {
  return {{"mnuGame", "Game", {{kNewGame, "New Game", {}}, {kExit, "Exit", {}}}},
          {kOptions, "Options", {}},
          {"mnuHelp", "Help", {{kInstructions, "Instructions", {}}, {kSupport, "Support", {}}, {kAbout, "About", {}}}}};
}

}  // namespace thistle::menu
