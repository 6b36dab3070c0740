#include "desktop/win32/link_label.h"

#include <utility>

#include "desktop/win32/annotation.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

LinkLabel::LinkLabel(ControlEvents events, Materials& materials, HWND parent)
    : ButtonWindow(BS_OWNERDRAW, std::move(events), materials, parent) {
  AnnotateAsLink(window());
}

void LinkLabel::Paint(WindowCanvas& canvas) {
  PaintGround(canvas);
  common::PaintLink(canvas, record());
}

std::wstring LinkLabel::Name() const { return SpokenName(record().Caption); }

}  // namespace desktop::win32
