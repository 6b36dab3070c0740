// The frame: the one window, its menu, and the start and end of a run.
#pragma once

#include "desktop/frame.h"
#include "game/frmGame.h"
#include "game/module1.h"
#include "shell/frmAbout.h"
#include "shell/frmHelp.h"
#include "shell/frmOptions.h"
#include "shell/frmSplash.h"
#include "shell/frmSupport.h"

namespace thistle {

/// Holds a whole run of the program. Nothing of a run lives outside it and its desktop.
class frmMain : public desktop::Frame {
 public:
  explicit frmMain(desktop::Desktop& desktop);

  /// Reads the settings, shows the frame and the opening form.
  void MDIForm_Load();

  void MenuClick(std::string_view name) override;
  void Resize() override { MDIForm_Resize(); }
  void Close() override { MDIForm_Unload(); }

  Module1 module1;
  frmGame Game;
  frmHelp Help;
  frmOptions Options;
  frmSupport Support;
  frmAbout About;
  frmSplash Splash;

 private:
  // --- frmMain.cpp
  void MDIForm_Unload();
  // --- menu.cpp
  void mnuNewGame_Click();
  void mnuExit_Click();
  void mnuOptions_Click();
  void mnuInstr_Click();
  void Support_Click();
  void mnuAbout_Click();
  // --- window_fitting.cpp
  void MDIForm_Resize();
};

/// Starts a run: shows the frame. Everything after is done by the events that `desktop` delivers.
inline void Main(frmMain& frame) { frame.MDIForm_Load(); }

}  // namespace thistle
