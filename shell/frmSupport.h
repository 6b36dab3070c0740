// How to reach the maker: by mail, and on the web.
#pragma once

#include <array>

#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmSupport : public desktop::Form {
 public:
  explicit frmSupport(Module1& module1) : Form("frmSupport"), module1_(module1) {}

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  std::array<desktop::Element, 2> Image1;
  desktop::Element Label1, Label2, Label3, Label4, Label5, Label6, cmdOK;

 private:
  void LayOut();
  void Label4_Click();
  void Label6_Click();
  void cmdOK_Click();

  Module1& module1_;
};

}  // namespace thistle
