// The real desktop, on Qt.
#pragma once

#include <QEventLoop>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "desktop/chance.h"
#include "desktop/desktop.h"
#include "desktop/qt/events.h"
#include "desktop/qt/form_view.h"
#include "desktop/qt/frame_window.h"
#include "desktop/qt/picture_store.h"
#include "desktop/qt/settings_store.h"
#include "desktop/sdl/sound_player.h"

namespace desktop::qt {

/// Prefers the window system that tells a window its place, where there are two and the user has
/// not chosen. Before the QApplication is made.
void ChoosePlatform();

/// Needs a QApplication that lives as long.
class QtDesktop : public Desktop, private Events {
 public:
  // --- Desktop
  void ShowFrame(Frame& frame) override;
  void SetFocus(Form& form, Element& control) override;
  void ReleaseMouse() override { pointer_->Lose(); }
  double Clock() const override;
  void RunEventsUntil(double moment) override;
  void Randomize() override;
  float Random() override { return chance_.Next(); }
  bool AskYesNo(std::string_view text, std::string_view title) override;
  std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                          std::string_view fallback) override;
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override;
  void PlayWave(const WaveImage& image) override;
  Area WorkArea() const override;
  void OpenMail(std::string_view address) override;
  void OpenPage(std::string_view address) override;
  void EndProcess() override;

  /// The window, for tests.
  FrameWindow& window() { return *window_; }

 private:
  // --- Events
  void Deliver(const std::function<void()>& handler) override;
  Pointer& pointer() override { return *pointer_; }
  Frame& frame() override { return *frame_; }

  /// Brings the screen up to what the records say.
  void Follow();
  void DropUnloaded();
  void FollowOrder();

  Frame* frame_ = nullptr;
  std::optional<Pointer> pointer_;
  Chance chance_;
  SettingsStore settings_;
  PictureStore pictures_;
  sdl::SoundPlayer sound_;
  bool seen_ = false;                 ///< the window's first picture is on the screen
  std::optional<WaveImage> opening_;  ///< to be played then
  std::unique_ptr<FrameWindow> window_;
  std::map<Form*, FormView*> views_;
  std::vector<Form*> order_;
  QEventLoop* wait_ = nullptr;  ///< the innermost wait's
};

}  // namespace desktop::qt
