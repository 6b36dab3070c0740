// What can arrive at a run of the game, and the list of all that did: enough to play the run again.
#pragma once

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>

#include "tests/simulated/play.h"

namespace storm {

/// One line of a list: "1200 press left 208 300", "1350 menu mnuNewGame", "1350 answer yes".
struct Input {
  long time = 0;      ///< milliseconds on the run's clock; a list that is played by its "until" lines has none
  std::string what;   ///< press, move, release, menu, key, window, lose, close; or answer, to a question; or until
  std::string which;  ///< button, entry, key, state, yes or no; "-" where there is no choice; what is waited for
  float x = 0, y = 0;
};

struct Script {
  std::uint64_t seed = 0;  ///< of the run's dice
  simulated::Store store;  ///< as the run finds it
  std::vector<Input> inputs;
};

inline std::string Line(const Input& input) {
  std::ostringstream line;
  // Nine digits bring every float back.
  line << input.time << ' ' << input.what << ' ' << input.which << std::setprecision(9);
  if (input.what == "press" || input.what == "move" || input.what == "release")
    line << ' ' << input.x << ' ' << input.y;
  return line.str() + '\n';
}

inline std::string Text(const Script& script) {
  std::ostringstream text;
  text << "seed " << script.seed << '\n';
  for (const auto& [key, value] : script.store)
    text << "store " << std::quoted(key) << ' ' << std::quoted(value) << '\n';
  for (const auto& input : script.inputs) text << Line(input);
  return text.str();
}

inline Script ReadScript(const std::filesystem::path& file) {
  Script script;
  std::ifstream lines(file);
  if (!lines) throw std::runtime_error("cannot read " + file.string());
  for (std::string line, first, key; std::getline(lines, line);) {
    std::istringstream words(line);
    if (!(words >> first)) continue;
    if (first == "seed") {
      words >> script.seed;
    } else if (first == "store") {
      words >> std::quoted(key);
      words >> std::quoted(script.store[key]);
    } else if (first != "#") {
      Input& input = script.inputs.emplace_back(Input{first == "-" ? 0 : std::stol(first), {}, {}});
      words >> input.what >> std::ws;
      if (input.what == "until")
        std::getline(words, input.which);
      else
        words >> input.which >> input.x >> input.y;
    }
  }
  return script;
}

inline const std::map<std::string, desktop::Key>& Keys() {
  using enum desktop::Key;
  static const std::map<std::string, desktop::Key> keys{
      {"Enter", Enter},   {"Space", Space},     {"Escape", Escape},
      {"Tab", Tab},       {"BackTab", BackTab}, {"Up", Up},
      {"Down", Down},     {"Left", Left},       {"Right", Right},
      {"Delete", Delete}, {"Plus", Plus},       {"1", One},
      {"2", Two},         {"3", Three},         {"4", Four},
      {"5", Five},        {"6", Six},           {"Backspace", Backspace}};
  return keys;
}

/// Does to the run what the input says.
inline void Deliver(const Input& input, simulated::SimulatedDesktop& desktop) {
  using enum desktop::WindowState;
  const std::string& which = input.which;
  const int button = which == "left"    ? desktop::kLeftButton
                     : which == "right" ? desktop::kRightButton
                                        : desktop::kMiddleButton;
  if (input.what == "lose") desktop.LoseMouse();
  if (input.what == "press") desktop.Press(input.x, input.y, button);
  if (input.what == "move") desktop.Move(input.x, input.y);
  if (input.what == "release") desktop.Release(input.x, input.y, button);
  if (input.what == "menu") desktop.Menu(which);
  if (input.what == "key") desktop.PressKey(Keys().at(which));
  if (input.what == "window")
    desktop.SetState(which == "normal" ? Normal : which == "minimised" ? Minimised : Maximised);
  if (input.what == "close") desktop.CloseFrame();
}

}  // namespace storm
