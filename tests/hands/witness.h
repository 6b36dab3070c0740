// Tells in lines of text what comes of a player's hands: the same lines on every desktop.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "shell/frmMain.h"

namespace hands {

/// A line for each thing that happens, and for each change of what a player sees and owns.
class Witness {
 public:
  Witness(const thistle::frmMain& frame, std::function<void(const std::string&)> tell)
      : frame_(frame), tell_(std::move(tell)) {}

  /// After each event, and before each rest.
  void Look() {
    std::string forms;
    for (const desktop::Form* form : frame_.Children()) forms += " " + std::string(form->Name);
    Note("forms", forms);
    const auto& table = frame_.Game;
    if (!table.Loaded) return;
    for (int square = 0; square < thistle::kSquares; ++square) {
      const auto& pieces = table.BetPieces[square];
      std::string bet = " " + table.Label1[square].Caption + ",";
      for (int place = 1; place <= pieces[0]; ++place) bet += " " + std::to_string(pieces[place]);
      Note("square " + std::to_string(square), bet);
    }
    std::string piles;
    for (const auto count : frame_.module1.MoneyCount) piles += " " + std::to_string(count);
    Note("piles", piles);
    Note("total", " " + table.Label3[thistle::kDenominations].Caption);
    Note("cup", table.CupStanding.Enabled ? " live" : " dead");
    Note("turn", table.Instruction[0].Visible ? " open" : " closed");
    Note("change", table.Command1.Visible ? " offered" : " not offered");
  }

  /// With all that has changed up to now before it.
  void Happens(const std::string& what) {
    Look();
    Tell(what);
  }

  void Tell(const std::string& line) { tell_(line); }

 private:
  void Note(const std::string& name, const std::string& value) {
    std::string& before = seen_[name];
    if (before == value) return;
    before = value;
    tell_(name + value);
  }

  const thistle::frmMain& frame_;
  std::function<void(const std::string&)> tell_;
  std::map<std::string, std::string> seen_;
};

/// A question on one line.
inline std::string OneLine(std::string_view text) {
  std::string line(text);
  for (char& c : line)
    if (c == '\r' || c == '\n') c = ' ';
  return line;
}

}  // namespace hands
