// A real desktop with dice dealt by a seed and a clock that runs only when told to. What comes of a player's hands it
// tells on its standard output, line by line; a line that begins with # only says that an input has arrived.
//
// The environment names the seed: HANDS_SEED. "go TEXT" on the standard input lets the clock run until a line that
// begins so is told.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <thread>

#include "desktop/common/chance.h"
#include "tests/hands/halting_clock.h"
#include "tests/hands/witness.h"

namespace hands {

/// Just before an input is dealt with.
inline void SayArrived() { std::cout << "#" << std::endl; }

template <class RealDesktop>
class Witnessed : public RealDesktop {
 public:
  /// Before the frame is shown.
  void Watch(const thistle::frmMain& frame) {
    witness_.emplace(frame, [this](const std::string& line) { Tell(line); });
    // Ends with the process, out of the middle of a line that may never come.
    std::thread([this] { TakeOrders(); }).detach();
  }

  double Clock() const override { return clock_.Seconds(); }
  void RunEventsUntil(double moment) override {
    witness_->Look();
    // The clock may stand still meanwhile: then it is looked at again and again.
    RealDesktop::RunEventsUntil(Clock() + std::min(0.02, (moment - Clock()) / HaltingClock::kHaste));
  }
  void Randomize() override {}
  float Random() override { return chance_.Next(); }
  bool AskYesNo(std::string_view text, std::string_view title) override {
    this->ReleaseMouse();
    witness_->Happens("question " + OneLine(text));
    const bool yes = RealDesktop::AskYesNo(text, title);
    witness_->Happens(yes ? "answer yes" : "answer no");
    return yes;
  }
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override {
    saved_ += "saved " + std::string(key) + "=" + std::string(text) + "\n";
    RealDesktop::SaveSetting(application, section, key, text);
  }
  void PlayWave(const desktop::WaveImage& image) override {
    witness_->Tell("sound " + std::string(image.name));
    RealDesktop::PlayWave(image);
  }
  void EndProcess() override {
    witness_->Look();
    std::cout << saved_ << "ended" << std::endl;
    RealDesktop::EndProcess();
  }

 protected:
  void Follow() override {
    RealDesktop::Follow();
    witness_->Look();
  }

 private:
  static std::uint64_t Seed() {
    const char* seed = std::getenv("HANDS_SEED");
    return seed ? std::strtoull(seed, nullptr, 10) : 0;
  }

  void Tell(const std::string& line) {
    clock_.Hear(line);
    std::cout << line << std::endl;
  }

  void TakeOrders() {
    static constexpr std::string_view kGo = "go ";
    for (std::string order; std::getline(std::cin, order);)
      if (order.starts_with(kGo)) clock_.RunUntil(order.substr(kGo.size()));
  }

  desktop::common::Chance chance_{Seed()};
  HaltingClock clock_;
  std::optional<Witness> witness_;
  std::string saved_;
};

}  // namespace hands
