// The real desktop, on the bare interfaces of Windows.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "desktop/common/chance.h"
#include "desktop/common/clock.h"
#include "desktop/common/delivery.h"
#include "desktop/common/views.h"
#include "desktop/common/waits.h"
#include "desktop/desktop.h"
#include "desktop/win32/settings_store.h"

namespace desktop::win32 {

class FormView;
class FrameWindow;
struct Materials;

class Win32Desktop : public Desktop, private common::Screen {
 public:
  Win32Desktop();
  ~Win32Desktop() override;

  /// Hands out events until the process ends.
  void Run();

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
  void PlayWave(const WaveImage& image) override;
  Area WorkArea() const override;
  void OpenMail(std::string_view address) override;
  void OpenPage(std::string_view address) override;
  void EndProcess() override;

 protected:
  // --- common::Screen
  void Follow() override { views_->Follow(); }

 private:
  FormView* MakeView(Form& form);
  void Retire(FormView* view);
  void Rescale(double ratio);
  void Open(const std::string& address) const;

  common::Waits waits_;
  common::Chance chance_;
  SettingsStore settings_;
  std::unique_ptr<Materials> materials_;
  std::optional<common::Delivery> delivery_;
  std::unique_ptr<FrameWindow> window_;
  std::optional<common::Views> views_;
  std::vector<std::unique_ptr<FormView>> shown_;
  std::vector<std::unique_ptr<FormView>> retired_;  ///< something of them may still run
};

}  // namespace desktop::win32
