#include "desktop/simulated/simulated_desktop.h"

#include <algorithm>
#include <stdexcept>

namespace simulated {

namespace {

desktop::Element* ControlAt(const desktop::Form& form, float x, float y) {
  const auto& controls = form.Controls();
  const auto frontmost = std::find_if(controls.rbegin(), controls.rend(), [=](const desktop::Element* control) {
    return control->Visible && control->Enabled && control->Contains(x, y);
  });
  return frontmost == controls.rend() ? nullptr : *frontmost;
}

std::string Address(std::string_view application, std::string_view section, std::string_view key) {
  return std::string(application) + "/" + std::string(section) + "/" + std::string(key);
}

}  // namespace

desktop::Form* Desktop::FormAt(float x, float y) const {
  const auto& children = frame_->Children();
  const auto frontmost = std::find_if(children.rbegin(), children.rend(), [=](const desktop::Form* form) {
    return x >= form->Left && x < form->Left + static_cast<float>(form->Width) && y >= form->Top &&
           y < form->Top + static_cast<float>(form->Height);
  });
  return frontmost == children.rend() ? nullptr : *frontmost;
}

void Desktop::Press(float x, float y, int button) {
  held_ |= button;
  desktop::Form* form = pointer_->HeldOn() ? pointer_->HeldOn() : FormAt(x, y);
  if (!form) return;
  const float left = form->Left + static_cast<float>(form->Border);
  const float top = form->Top + static_cast<float>(form->Border);
  desktop::Element* control = ControlAt(*form, x - left, y - top);
  if (control && !pointer_->HeldOn()) {
    frame_->Show(*form);
    if (button == desktop::kLeftButton) pressedControl_ = control;
  } else {
    if (button == desktop::kLeftButton) inHand_ = form->ElementAt(x - left, y - top);
    pointer_->Press(*form, button, x - left, y - top);
  }
  afterEvent();
}

void Desktop::Move(float x, float y) {
  if (const desktop::Form* form = pointer_->HeldOn()) pointer_->Move(held_, x - form->Left, y - form->Top);
  afterEvent();
}

void Desktop::Release(float x, float y, int button) {
  held_ &= ~button;
  if (const desktop::Form* form = pointer_->HeldOn()) {
    pointer_->Release(button, x - form->Left, y - form->Top);
  } else if (button == desktop::kLeftButton) {
    desktop::Element* pressed = std::exchange(pressedControl_, nullptr);
    const desktop::Form* under = FormAt(x, y);
    if (pressed && under) {
      const auto border = static_cast<float>(under->Border);
      if (ControlAt(*under, x - under->Left - border, y - under->Top - border) == pressed) ClickControl(pressed);
    }
  }
  afterEvent();
}

void Desktop::ClickAt(float x, float y) {
  Press(x, y);
  Release(x, y);
}

void Desktop::Drag(float fromX, float fromY, float toX, float toY) {
  Press(fromX, fromY);
  Move(toX, toY);
  Release(toX, toY);
}

void Desktop::LoseMouse() {
  pointer_->Lose();
  afterEvent();
}

void Desktop::Menu(std::string_view name) {
  // A menu takes the mouse for itself.
  pointer_->Lose();
  frame_->MenuClick(name);
  afterEvent();
}

void Desktop::ClickControl(desktop::Element* control) {
  for (desktop::Form* form : frame_->Children())
    if (std::ranges::find(form->Controls(), control) != form->Controls().end()) {
      form->Click(*control);
      return;
    }
}

void Desktop::PressKeyOf(bool desktop::Element::*role) {
  if (frame_->Children().empty()) return;
  for (desktop::Element* control : frame_->Children().back()->Controls())
    if (control->*role && control->Visible && control->Enabled) {
      ClickControl(control);
      break;
    }
  afterEvent();
}

void Desktop::Enter() {
  if (frame_->Children().empty()) return;
  const auto& controls = frame_->Children().back()->Controls();
  const bool focused = std::ranges::find(controls, focus) != controls.end();
  if (!focused || focus->kind != desktop::Kind::Button) {
    PressKeyOf(&desktop::Element::Default);
    return;
  }
  Space();
}

void Desktop::Space() {
  if (focus && focus->Visible && focus->Enabled) ClickControl(focus);
  afterEvent();
}

void Desktop::Escape() { PressKeyOf(&desktop::Element::Cancel); }

void Desktop::Tab() {
  const auto& controls = frame_->Children().back()->Controls();
  if (controls.empty()) return;
  const auto at = std::ranges::find(controls, focus);
  const bool last = at == controls.end() || at + 1 == controls.end();
  focus = last ? controls.front() : *(at + 1);
}

void Desktop::SetState(desktop::WindowState state) {
  if (state == desktop::WindowState::Minimised) pointer_->Lose();
  frame_->State = state;
  frame_->Resize();
  afterEvent();
}

void Desktop::CloseFrame() { frame_->Close(); }

void Desktop::Idle(double seconds) {
  const double end = clock_ + seconds;
  while (clock_ < end) RestUntil(end);
}

void Desktop::ShowFrame(desktop::Frame& frame) {
  frame_ = &frame;
  pointer_.emplace(frame);
  frame.Resize();
}

void Desktop::SetFocus(desktop::Form&, desktop::Element& control) { focus = &control; }

void Desktop::RunEventsUntil(double moment) {
  ++waits;
  ++rests;
  while (auto due = inRest_.extract(rests)) At((clock_ + moment) / 2, std::move(due.mapped()));
  RestUntil(moment);
  --waits;
}

void Desktop::RestUntil(double moment) {
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

float Desktop::Random() {
  ++drawn;
  if (chance.empty()) return generator_.Next();
  const float dealt = chance.front();
  chance.pop_front();
  return dealt;
}

bool Desktop::AskYesNo(std::string_view text, std::string_view title) {
  pointer_->Lose();
  questions.push_back({clock_, std::string(text)});
  titles.emplace_back(title);
  whileAsked();
  if (answers.empty()) throw std::logic_error("no answer to: " + std::string(title) + ": " + std::string(text));
  const bool answer = answers.front();
  answers.pop_front();
  return answer;
}

std::string Desktop::ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                 std::string_view fallback) {
  read.emplace_back(key);
  const auto found = store_.find(Address(application, section, key));
  return found == store_.end() ? std::string(fallback) : found->second;
}

void Desktop::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view text) {
  saved.push_back(std::string(key) + "=" + std::string(text));
  store_[Address(application, section, key)] = text;
}

void Desktop::PlayWave(const desktop::WaveImage& image) { sounds.push_back({clock_, std::string(image.name)}); }

}  // namespace simulated
