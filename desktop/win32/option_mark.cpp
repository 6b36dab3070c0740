#include "desktop/win32/option_mark.h"

#include <uxtheme.h>
#include <vssym32.h>

#include <utility>

#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

// Where no theme says how large a mark is, in the layout's pixels.
constexpr int kPlainSize = 13;

int ThemedState(bool set, bool pressed) {
  if (set) return pressed ? RBS_CHECKEDPRESSED : RBS_CHECKEDNORMAL;
  return pressed ? RBS_UNCHECKEDPRESSED : RBS_UNCHECKEDNORMAL;
}

/// In the middle, which leaves room for the marks of the keyboard around it.
RECT MarkIn(const RECT& box, SIZE size) {
  const LONG left = (box.left + box.right - size.cx) / 2;
  const LONG top = (box.top + box.bottom - size.cy) / 2;
  return {left, top, left + size.cx, top + size.cy};
}

}  // namespace

OptionMark::OptionMark(ControlEvents events, Materials& materials, HWND parent)
    : ButtonWindow(BS_RADIOBUTTON, std::move(events), materials, parent) {}

void OptionMark::Follow(const Element& record) {
  ButtonWindow::Follow(record);
  const WPARAM check = record.Value ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageW(window(), BM_GETCHECK, 0, 0)) == check) return;
  SendMessageW(window(), BM_SETCHECK, check, 0);
  Repaint();
}

void OptionMark::Paint(WindowCanvas& canvas) {
  PaintGround(canvas);
  RECT box{};
  GetClientRect(window(), &box);
  RECT mark{};
  if (const HTHEME theme = OpenThemeData(window(), L"Button")) {
    const int state = ThemedState(record().Value, IsPressed());
    SIZE size{};
    GetThemePartSize(theme, canvas.context(), BP_RADIOBUTTON, state, nullptr, TS_DRAW, &size);
    mark = MarkIn(box, size);
    DrawThemeBackground(theme, canvas.context(), BP_RADIOBUTTON, state, &mark, nullptr);
    CloseThemeData(theme);
  } else {
    const LONG side = materials().scale.Device(kPlainSize);
    mark = MarkIn(box, {side, side});
    const UINT state = (record().Value ? DFCS_CHECKED : 0U) | (IsPressed() ? DFCS_PUSHED : 0U);
    DrawFrameControl(canvas.context(), &mark, DFC_BUTTON, DFCS_BUTTONRADIO | state);
  }
  if (GetFocus() != window()) return;
  const LONG line = materials().scale.Line();
  InflateRect(&mark, 2 * line, 2 * line);
  SetTextColor(canvas.context(), RGB(0, 0, 0));
  DrawFocusRect(canvas.context(), &mark);
}

std::wstring OptionMark::Name() const { return Wide(record().AccessibleName); }

}  // namespace desktop::win32
