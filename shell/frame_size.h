// How large the frame is in the normal state, and so the forms that fill it.
#pragma once

#include "Graphics/colours.h"
#include "desktop/form.h"

namespace thistle::frame_size {

// Twips, with border, title bar and menu: what the start place is reckoned with.
inline constexpr int kOuterWidth = 9600;
inline constexpr int kOuterHeight = 6775;

// Pixels inside, below the menu.
inline constexpr int kClientWidth = 632;
inline constexpr int kClientHeight = 406;

}  // namespace thistle::frame_size

namespace thistle {

inline void FillFrame(desktop::Form& form) {
  form.Width = frame_size::kClientWidth;
  form.Height = frame_size::kClientHeight;
  form.BackColor = colours::kTable;
}

}  // namespace thistle
