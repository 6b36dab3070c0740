// Writes down what changes on the table, and when.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/simulated/play.h"

namespace simulated {

using Lines = std::vector<std::string>;

/// Holds a line for each change of what it watches, then for each sound, of one event: the seconds
/// since Start, and what it is.
class Recorder {
 public:
  explicit Recorder(Play& play) : play_(play) {
    play_.desktop.afterEvent = [this, before = std::move(play_.desktop.afterEvent)] {
      before();
      Look();
    };
  }

  Lines lines;

  void Watch(std::string name, std::function<std::string()> value) {
    std::string now = value();
    watched_.push_back({std::move(name), std::move(value), std::move(now)});
  }

  /// Times count from `ahead` seconds after this moment.
  void Start(double ahead = 0) {
    Look();
    lines.clear();
    start_ = play_.desktop.Clock() + ahead;
  }

  void WatchCaptions() {
    WatchEach(play_.table().Label1, [](const desktop::Element& label) { return label.Caption; });
  }
  void WatchTotal() {
    Watch("total", [this] { return play_.table().Label3[3].Caption; });
  }
  void WatchPayouts() {
    WatchEach(play_.table().Payout,
              [](const desktop::Element& payout) { return payout.Visible ? payout.Picture->name : "gone"; });
  }
  void WatchPieces() {
    WatchEach(play_.table().Money, [this](const desktop::Element& piece) {
      return !play_.IsHome(piece.Index) ? "away" : piece.Visible ? "in its pile" : "gone";
    });
  }
  /// The cup frames that show, all at once where there are several.
  void WatchCup() {
    Watch("cup", [&table = play_.table()] {
      std::string shown;
      for (const auto* cup : {&table.CupStanding, &table.CupCentre, &table.CupLeft, &table.CupRight, &table.CupThrow})
        if (cup->Visible) shown += cup->Name;
      return shown;
    });
  }
  void WatchControls() {
    auto& table = play_.table();
    WatchEach(table.Instruction, [](const desktop::Element& line) { return line.Visible ? "shown" : "hidden"; });
    Watch("change", [&table] { return table.Command1.Visible ? "shown" : "hidden"; });
    Watch("cup", [&table] { return table.CupStanding.Enabled ? "live" : "dead"; });
    Watch("money", [&table] { return table.Money[0].Enabled ? "live" : "dead"; });
    Watch("pointer", [&table] { return table.MousePointer == desktop::PointerShape::NoDrop ? "no drop" : "arrow"; });
  }

 private:
  struct Watched {
    std::string name;
    std::function<std::string()> value;
    std::string last;
  };

  template <std::size_t kCount, typename Value>
  void WatchEach(const std::array<desktop::Element, kCount>& elements, Value value) {
    for (const auto& element : elements)
      Watch(std::string(element.Name) + "(" + std::to_string(element.Index) + ")",
            [&element, value] { return std::string(value(element)); });
  }

  static void Note(Lines& lines, double time, const std::string& what) {
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.3f ", time + 1e-9);
    lines.push_back(seconds + what);
  }

  void Look() {
    for (auto& watched : watched_) {
      std::string now = watched.value();
      if (now == watched.last) continue;
      Note(lines, play_.desktop.Clock() - start_, watched.name + "=" + now);
      watched.last = std::move(now);
    }
    const auto& sounds = play_.desktop.sounds;
    for (; heard_ < sounds.size(); ++heard_) Note(lines, sounds[heard_].time - start_, sounds[heard_].what);
  }

  Play& play_;
  double start_ = 0;
  std::size_t heard_ = 0;
  std::vector<Watched> watched_;
};

}  // namespace simulated
