// The instructions, in a view that fills the form.
#pragma once

#include <array>

#include "desktop/document.h"
#include "desktop/form.h"
#include "game/module1.h"

namespace thistle {

class frmHelp : public desktop::Form {
 public:
  explicit frmHelp(Module1& module1) : Form("frmHelp"), module1_(module1) {}

  void Form_Load() override;
  void Click(desktop::Element& element) override;

  desktop::Element RichTextBox1, Command1;
  std::array<desktop::Element, 2> Image1;

 private:
  void LayOut();
  void Command1_Click();

  Module1& module1_;
  desktop::Document document_;
};

}  // namespace thistle
