// The round mark of an option, as the system draws it; its words stand beside it as a label.
#pragma once

#include "desktop/win32/button_window.h"

namespace desktop::win32 {

class OptionMark : public ButtonWindow {
 public:
  OptionMark(ControlEvents events, Materials& materials, HWND parent);

  void Follow(const Element& record) override;

 protected:
  void Paint(WindowCanvas& canvas) override;
  std::wstring Name() const override;
};

}  // namespace desktop::win32
