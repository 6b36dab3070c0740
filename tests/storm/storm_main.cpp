// The storm: run after run of random input, each with what the one before has stored.
//
//   storm_test [--seed N|random] [--events N]   the storm; a run that breaks is shortened
//   storm_test --replay FILE                    one run again, from its list
//
// The storm proper (--alone) is a process of its own, so that the one that started it can shorten
// the list even where a sanitizer has ended the run.
#include <array>
#include <cstdlib>
#include <iostream>

#include "tests/storm/player.h"

namespace {

using storm::Input;
using storm::Script;

constexpr long kInputsOfRun = 600;
// All beside the program.
const std::filesystem::path kRunning = "storm-running.txt";
const std::filesystem::path kShort = "storm-short.txt";
const std::filesystem::path kTrial = "storm-trial.txt";
const std::filesystem::path kSaid = "storm-trial.out";

/// Gives the recorded inputs again, each at its time.
class Tape : public storm::Source {
 public:
  explicit Tape(const std::vector<Input>& inputs) {
    for (const auto& input : inputs) (input.what == "answer" ? answers_ : inputs_).push_back(input);
  }
  std::optional<long> When(long) override {
    return planned_ < inputs_.size() ? std::optional(inputs_[planned_++].time) : std::nullopt;
  }
  Input What(simulated::Play&, long) override { return inputs_[played_++]; }
  /// A shortened list may have lost the answer.
  bool Answer(long) override { return given_ >= answers_.size() || answers_[given_++].which == "yes"; }

 private:
  std::vector<Input> inputs_, answers_;
  std::size_t planned_ = 0, played_ = 0, given_ = 0;
};

/// Says what breaks, if anything does. The exit status.
int PlayOut(const Script& script, simulated::Store& store, storm::Source& source, storm::Tally& tally) {
  try {
    storm::Run(script.seed, store, source, tally).Go();
    return 0;
  } catch (const std::exception& broken) {
    std::cout << "BROKEN " << broken.what() << std::endl;
    return 1;
  }
}

/// The settings were edited by hand, or the last run ended poor.
void Spoil(simulated::Store& store, std::mt19937_64& chance) {
  constexpr const char* kCounts[] = {"", "12abc", " 7", "-3", "2.7", "1e99", "nan", "19", "20", "9007199254740992"};
  constexpr const char* kOthers[] = {"", "True", "False", "-1500", "30", "6e3", "15abc", "nan", "-1e30", "\t\"8\\"};
  const std::string at = "Thistle and Lantern/Settings/";
  const bool poor = chance() % 2 == 0;
  for (const char* key : {"Stash0", "Stash1", "Stash2"})
    store[at + key] = poor ? std::to_string(chance() % 2) : kCounts[chance() % std::size(kCounts)];
  for (const char* key : {"SoundOn", "MainLeft", "MainTop"})
    if (chance() % 4 == 0) store[at + key] = kOthers[chance() % std::size(kOthers)];
}

int Blow(std::uint64_t seed, long events) {
  std::mt19937_64 chance(seed);
  simulated::Store store;
  storm::Tally tally;
  for (long made = 0; made < events; ++tally["run"]) {
    if (chance() % 2 == 0) Spoil(store, chance);
    const Script script{chance(), store, {}};
    std::ofstream list(kRunning);
    list << storm::Text(script);
    storm::Player player(chance(), std::min(kInputsOfRun, events - made), list);
    if (PlayOut(script, store, player, tally) != 0) return 1;
    made += player.made;
  }
  for (const auto& [what, count] : tally) std::cout << count << " x " << what << '\n';
  std::filesystem::remove(kRunning);
  // A storm of some length that has met none of these proves nothing.
  for (const char* what : {"throw", "wait in a wait", "New Game in a throw", "New Game in an exchange", "end in a wait",
                           "bet by a key", "You Have : Yes", "You Have No Money Left: Yes"}) {
    if (events < 200000 || tally[what] > 0) continue;
    std::cout << "BROKEN never met: " << what << std::endl;
    return 2;
  }
  return 0;
}

/// Has another process replay a list. What broke, without when; empty where nothing did.
std::string Verdict(const std::string& program, const Script& script) {
  std::ofstream(kTrial) << storm::Text(script);
  const std::string command = program + " --replay " + kTrial.string() + " > " + kSaid.string() + " 2>&1";
  const int status = std::system(command.c_str());
  if (status == 0) return {};
  std::ifstream said(kSaid);
  for (std::string line; std::getline(said, line);)
    if (line.starts_with("BROKEN") || line.starts_with("SUMMARY")) return line.substr(0, line.find(" after "));
  return "ended with " + std::to_string(status);
}

/// Leaves out what it can, large chunks first, as long as the same breaks: at the end no single
/// input can be spared.
void Shorten(std::vector<Input>& list, const std::function<bool(const std::vector<Input>&)>& breaks) {
  for (std::size_t chunk = (list.size() + 1) / 2; chunk > 0;) {
    const std::size_t before = list.size();
    for (std::size_t at = 0; at < list.size();) {
      auto rest = list;
      const auto from = rest.begin() + static_cast<std::ptrdiff_t>(at);
      rest.erase(from, from + static_cast<std::ptrdiff_t>(std::min(chunk, list.size() - at)));
      if (breaks(rest))
        list = std::move(rest);
      else
        at += chunk;
    }
    if (list.size() == before) chunk /= 2;
  }
}

void Report(const std::string& program) {
  Script script = storm::ReadScript(kRunning);
  const std::string broken = Verdict(program, script);
  std::cout << "The run that broke:\n" << storm::Text(script);
  if (broken.empty()) {
    std::cout << "Again it does not break.\n";
    return;
  }
  Shorten(script.inputs, [&](const auto& inputs) {
    return Verdict(program, {script.seed, script.store, inputs}) == broken;
  });
  std::ofstream(kShort) << "# " << broken << '\n' << storm::Text(script);
  std::cout << "In short, for the same " << broken << ":\n"
            << storm::Text(script) << "Again: storm_test --replay " << absolute(kShort).string() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  std::map<std::string, std::string> options{{"--seed", "1"}, {"--events", "200000"}};
  for (int i = 1; i + 1 < argc; i += 2) options[argv[i]] = argv[i + 1];
  const bool known = options.size() == 2U + options.count("--replay") + options.count("--alone");
  if (argc % 2 == 0 || !known) {
    std::cerr << "storm_test [--seed N|random] [--events N], or storm_test --replay FILE\n";
    return 2;
  }
  if (options.contains("--replay")) {
    Script script = storm::ReadScript(options["--replay"]);
    Tape tape(script.inputs);
    storm::Tally tally;
    return PlayOut(script, script.store, tape, tally);
  }
  const auto self = std::filesystem::absolute(argv[0]);
  current_path(self.parent_path());
  std::string& seed = options["--seed"];
  if (seed == "random") seed = std::to_string(std::random_device{}());
  if (options.contains("--alone")) return Blow(std::stoull(seed), std::stol(options["--events"]));

  const std::string program = (std::filesystem::path(".") / self.filename()).string();
  const std::string storm = "--seed " + seed + " --events " + options["--events"];
  std::cout << "storm_test " << storm << std::endl;
  if (std::system((program + " --alone yes " + storm).c_str()) == 0) return 0;
  if (exists(kRunning)) Report(program);
  return 1;
}
