// Plays a list of hands on the simulated desktop, and tells what comes of it.   hands_simulated LIST
#include <iostream>

#include "tests/hands/told.h"
#include "tests/hands/witness.h"
#include "tests/storm/script.h"

namespace {

/// Gives each input as soon as the one before has arrived; after "until" only when that has been told.
class Player {
 public:
  explicit Player(storm::Script script) : script_(std::move(script)), play_(script_.store) {
    play_.desktop.Seed(script_.seed);
    play_.desktop.afterEvent = play_.desktop.whenFollowed = [this] { Look(); };
    play_.desktop.whileAsked = [this] { Asked(); };
  }

  void Go() {
    bool goesOn = play_.Start();
    GiveNext();
    while (goesOn && !(given_ && at_ == script_.inputs.size()))
      goesOn = play_.Do([this] { play_.desktop.Idle(60); }) && ++idled_ < kMostMinutes;
    Look();
    for (const std::string& saved : play_.desktop.saved) witness_.Tell("saved " + saved);
    if (play_.ended) witness_.Tell("ended");
  }

 private:
  static constexpr int kMostMinutes = 60;

  void Look() {
    auto& sounds = play_.desktop.sounds;
    for (; heard_ < sounds.size(); ++heard_) witness_.Tell("sound " + sounds[heard_].what);
    witness_.Look();
  }

  void Tell(const std::string& line) {
    std::cout << line << '\n';
    told_.Add(line);
    LookForNext();
  }

  void LookForNext() {
    if (until_.empty() || !told_.Reaches(until_)) return;
    until_.clear();
    GiveNext();
  }

  /// Has the next input arrive now: in the innermost wait, if there is one.
  void GiveNext() {
    given_ = at_ == script_.inputs.size();
    if (given_) return;
    const storm::Input& next = script_.inputs[at_];
    if (next.what == "answer") return;  // given when it is asked for
    ++at_;
    if (next.what == "until") {
      until_ = next.which;
      return LookForNext();
    }
    play_.desktop.After(0, [this, next] {
      GiveNext();
      storm::Deliver(next, play_.desktop);
    });
  }

  void Asked() {
    Look();
    witness_.Happens("question " + hands::OneLine(play_.desktop.questions.back().what));
    const storm::Input& next = script_.inputs.at(at_++);
    if (next.what != "answer") throw std::logic_error("no answer in the list, but " + next.what + ' ' + next.which);
    const std::string& answer = next.which;
    play_.desktop.answers = {answer == "yes"};
    witness_.Happens("answer " + answer);
    GiveNext();
  }

  storm::Script script_;
  simulated::Play play_;
  hands::Witness witness_{*play_.frame, [this](const std::string& line) { Tell(line); }};
  std::size_t at_ = 0, heard_ = 0;
  hands::Told told_;
  bool given_ = false;
  int idled_ = 0;
  std::string until_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Player(storm::ReadScript(argv[1])).Go();
  return 0;
}
