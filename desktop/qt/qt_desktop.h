// The real desktop, on Qt.
#pragma once

#include <memory>
#include <optional>

#include "desktop/common/chance.h"
#include "desktop/common/clock.h"
#include "desktop/common/delivery.h"
#include "desktop/common/views.h"
#include "desktop/common/waits.h"
#include "desktop/desktop.h"
#include "desktop/qt/deferred_sound.h"
#include "desktop/qt/endings.h"
#include "desktop/qt/frame_window.h"
#include "desktop/qt/picture_store.h"
#include "desktop/qt/settings_store.h"

namespace desktop::qt {

/// What the toolkit is told at its start. Made before the QApplication, and lives as long.
struct CommandLine {
  /// Only the program's name: nothing that a user writes behind it means anything here.
  explicit CommandLine(char* program);

  int count = 1;
  char* words[4];
};

/// Needs a QApplication that lives as long.
class QtDesktop : public Desktop, private common::Screen {
 public:
  // --- Desktop
  void ShowFrame(Frame& frame) override;
  void SetFocus(Form& form, Element& control) override { delivery_->SetFocus(form, control); }
  void ReleaseMouse() override { delivery_->ReleaseMouse(); }
  double Clock() const override { return common::SteadySeconds(); }
  void RunEventsUntil(double moment) override;
  void Randomize() override { chance_.Randomize(); }
  float Random() override { return chance_.Next(); }
  bool AskYesNo(std::string_view text, std::string_view title) override;
  std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) override;
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override;
  void PlayWave(const WaveImage& image) override { sound_.Play(image); }
  Area WorkArea() const override;
  void OpenMail(std::string_view address) override;
  void OpenPage(std::string_view address) override;
  void EndProcess() override;

  /// The window, for tests.
  FrameWindow& window() { return *window_; }

 protected:
  // --- common::Screen
  void Follow() override { views_->Follow(); }

 private:
  common::Waits waits_;
  common::Chance chance_;
  SettingsStore settings_;
  PictureStore pictures_;
  DeferredSound sound_;
  std::optional<common::Delivery> delivery_;
  std::unique_ptr<FrameWindow> window_;
  std::optional<common::Views> views_;
  std::optional<Endings> endings_;
};

}  // namespace desktop::qt
