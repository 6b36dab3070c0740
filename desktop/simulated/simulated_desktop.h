// A desktop without a screen: its clock jumps, its dice are dealt, its questions are answered in
// advance, and what it is asked to play or to store is written down.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/common/chance.h"
#include "desktop/common/delivery.h"
#include "desktop/common/waits.h"
#include "desktop/desktop.h"

namespace desktop::simulated {

/// Thrown where a real process would end; unwinds every wait, however nested.
struct ProcessEnded {};

/// What survives a run: one text for each application, section and key, joined by slashes.
using Store = std::map<std::string, std::string>;

struct Happening {
  double time;  ///< seconds
  std::string what;
  bool operator==(const Happening&) const = default;
};

class SimulatedDesktop : public Desktop, private common::Screen {
 public:
  explicit SimulatedDesktop(Store& store) : store_(store) {}

  // --- What a test prepares.

  std::deque<float> chance;  ///< dealt first; then a generator goes on
  void Seed(std::uint64_t seed) { generator_.Seed(seed); }
  std::deque<bool> answers;  ///< taken one a question; a question without one is a logic_error
  Area workArea{0, 0, 19200, 12000};
  /// Runs after each event and before each rest.
  std::function<void()> afterEvent = [] {};
  /// Runs when a real desktop would bring its screen up to date.
  std::function<void()> whenFollowed = [] {};
  /// Runs while a question is open, before its answer.
  std::function<void()> whileAsked = [] {};

  /// Has `event` arrive at `moment` on the clock. Events due at one moment arrive in the order of
  /// their making.
  void At(double moment, std::function<void()> event) { events_.emplace(moment, std::move(event)); }
  void After(double seconds, std::function<void()> event) { At(clock_ + seconds, std::move(event)); }
  /// Has `event` arrive halfway through a rest of a handler, by its number in `rests`.
  void InRest(int number, std::function<void()> event) { inRest_.emplace(number, std::move(event)); }

  // --- What a player does. Points are pixels in the frame's client area.

  void Press(float x, float y, int button = kLeftButton);
  void Move(float x, float y);
  void Release(float x, float y, int button = kLeftButton);
  void ClickAt(float x, float y);
  /// Press, one move, release.
  void Drag(float fromX, float fromY, float toX, float toY);
  /// The platform takes the mouse away.
  void LoseMouse();
  void Menu(std::string_view name);
  void PressKey(Key key, bool held = false);
  void Enter() { PressKey(Key::Enter); }
  void Space() { PressKey(Key::Space); }
  void SetState(WindowState state);
  void CloseFrame();

  /// Lets the clock run idly, events arriving meanwhile.
  void Idle(double seconds);

  // --- What came of it.

  std::vector<Happening> sounds;
  std::vector<Happening> questions;
  std::vector<std::string> titles;  ///< of the questions
  std::vector<std::string> saved;   ///< "key=text", in order
  std::vector<std::string> read;    ///< keys, in order
  std::vector<std::string> opened;  ///< addresses of mail and pages, in order
  int drawn = 0;                    ///< random numbers asked for
  int seeded = 0;                   ///< calls of Randomize
  int rests = 0;                    ///< rests of waiting handlers; an event that comes in splits one in two
  int waitsAtEnd = 0;               ///< waits that were open when the process ended

  /// Waits of handlers open now, one inside the other.
  int Waits() const { return waits_.Depth(); }
  Frame& frame() const { return *frame_; }
  /// The element that holds the mouse, or nullptr.
  const Element* InHand() const { return delivery_->Holder(); }

  // --- Desktop
  void ShowFrame(Frame& frame) override;
  void SetFocus(Form& form, Element& control) override { delivery_->SetFocus(form, control); }
  void ReleaseMouse() override { delivery_->ReleaseMouse(); }
  double Clock() const override { return clock_; }
  void RunEventsUntil(double moment) override;
  void Randomize() override { ++seeded; }
  float Random() override;
  bool AskYesNo(std::string_view text, std::string_view title) override;
  std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) override;
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override;
  void PlayWave(const WaveImage& image) override;
  Area WorkArea() const override { return workArea; }
  void OpenMail(std::string_view address) override { opened.push_back("mailto:" + std::string(address)); }
  void OpenPage(std::string_view address) override { opened.emplace_back(address); }
  void EndProcess() override;

 private:
  class RestOnClock;

  // --- common::Screen
  void Follow() override;

  Form* FormAt(float x, float y) const;
  void RestUntil(double moment);

  Store& store_;
  common::Chance generator_;
  Frame* frame_ = nullptr;
  common::Waits waits_;
  std::optional<common::Delivery> delivery_;
  Element* pressedControl_ = nullptr;
  int held_ = 0;
  double clock_ = 0;
  std::multimap<double, std::function<void()>> events_;
  std::multimap<int, std::function<void()>> inRest_;
};

}  // namespace desktop::simulated
