#include "desktop/simulated/simulated_desktop.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace desktop::simulated {

namespace {

Element* ControlAt(const Form& form, float x, float y) {
  const float left = x - form.Left - static_cast<float>(form.Border);
  const float top = y - form.Top - static_cast<float>(form.Border);
  const auto& controls = form.Controls();
  const auto frontmost = std::find_if(controls.rbegin(), controls.rend(), [=](const Element* control) {
    return control->Reacts() && control->Contains(left, top);
  });
  return frontmost == controls.rend() ? nullptr : *frontmost;
}

std::string Address(std::string_view application, std::string_view section, std::string_view key) {
  return std::string(application) + "/" + std::string(section) + "/" + std::string(key);
}

}  // namespace

/// A rest that ends with the first event, or when the clock has jumped to its moment.
class SimulatedDesktop::RestOnClock : public common::Rest {
 public:
  RestOnClock(SimulatedDesktop& desktop, double moment) : desktop_(desktop), moment_(moment) {}
  void Run() override { desktop_.RestUntil(moment_); }
  void End() override {}

 private:
  SimulatedDesktop& desktop_;
  double moment_;
};

Form* SimulatedDesktop::FormAt(float x, float y) const {
  const auto& children = frame_->Children();
  const auto frontmost = std::find_if(children.rbegin(), children.rend(), [=](const Form* form) {
    return x >= form->Left && x < form->Left + static_cast<float>(form->Width) && y >= form->Top &&
           y < form->Top + static_cast<float>(form->Height);
  });
  return frontmost == children.rend() ? nullptr : *frontmost;
}

void SimulatedDesktop::Press(float x, float y, int button) {
  held_ |= button;
  Form* form = delivery_->HeldOn() ? delivery_->HeldOn() : FormAt(x, y);
  if (!form) return;
  Element* control = delivery_->HeldOn() ? nullptr : ControlAt(*form, x, y);
  if (control) {
    delivery_->PressControl(*form, *control);
    if (button == kLeftButton) pressedControl_ = control;
  } else {
    delivery_->Press(*form, button, x - form->Left, y - form->Top);
  }
  afterEvent();
}

void SimulatedDesktop::Move(float x, float y) {
  if (const Form* form = delivery_->HeldOn()) delivery_->Move(held_, x - form->Left, y - form->Top);
  afterEvent();
}

void SimulatedDesktop::Release(float x, float y, int button) {
  held_ &= ~button;
  if (const Form* form = delivery_->HeldOn()) {
    delivery_->Release(button, x - form->Left, y - form->Top);
  } else if (button == kLeftButton) {
    Element* pressed = std::exchange(pressedControl_, nullptr);
    Form* under = FormAt(x, y);
    if (pressed && under && ControlAt(*under, x, y) == pressed) delivery_->ClickControl(*under, *pressed);
  }
  afterEvent();
}

void SimulatedDesktop::ClickAt(float x, float y) {
  Press(x, y);
  Release(x, y);
}

void SimulatedDesktop::Drag(float fromX, float fromY, float toX, float toY) {
  Press(fromX, fromY);
  Move(toX, toY);
  Release(toX, toY);
}

void SimulatedDesktop::LoseMouse() {
  delivery_->Hide();
  afterEvent();
}

void SimulatedDesktop::Menu(std::string_view name) {
  delivery_->ChooseMenu(name);
  afterEvent();
}

void SimulatedDesktop::PressKey(Key key, bool held) {
  delivery_->PressKey(key, held);
  afterEvent();
}

void SimulatedDesktop::SetState(WindowState state) {
  delivery_->Resize(state);
  afterEvent();
}

void SimulatedDesktop::CloseFrame() { delivery_->Close(); }

void SimulatedDesktop::Idle(double seconds) {
  const double end = clock_ + seconds;
  while (clock_ < end) RestUntil(end);
}

void SimulatedDesktop::ShowFrame(Frame& frame) {
  frame_ = &frame;
  delivery_.emplace(frame, static_cast<common::Screen&>(*this), waits_);
  frame.Resize();
}

void SimulatedDesktop::Follow() {
  if (!frame_->Children().empty()) common::TakeKeyboard(*frame_->Children().back());
  whenFollowed();
}

void SimulatedDesktop::RunEventsUntil(double moment) {
  ++rests;
  while (auto due = inRest_.extract(rests)) At((clock_ + moment) / 2, std::move(due.mapped()));
  RestOnClock rest(*this, moment);
  waits_.Run(rest);
}

void SimulatedDesktop::EndProcess() {
  waitsAtEnd = waits_.Depth();
  throw ProcessEnded{};
}

void SimulatedDesktop::RestUntil(double moment) {
  afterEvent();
  const auto next = events_.begin();
  if (next == events_.end() || next->first > moment) {
    clock_ = moment;
    return;
  }
  clock_ = std::max(clock_, next->first);
  const auto event = std::move(next->second);
  events_.erase(next);
  event();
}

float SimulatedDesktop::Random() {
  ++drawn;
  if (chance.empty()) return generator_.Next();
  const float dealt = chance.front();
  chance.pop_front();
  return dealt;
}

bool SimulatedDesktop::AskYesNo(std::string_view text, std::string_view title) {
  questions.push_back({clock_, std::string(text)});
  titles.emplace_back(title);
  return delivery_->Ask([&] {
    whileAsked();
    if (answers.empty()) throw std::logic_error("no answer to: " + std::string(title) + ": " + std::string(text));
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
  });
}

std::string SimulatedDesktop::ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                          std::string_view fallback) {
  read.emplace_back(key);
  const auto found = store_.find(Address(application, section, key));
  return found == store_.end() ? std::string(fallback) : found->second;
}

void SimulatedDesktop::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                                   std::string_view text) {
  saved.push_back(std::string(key) + "=" + std::string(text));
  store_[Address(application, section, key)] = text;
}

void SimulatedDesktop::PlayWave(const WaveImage& image) { sounds.push_back({clock_, std::string(image.name)}); }

}  // namespace desktop::simulated
