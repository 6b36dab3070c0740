#include "desktop/win32/wood_button.h"

#include <utility>

#include "desktop/win32/text.h"

namespace desktop::win32 {

WoodButton::WoodButton(ControlEvents events, Materials& materials, HWND parent)
    : ButtonWindow(BS_OWNERDRAW, std::move(events), materials, parent) {}

void WoodButton::Paint(WindowCanvas& canvas) {
  const common::ButtonState state{
      .pressed = IsPressed(), .focused = GetFocus() == window(), .enabled = IsWindowEnabled(window()) != FALSE};
  common::PaintButton(canvas, record(), state, materials().scale);
}

std::wstring WoodButton::Name() const { return SpokenName(record().Caption); }

}  // namespace desktop::win32
