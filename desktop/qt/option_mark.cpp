#include "desktop/qt/option_mark.h"

#include "desktop/qt/text.h"

namespace desktop::qt {

void OptionMark::Follow(const Element& record) {
  setAccessibleName(Text(record.AccessibleName));
  if (isChecked() != record.Value) setChecked(record.Value);
}

}  // namespace desktop::qt
