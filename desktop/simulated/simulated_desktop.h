// A desktop without a screen: its clock jumps, its dice are dealt, its questions are answered in
// advance, and what it is asked to play or to store is written down.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "desktop/chance.h"
#include "desktop/desktop.h"
#include "desktop/pointer.h"

namespace simulated {

/// Thrown where a real process would end; unwinds every wait, however nested.
struct ProcessEnded {};

/// What survives a run: one text for each application, section and key, joined by slashes.
using Store = std::map<std::string, std::string>;

struct Happening {
  double time;  ///< seconds
  std::string what;
  bool operator==(const Happening&) const = default;
};

class Desktop : public desktop::Desktop {
 public:
  explicit Desktop(Store& store) : store_(store) {}

  // --- What a test prepares.

  std::deque<float> chance;  ///< dealt first; then a generator goes on
  std::deque<bool> answers;  ///< taken one a question; a question without one is a logic_error
  desktop::Area workArea{0, 0, 19200, 12000};
  /// Runs after each event and before each rest.
  std::function<void()> afterEvent = [] {};
  /// Runs while a question is open, before its answer.
  std::function<void()> whileAsked = [] {};

  /// Has `event` arrive at `moment` on the clock. Events due at one moment arrive in the order of
  /// their making.
  void At(double moment, std::function<void()> event) { events_.emplace(moment, std::move(event)); }
  void After(double seconds, std::function<void()> event) { At(clock_ + seconds, std::move(event)); }
  /// Has `event` arrive halfway through a rest of a handler, by its number in `rests`.
  void InRest(int number, std::function<void()> event) { inRest_.emplace(number, std::move(event)); }

  // --- What a player does. Points are pixels in the frame's client area.

  void Press(float x, float y, int button = desktop::kLeftButton);
  void Move(float x, float y);
  void Release(float x, float y, int button = desktop::kLeftButton);
  void ClickAt(float x, float y);
  /// Press, one move, release.
  void Drag(float fromX, float fromY, float toX, float toY);
  /// The platform takes the mouse away.
  void LoseMouse();
  void Menu(std::string_view name);
  void Enter();
  void Escape();
  void Space();
  void Tab();
  void SetState(desktop::WindowState state);
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
  int waits = 0;                    ///< waits of handlers open now, one inside the other
  int rests = 0;                    ///< rests of waiting handlers; an event that comes in splits one in two
  desktop::Element* focus = nullptr;

  desktop::Frame& frame() const { return *frame_; }
  /// The element that holds the mouse, or nullptr.
  const desktop::Element* InHand() const { return pointer_->HeldOn() ? inHand_ : nullptr; }

  // --- desktop::Desktop
  void ShowFrame(desktop::Frame& frame) override;
  void SetFocus(desktop::Form& form, desktop::Element& control) override;
  void ReleaseMouse() override { pointer_->Lose(); }
  double Clock() const override { return clock_; }
  void RunEventsUntil(double moment) override;
  void Randomize() override { ++seeded; }
  float Random() override;
  bool AskYesNo(std::string_view text, std::string_view title) override;
  std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) override;
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override;
  void PlayWave(const desktop::WaveImage& image) override;
  desktop::Area WorkArea() const override { return workArea; }
  void OpenMail(std::string_view address) override { opened.push_back("mailto:" + std::string(address)); }
  void OpenPage(std::string_view address) override { opened.emplace_back(address); }
  void EndProcess() override { throw ProcessEnded{}; }

 private:
  desktop::Form* FormAt(float x, float y) const;
  void ClickControl(desktop::Element* control);
  void PressKeyOf(bool desktop::Element::*role);
  void RestUntil(double moment);

  Store& store_;
  desktop::Chance generator_;
  desktop::Frame* frame_ = nullptr;
  std::optional<desktop::Pointer> pointer_;
  const desktop::Element* inHand_ = nullptr;
  desktop::Element* pressedControl_ = nullptr;
  int held_ = 0;
  double clock_ = 0;
  std::multimap<double, std::function<void()>> events_;
  std::multimap<int, std::function<void()>> inRest_;
};

}  // namespace simulated
