#include "desktop/win32/control.h"

#include <utility>

#include "desktop/win32/link_label.h"
#include "desktop/win32/option_mark.h"
#include "desktop/win32/text_view.h"
#include "desktop/win32/wood_button.h"

namespace desktop::win32 {

std::unique_ptr<Control> MakeControl(const Element& record, ControlEvents events, Materials& materials, HWND parent) {
  switch (record.Kind) {
    case Kind::OptionButton:
      return std::make_unique<OptionMark>(std::move(events), materials, parent);
    case Kind::Link:
      return std::make_unique<LinkLabel>(std::move(events), materials, parent);
    case Kind::TextView:
      return std::make_unique<TextView>(std::move(events), materials, parent);
    default:
      return std::make_unique<WoodButton>(std::move(events), materials, parent);
  }
}

}  // namespace desktop::win32
