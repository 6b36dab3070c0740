#include "desktop/win32/text_view.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/common/ground.h"
#include "desktop/win32/input.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

// In the layout's pixels.
constexpr int kMargin = 4;
constexpr int kStep = 20;

// While the mouse is held above or below the view, it scrolls on.
constexpr UINT_PTR kScrollTimer = 1;
constexpr UINT kScrollPace = 50;  // milliseconds

Colour System(int index) {
  const COLORREF colour = GetSysColor(index);
  return {static_cast<std::uint32_t>(GetRValue(colour) << 16 | GetGValue(colour) << 8 | GetBValue(colour))};
}

void PutOnClipboard(HWND owner, const std::wstring& text) {
  if (!OpenClipboard(owner)) return;
  EmptyClipboard();
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  if (const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size)) {
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    if (!SetClipboardData(CF_UNICODETEXT, memory)) GlobalFree(memory);
  }
  CloseClipboard();
}

/// Lines end with a carriage return and a line feed outside the program.
std::wstring WithReturns(const std::string& words) {
  std::string lines;
  for (const char c : words) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return Wide(lines);
}

}  // namespace

TextView::TextView(ControlEvents events, Materials& materials, HWND parent)
    : events_(std::move(events)), materials_(materials) {
  Create(nullptr, WS_CHILD | WS_CLIPSIBLINGS | WS_VSCROLL, 0, {}, parent);
}

void TextView::Follow(const Element& record) {
  if (record.Text == shown_ || !record.Text) return;
  shown_ = record.Text;
  LayOut();
  SetWindowTextW(handle(), WithReturns(layout_->words()).c_str());
}

void TextView::LayOut() {
  if (!shown_) return;
  RECT inside{};
  GetClientRect(handle(), &inside);
  const common::Scale& scale = materials_.scale;
  layout_.emplace(*shown_, inside.right / scale.ratio() - 2 * kMargin, materials_.fonts);
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL;
  bar.nMax = scale.Device(layout_->Height() + 2 * kMargin) - 1;
  bar.nPage = static_cast<UINT>(inside.bottom);
  SetScrollInfo(handle(), SB_VERT, &bar, TRUE);
  // On a screen of another scale what was read stays in view.
  const double before = std::exchange(ratio_, scale.ratio());
  ScrollTo(static_cast<int>(std::lround(top_ * ratio_ / before)));
  InvalidateRect(handle(), nullptr, FALSE);
}

int TextView::Page() const {
  RECT inside{};
  GetClientRect(handle(), &inside);
  return static_cast<int>(inside.bottom);
}

void TextView::ScrollTo(int top) {
  const int most = materials_.scale.Device(layout_->Height() + 2 * kMargin) - Page();
  top_ = std::clamp(top, 0, std::max(0, most));
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_POS;
  bar.nPos = top_;
  SetScrollInfo(handle(), SB_VERT, &bar, TRUE);
  InvalidateRect(handle(), nullptr, FALSE);
}

void TextView::ScrollBy(common::Scroll scroll) {
  using common::Scroll;
  struct Step {
    Scroll scroll;
    int action;
  };
  constexpr Step kSteps[] = {{Scroll::LineUp, SB_LINEUP}, {Scroll::LineDown, SB_LINEDOWN},
                             {Scroll::PageUp, SB_PAGEUP}, {Scroll::PageDown, SB_PAGEDOWN},
                             {Scroll::ToStart, SB_TOP},   {Scroll::ToEnd, SB_BOTTOM}};
  for (const auto& [step, action] : kSteps)
    if (step == scroll) MoveBar(action);
}

void TextView::MoveBar(int action) {
  SCROLLINFO bar{};
  bar.cbSize = sizeof bar;
  bar.fMask = SIF_ALL;
  GetScrollInfo(handle(), SB_VERT, &bar);
  const int step = materials_.scale.Device(kStep);
  switch (action) {
    case SB_LINEUP:
      return ScrollTo(top_ - step);
    case SB_LINEDOWN:
      return ScrollTo(top_ + step);
    case SB_PAGEUP:
      return ScrollTo(top_ - Page());
    case SB_PAGEDOWN:
      return ScrollTo(top_ + Page());
    case SB_TOP:
      return ScrollTo(0);
    case SB_BOTTOM:
      return ScrollTo(bar.nMax);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return ScrollTo(bar.nTrackPos);
    default:
      return;
  }
}

void TextView::Wheel(int notches) {
  UINT lines = 3;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const int notch = lines == WHEEL_PAGESCROLL ? Page() : static_cast<int>(lines) * materials_.scale.Device(kStep);
  // A fine wheel tells parts of a notch.
  notched_ += notches * notch;
  ScrollTo(top_ - notched_ / WHEEL_DELTA);
  notched_ %= WHEEL_DELTA;
}

LRESULT TextView::Handle(UINT message, WPARAM wide, LPARAM details) {
  const bool onScrollBar = message == WM_NCLBUTTONDOWN;
  if (onScrollBar || PressedBy(message) != 0) events_.pressed();
  switch (message) {
    case WM_SIZE:
      LayOut();
      return 0;
    case WM_SYSCOLORCHANGE:
      InvalidateRect(handle(), nullptr, FALSE);
      return 0;
    case WM_VSCROLL:
      MoveBar(LOWORD(wide));
      return 0;
    case WM_MOUSEWHEEL:
      Wheel(GET_WHEEL_DELTA_WPARAM(wide));
      return 0;
    case WM_LBUTTONDOWN:
      Select(details);
      return 0;
    case WM_MOUSEMOVE:
      if (selecting_) SelectUnder(details);
      return 0;
    case WM_TIMER:
      FollowMouse();
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      selecting_ = false;
      KillTimer(handle(), kScrollTimer);
      return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
      return SendMessageW(GetParent(handle()), message, wide, details);
    case WM_SETCURSOR:
      if (LOWORD(details) != HTCLIENT) break;
      SetCursor(LoadCursorW(nullptr, IDC_IBEAM));
      return TRUE;
    default:
      break;
  }
  return Default(message, wide, details);
}

void TextView::Select(LPARAM point) {
  SetCapture(handle());
  selecting_ = true;
  SelectUnder(point);
  anchor_ = caret_;
}

void TextView::SelectUnder(LPARAM point) {
  mouse_ = point;
  const double ratio = materials_.scale.ratio();
  const double x = GET_X_LPARAM(point) / ratio - kMargin;
  const double y = (GET_Y_LPARAM(point) + top_) / ratio - kMargin;
  caret_ = layout_->OffsetAt(x, y);
  const int height = GET_Y_LPARAM(point);
  if (height < 0 || height >= Page())
    SetTimer(handle(), kScrollTimer, kScrollPace, nullptr);
  else
    KillTimer(handle(), kScrollTimer);
  InvalidateRect(handle(), nullptr, FALSE);
}

void TextView::FollowMouse() {
  MoveBar(GET_Y_LPARAM(mouse_) < 0 ? SB_LINEUP : SB_LINEDOWN);
  SelectUnder(mouse_);
}

common::Stretch TextView::Selected() const { return {std::min(anchor_, caret_), std::max(anchor_, caret_)}; }

void TextView::Copy() const {
  if (layout_ && anchor_ != caret_) PutOnClipboard(handle(), WithReturns(layout_->Words(Selected())));
}

void TextView::Paint() {
  WindowCanvas canvas(handle(), materials_);
  canvas.Fill(canvas.Damaged(), {common::TextGround(System(COLOR_INFOBK))});
  if (!layout_) return;
  const common::Scale& scale = materials_.scale;
  const int margin = scale.Device(kMargin);
  canvas.BeginAt(margin, margin - top_);
  const common::Rect damaged = canvas.Damaged().Moved(-margin, top_ - margin);
  for (const common::Rect& marked : layout_->Marked(Selected()))
    canvas.Fill(scale.Device(marked), {System(COLOR_HIGHLIGHT), 96});
  for (const common::DocumentLine& line : layout_->lines()) {
    const int top = scale.Device(line.top);
    const int bottom = scale.Device(line.top + line.height) + 1;
    if (bottom > damaged.top && top < damaged.Bottom()) PaintLine(canvas, line);
  }
}

void TextView::PaintLine(WindowCanvas& canvas, const common::DocumentLine& line) const {
  const common::Scale& scale = materials_.scale;
  const double base = line.top + line.ascent;
  for (const common::Piece& piece : line.pieces) {
    if (const Picture* picture = piece.run->Picture) {
      const common::Size size = scale.Device(*picture);
      canvas.Show(*picture, {scale.Device(piece.left), scale.Device(base) - size.height, size.width, size.height});
      continue;
    }
    const TextStyle& style = *piece.run->Style;
    const double top = base - materials_.fonts.Ascent(style.Font);
    canvas.Write({layout_->Words(piece.words), piece.left, top, piece.width}, style.Font, style.ForeColor);
  }
}

}  // namespace desktop::win32
