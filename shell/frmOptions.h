// The one option: sounds off or on.
#pragma once

#include <array>

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmOptions : public desktop::Form {
 public:
  explicit frmOptions(Module1& module1) : Form("frmOptions"), module1_(module1) {}

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  std::array<desktop::Element, 2> Image1, Option1, Label1;  ///< options: 0 off, 1 on
  desktop::Element lblTitle, cmdOK;

 private:
  void LayOut();
  void Option1_Click(int Index);
  void cmdOK_Click();

  Module1& module1_;
};

}  // namespace thistle
