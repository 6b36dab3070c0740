// The game's name, version and maker.
#pragma once

#include <array>

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmAbout : public desktop::Form {
 public:
  explicit frmAbout(Module1& module1);

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  std::array<desktop::Element, 6> Lines;  ///< a rule in two colours, and an inner border
  desktop::Element Image1, lblTitle, lblVersion, lblDescription, cmdOK;

 private:
  void LayOut();
  void cmdOK_Click();

  Module1& module1_;
};

}  // namespace thistle
