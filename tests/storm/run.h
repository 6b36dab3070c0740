// One run of the game in the storm: inputs arrive at their time, also inside waits, and after each
// one everything is looked over.
#pragma once

#include <gtest/gtest-spi.h>

#include <cmath>
#include <memory>
#include <optional>
#include <random>
#include <stdexcept>

#include "game/settings.h"
#include "game/texts.h"
#include "shell/menu_entries.h"
#include "tests/simulated/ledger.h"
#include "tests/storm/invariants.h"
#include "tests/storm/script.h"

namespace storm {

/// Where the inputs of a run come from.
class Source {
 public:
  virtual ~Source() = default;
  /// When the next input arrives, in milliseconds; none where there is no more. Asked before the one
  /// that is due now is made, so that the next can arrive inside its waits.
  virtual std::optional<long> When(long now) = 0;
  virtual Input What(simulated::Play& play, long time) = 0;
  /// To the question that is open.
  virtual bool Answer(long time) = 0;
};

/// What a storm has met: one that meets nothing proves nothing.
using Tally = std::map<std::string, int>;

class Run {
 public:
  Run(std::uint64_t seed, simulated::Store& store, Source& source, Tally& tally)
      : found_(store), store_(store), source_(source), tally_(tally), dice_(seed), play_(store) {}

  /// To the end of the run, or of its inputs. Throws what breaks.
  void Go() {
    const auto here = testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD;
    const testing::ScopedFakeTestPartResultReporter reporter(here, &failures_);
    play_.desktop.afterEvent = [this] { Look(); };
    play_.desktop.whileAsked = [this] { Asked(); };
    // The frame's place is a multiple of 15 twips: a mouse points at whole pixels of a form, wherever
    // in the frame the form stands.
    play_.desktop.workArea = {0, 0, 19200, 11995};
    // The load of the table draws three dice; from then on each throw finds its own six numbers.
    play_.desktop.chance = {0, 0.5F, 0.99F};
    play_.Start();
    PlanNext();
    while (planned_ && play_.Do([this] { play_.desktop.Idle(1); })) continue;
    if (play_.ended) CheckStored();
    BreakIfAnyFailed();
  }

 private:
  static constexpr std::int64_t kFreshStake = 200;
  struct Stakes {
    std::int64_t pounds;  ///< in all
    std::array<int, 6> stakes;
  };

  long Now() const { return std::lround(std::ceil(play_.desktop.Clock() * 1000)); }

  void PlanNext() {
    const auto time = source_.When(Now());
    planned_ = time.has_value();
    if (planned_) play_.desktop.At(static_cast<double>(*time) / 1000, [this, time] { Arrive(*time); });
  }

  void Arrive(long time) {
    PlanNext();
    const Input input = source_.What(play_, time);
    ++tally_[input.what];
    if (input.which == thistle::menu::kNewGame) {
      // The menu takes the mouse; then the money shows whether there will be a question.
      play_.desktop.LoseMouse();
      if (play_.table().Loaded && play_.money().MoneyValue[3] == 0) ExpectNewGame();
    }
    const auto bets = play_.table().BetValue;
    Deliver(input, play_.desktop);
    if (input.what == "key" && play_.desktop.Waits() == 0 && bets != play_.table().BetValue) ++tally_["bet by a key"];
    if (play_.desktop.Waits() == 0 && play_.table().Loaded && (!ledger_ || newGame_)) OpenLedger();
  }

  void Asked() {
    const std::string& text = play_.desktop.questions.back().what;
    const bool yes = source_.Answer(Now());
    play_.desktop.answers = {yes};
    ++tally_[text.substr(0, text.find_first_of("\r£")) + (yes ? ": Yes" : ": No")];
    PressKeysInVain();
    if (yes && text.starts_with("Are you sure you want to start again")) ExpectNewGame();
    if (yes && text == thistle::texts::kNoMoneyLeft) ledger_->Give(kFreshStake);
    if (text.starts_with("You Have £")) {
      std::int64_t left = 0;
      for (int d = 0; d < 3; ++d) left += thistle::PieceValue[d] * thistle::settings::PieceCount(Stored(found_, d));
      EXPECT_EQ(text, thistle::texts::MoneyFromPreviousGame(left));
      if (yes) stake_ = left;
    }
  }

  /// The question has them for itself. What they did all the same, the ledger would miss later.
  void PressKeysInVain() {
    const auto looks = std::exchange(play_.desktop.afterEvent, [] {});
    for (const auto& [name, key] : Keys()) play_.desktop.PressKey(key);
    play_.desktop.afterEvent = looks;
  }

  /// During a wait it starts only when all that waits has come to its end.
  void ExpectNewGame() {
    if (play_.desktop.Waits() > 0) ++tally_[invariants_.Throwing() ? "New Game in a throw" : "New Game in an exchange"];
    newGame_ = true;
    invariants_.freeThrow = play_.table().CupStanding.Enabled;
  }

  /// A ledger knows one game: with a new one begins a new ledger.
  void OpenLedger() {
    newGame_ = false;
    thrown_.reset();
    play_.desktop.afterEvent = [] {};
    ledger_ = std::make_unique<simulated::Ledger>(play_);
    ledgerLooks_ = std::exchange(play_.desktop.afterEvent, [this] { Look(); });
    EXPECT_EQ(ledger_->pounds(), stake_) << "at the start of a game";
    stake_ = kFreshStake;
    Look();
  }

  void Look() {
    if (play_.desktop.chance.empty()) Deal();
    if (!ledger_) return;
    if (play_.desktop.Waits() > 1) ++tally_["wait in a wait"];
    if (invariants_.Throwing() && !thrown_) {
      ++tally_["throw"];
      thrown_ = {ledger_->pounds(), play_.table().BetValue};
    }
    invariants_.Always();
    // The ledger takes for granted what has been looked at so far.
    BreakIfAnyFailed();
    if (newGame_) return;
    ledgerLooks_();
    if (play_.desktop.Waits() == 0) {
      invariants_.AtRest();
      CheckPaid();
    }
    BreakIfAnyFailed();
  }

  void CheckPaid() {
    if (!thrown_) return;
    std::int64_t due = thrown_->pounds;
    for (int square = 0; square < 6; ++square) {
      const auto matches = std::ranges::count(play_.table().DiceSquare, square);
      due += thrown_->stakes[square] * (matches == 0 ? -1 : matches);
    }
    EXPECT_EQ(ledger_->pounds(), due == 0 ? kFreshStake : due) << "after a throw";
    thrown_.reset();
  }

  /// The dice of one throw. Triples come more often than by chance.
  void Deal() {
    const auto square = static_cast<int>(dice_() % 6);
    if (dice_() % 4 == 0) return play_.DealThrow(square, square, square);
    for (int i = 0; i < 6; ++i) play_.desktop.chance.push_back(static_cast<float>(dice_() >> 40) * 0x1p-24F);
  }

  static std::string Stored(const simulated::Store& store, int denomination) {
    const auto at = store.find("Thistle and Lantern/Settings/Stash" + std::to_string(denomination));
    return at == store.end() ? "absent" : at->second;
  }

  void CheckStored() {
    if (play_.desktop.waitsAtEnd > 0) ++tally_["end in a wait"];
    if (!play_.table().Loaded) {
      for (int d = 0; d < 3; ++d) EXPECT_EQ(Stored(store_, d), Stored(found_, d)) << d;
      return;
    }
    const auto kept = simulated::StashOf(store_);
    const bool exchange = play_.desktop.waitsAtEnd > 0 && play_.table().Instruction[0].Visible;
    EXPECT_TRUE(exchange || kept == play_.money().MoneyCount);
    // Nothing is on the mat then, and nothing gets lost on the way.
    EXPECT_TRUE(!exchange || !ledger_ || newGame_ || simulated::Pounds(kept) == ledger_->pounds());
  }

  void BreakIfAnyFailed() {
    if (failures_.size() == 0) return;
    const auto& failure = failures_.GetTestPartResult(0);
    const auto file = std::filesystem::path(failure.file_name()).filename().string();
    throw std::runtime_error(file + ':' + std::to_string(failure.line_number()) + " after " +
                             std::to_string(play_.desktop.Clock()) + " s\n" + failure.message());
  }

  testing::TestPartResultArray failures_;
  const simulated::Store found_;  ///< what the run before left
  simulated::Store& store_;
  Source& source_;
  Tally& tally_;
  std::mt19937_64 dice_;
  simulated::Play play_;
  Invariants invariants_{play_};
  std::unique_ptr<simulated::Ledger> ledger_;
  std::function<void()> ledgerLooks_;
  std::int64_t stake_ = kFreshStake;  ///< pounds with which the next game starts
  bool newGame_ = false;              ///< one was chosen, and has not started yet
  bool planned_ = false;
  std::optional<Stakes> thrown_;  ///< while a throw goes on
};

}  // namespace storm
