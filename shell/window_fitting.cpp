// Where the forms stand when the frame's size or state changes. The frame's own size in the normal
// state is the desktop's to keep.
#include "shell/frmMain.h"

namespace thistle {

void frmMain::MDIForm_Resize() {
  if (State == desktop::WindowState::Minimised) return;
  for (desktop::Form* form : Children()) module1.PlaceForm(*form);
}

}  // namespace thistle
