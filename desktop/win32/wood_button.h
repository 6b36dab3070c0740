// A push button with a picture as its face and its caption over it.
#pragma once

#include "desktop/win32/button_window.h"

namespace desktop::win32 {

class WoodButton : public ButtonWindow {
 public:
  WoodButton(ControlEvents events, Materials& materials, HWND parent);

 protected:
  void Paint(WindowCanvas& canvas) override;
  std::wstring Name() const override;
};

}  // namespace desktop::win32
