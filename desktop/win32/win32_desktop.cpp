#include "desktop/win32/win32_desktop.h"

#include <windows.h>

// After windows.h, without which they cannot be read.
#include <imm.h>
#include <mmsystem.h>
#include <objbase.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdlib>

#include "desktop/common/place.h"
#include "desktop/win32/form_view.h"
#include "desktop/win32/frame_window.h"
#include "desktop/win32/materials.h"
#include "desktop/win32/message_rest.h"
#include "desktop/win32/question_box.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

Win32Desktop::Win32Desktop() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
  // Nothing is written here. An input method would take the keys for the beginning of a word.
  ImmDisableIME(0);
  materials_ = std::make_unique<Materials>();
}

Win32Desktop::~Win32Desktop() = default;

void Win32Desktop::Run() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    // Here nothing of any view runs.
    retired_.clear();
  }
}

void Win32Desktop::ShowFrame(Frame& frame) {
  delivery_.emplace(frame, static_cast<common::Screen&>(*this), waits_);
  window_ = std::make_unique<FrameWindow>(frame, *delivery_, [this](common::Scale scale) { Rescale(scale.ratio()); });
  views_.emplace(frame, [this](Form& form) { return MakeView(form); });
  window_->Appear();
}

FormView* Win32Desktop::MakeView(Form& form) {
  shown_.push_back(std::make_unique<FormView>(form, *delivery_, *materials_, window_->handle(),
                                              [this](FormView* view) { Retire(view); }));
  return shown_.back().get();
}

void Win32Desktop::Retire(FormView* view) {
  const auto at = std::ranges::find(shown_, view, &std::unique_ptr<FormView>::get);
  retired_.push_back(std::move(*at));
  shown_.erase(at);
}

void Win32Desktop::Rescale(double ratio) {
  materials_->SetScale(common::Scale(ratio));
  for (const auto& view : shown_) view->Rescale();
}

void Win32Desktop::RunEventsUntil(double moment) {
  Follow();
  const double left = moment - Clock();
  if (left <= 0) return;
  MessageRest rest(left);
  waits_.Run(rest);
}

bool Win32Desktop::AskYesNo(std::string_view text, std::string_view title) {
  return delivery_->Ask([&] { return win32::AskYesNo(window_->handle(), text, title); });
}

std::string Win32Desktop::ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                      std::string_view fallback) {
  return settings_.Read(application, section, key, fallback);
}

void Win32Desktop::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                               std::string_view text) {
  settings_.Save(application, section, key, text);
}

void Win32Desktop::PlayWave(const WaveImage& image) {
  const auto* bytes = reinterpret_cast<const wchar_t*>(image.bytes.data());
  PlaySoundW(bytes, nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

Area Win32Desktop::WorkArea() const {
  RECT room{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0);
  const common::Rect layout = DesktopScale().Layout(FromWindows(room));
  return {common::InTwips(layout.left), common::InTwips(layout.top), common::InTwips(layout.width),
          common::InTwips(layout.height)};
}

void Win32Desktop::OpenMail(std::string_view address) { Open("mailto:" + std::string(address)); }

void Win32Desktop::OpenPage(std::string_view address) { Open(std::string(address)); }

void Win32Desktop::Open(const std::string& address) const {
  ShellExecuteW(window_->handle(), L"open", Wide(address).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

void Win32Desktop::EndProcess() {
  settings_.Sync();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace desktop::win32
