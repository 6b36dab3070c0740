// What a form that fills the frame's client area has in common with the others of its kind.
#pragma once

#include "Graphics/colours.h"
#include "desktop/form.h"
#include "shell/frame_size.h"

namespace thistle {

inline void FillFrame(desktop::Form& form) {
  form.Width = frame_size::kClientWidth;
  form.Height = frame_size::kClientHeight;
  form.BackColor = colours::kTable;
}

}  // namespace thistle
