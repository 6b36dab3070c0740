#include "desktop/frame.h"

namespace desktop {

void Frame::Open(Form& form) {
  if (form.Loaded) {
    Show(form);
    return;
  }
  form.Loaded = true;
  form.Form_Load();
}

void Frame::Show(Form& form) {
  std::erase(children_, &form);
  children_.push_back(&form);
}

void Frame::Unload(Form& form) {
  std::erase(children_, &form);
  form.Loaded = false;
}

}  // namespace desktop
