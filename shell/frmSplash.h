// The opening form: title, fanfare, and the four ways on.
#pragma once

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmSplash : public desktop::Form {
 public:
  /// What the buttons open.
  struct Ways {
    desktop::Form& frmGame;
    desktop::Form& frmOptions;
    desktop::Form& frmHelp;
  };

  frmSplash(Module1& module1, const Ways& ways) : Form("frmSplash"), module1_(module1), ways_(ways) {}

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  desktop::Element fraMainFrame, Image1, lblCompanyProduct, lblWarning, lblProductName;
  desktop::Element ExitButton, cmdOptions, PlayGame, Instructions;

 private:
  void LayOut();
  void Instructions_Click();
  void cmdOptions_Click();
  void PlayGame_Click();
  void ExitButton_Click();

  Module1& module1_;
  Ways ways_;
};

}  // namespace thistle
