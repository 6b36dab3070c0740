// The opening form: title, fanfare, and the four ways on.
#pragma once

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmSplash : public desktop::Form {
 public:
  /// `table` is what Play Game opens.
  frmSplash(Module1& module1, desktop::Form& table) : Form("frmSplash"), module1_(module1), table_(table) {}

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  desktop::Element fraMainFrame, Image1, lblCompanyProduct, lblWarning, lblProductName;
  desktop::Element ExitButton, cmdOptions, PlayGame, Instructions;

 private:
  void LayOut();
  void PlayGame_Click();
  void ExitButton_Click();

  Module1& module1_;
  desktop::Form& table_;
};

}  // namespace thistle
