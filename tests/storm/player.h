// A player who does anything that can be done, at any moment, and likes what is interesting.
#pragma once

#include <iterator>
#include <ostream>

#include "tests/storm/run.h"

namespace storm {

class Player : public Source {
 public:
  /// Makes `inputs` at most, the last of them a close, and writes down each before it arrives: after
  /// a crash the list is complete.
  Player(std::uint64_t seed, long inputs, std::ostream& list) : chance_(seed), inputs_(inputs), list_(list) {}

  long made = 0;

  std::optional<long> When(long now) override {
    if (planned_++ == inputs_) return std::nullopt;
    // Bursts, then pauses that let a throw go on or end.
    constexpr int kLongest[] = {1, 1, 1, 1, 60, 60, 600, 600, 4000, 4000};
    return now + Roll(kLongest[Roll(std::size(kLongest))]);
  }

  Input What(simulated::Play& play, long time) override {
    Input input = ++made == inputs_ ? Input{0, "close", "-"} : Choose(play);
    input.time = time;
    if (input.what == "press" || input.what == "release" || input.what == "move") last_ = {input.x, input.y};
    if (input.which == "left") leftDown_ = input.what == "press";
    list_ << Line(input) << std::flush;
    return input;
  }

  bool Answer(long time) override {
    const bool yes = Roll(2) == 0;
    list_ << Line({time, "answer", yes ? "yes" : "no"}) << std::flush;
    return yes;
  }

 private:
  struct Point {
    float x = 0, y = 0;
  };

  template <typename Sides>
  int Roll(Sides sides) {
    return static_cast<int>(chance_() % static_cast<std::uint64_t>(sides));
  }

  Input Choose(simulated::Play& play) {
    if (play.frame->State == desktop::WindowState::Minimised)
      return {0, "window", Roll(2) == 0 ? "normal" : "maximised"};
    const Element* inHand = play.desktop.InHand();
    const bool carries = inHand && inHand->Name == "Money";
    const int roll = Roll(100);
    if (Roll(100) < typing_) return {0, "key", AnyKey()};
    if (leftDown_ && roll < (carries ? 35 : 5)) return AtTheMouse("move", "-", Somewhere(play));
    if (leftDown_ && roll < 80) return AtTheMouse("release", "left", Roll(4) == 0 ? Somewhere(play) : last_);
    if (leftDown_ && roll < 88) return {0, "key", AnyKey()};
    if (!leftDown_ && roll < 80) return AtTheMouse("press", "left", Somewhere(play));
    return Aside(play);
  }

  std::string AnyKey() { return std::next(Keys().begin(), Roll(Keys().size()))->first; }

  static Input AtTheMouse(std::string what, std::string which, Point point) {
    return {0, std::move(what), std::move(which), point.x, point.y};
  }

  Input Aside(simulated::Play& play) {
    using namespace thistle::menu;
    constexpr std::array<std::string_view, 2> kAside[] = {
        {"press", "left"},       {"press", "right"},      {"press", "right"}, {"press", "right"},
        {"press", "middle"},     {"release", "left"},     {"move", "-"},      {"release", "right"},
        {"release", "right"},    {"release", "middle"},   {"key", "Enter"},   {"key", "Escape"},
        {"key", "Tab"},          {"lose", "-"},           {"menu", kNewGame}, {"window", "normal"},
        {"menu", kOptions},      {"menu", kInstructions}, {"menu", kSupport}, {"menu", kAbout},
        {"window", "minimised"}, {"window", "maximised"}};
    if (Roll(40) == 0) return Roll(2) == 0 ? Input{0, "close", "-"} : Input{0, "menu", std::string(kExit)};
    const auto& [what, which] = kAside[Roll(std::size(kAside))];
    return AtTheMouse(std::string(what), std::string(which), what == "release" ? last_ : Somewhere(play));
  }

  Point Somewhere(simulated::Play& play) {
    const desktop::Form& form = *play.frame->Children().back();
    const auto& table = play.table();
    const bool onTable = &form == &table;
    const int roll = Roll(20);
    if (roll == 0) return {static_cast<float>(Roll(760) - 60), static_cast<float>(Roll(520) - 60)};
    if (roll == 1) return {last_.x + static_cast<float>(Roll(7) - 3), last_.y + static_cast<float>(Roll(7) - 3)};
    if (roll == 2) return On(form, *form.Graphics()[Roll(form.Graphics().size())]);
    if (form.Name == "frmSplash" && roll < 12) return On(form, play.frame->Splash.PlayGame);
    if (!onTable) return On(form, *form.Controls()[Roll(form.Controls().size())]);
    if (play.desktop.InHand() ? roll < 16 : roll < 4)
      return On(form, table.Image1[Roll(2) == 0 ? favourite_ : Roll(6)]);
    if (roll == 4) return On(form, table.Command1);
    if (roll < 5 + haste_) return On(form, table.CupStanding);
    // A piece on show, if there is one; those on the mat are taken back now and then.
    for (int first = Roll(60), i = first; i < first + 60; ++i)
      if (table.Money[i % 60].Visible && (roll < 19 || !play.IsHome(i % 60))) return On(form, table.Money[i % 60]);
    return last_;
  }

  /// Anywhere on an element, and often at its very edge.
  Point On(const desktop::Form& form, const Element& element) {
    const auto border = static_cast<float>(form.Border);
    const float x = Along(element.Width);
    return {form.Left + border + element.Left + x, form.Top + border + element.Top + Along(element.Height)};
  }

  float Along(float length) {
    const float edges[] = {0, -1, length, length - 1};
    return Roll(8) == 0 ? edges[Roll(std::size(edges))] : static_cast<float>(Roll(length + 1));
  }

  std::mt19937_64 chance_;
  const int favourite_ = Roll(6);                                               ///< square
  const int haste_ = Roll(9);                                                   ///< to throw
  const int typing_ = std::array{0, 5, 60}[static_cast<std::size_t>(Roll(3))];  ///< percent of all inputs
  long inputs_;
  long planned_ = 0;
  std::ostream& list_;
  bool leftDown_ = false;
  Point last_;
};

}  // namespace storm
