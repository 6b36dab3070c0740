// A label that opens something: told by its look, by the pointer and to a screen reader.
#pragma once

#include "desktop/win32/button_window.h"

namespace desktop::win32 {

class LinkLabel : public ButtonWindow {
 public:
  LinkLabel(ControlEvents events, Materials& materials, HWND parent);

 protected:
  void Paint(WindowCanvas& canvas) override;
  LPCWSTR Pointer() const override { return IDC_HAND; }
  std::wstring Name() const override;
};

}  // namespace desktop::win32
