#include "desktop/win32/frame_window.h"

#include <cmath>
#include <utility>

#include "desktop/common/place.h"
#include "desktop/win32/canvas.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;

// The look whether the size is right.
constexpr UINT_PTR kSnapTimer = 1;

bool IsBorder(LRESULT part) { return part >= HTLEFT && part <= HTBOTTOMRIGHT; }

common::Scale ScaleOf(UINT dpi) { return common::Scale(static_cast<double>(dpi) / USER_DEFAULT_SCREEN_DPI); }

}  // namespace

common::Scale DesktopScale() { return ScaleOf(GetDpiForSystem()); }

FrameWindow::FrameWindow(Frame& frame, common::Delivery& delivery, std::function<void(common::Scale)> rescale)
    : frame_(frame), delivery_(delivery), rescale_(std::move(rescale)), menu_(frame.Menu) {}

void FrameWindow::Appear() {
  const POINT place = Place();
  Create(Wide(frame_.Caption).c_str(), kStyle, 0, {place.x, place.y, place.x, place.y}, nullptr);
  SetMenu(handle(), menu_.handle());
  scale_ = ScaleOf(GetDpiForWindow(handle()));
  rescale_(scale_);
  appeared_ = true;
  StandAt(place);
  ShowWindow(handle(), SW_SHOWNORMAL);
}

common::Size FrameWindow::FixedSize() const {
  return {scale_.Device(frame_.ClientWidth), scale_.Device(frame_.ClientHeight)};
}

SIZE FrameWindow::ReckonedSize() const {
  const common::Size inside = FixedSize();
  RECT rect{0, 0, inside.width, inside.height};
  const auto dpi = static_cast<UINT>(std::lround(scale_.ratio() * USER_DEFAULT_SCREEN_DPI));
  AdjustWindowRectExForDpi(&rect, kStyle, TRUE, 0, dpi);
  return {rect.right - rect.left, rect.bottom - rect.top};
}

/// Takes the fixed size, at this place.
void FrameWindow::StandAt(POINT place) {
  const auto stand = [&] {
    SetWindowPos(handle(), nullptr, place.x, place.y, outer_.cx, outer_.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  };
  outer_ = ReckonedSize();
  stand();
  // The decoration may be another than was reckoned: a menu of two lines, a theme.
  const common::Size inside = Look().size;
  const common::Size fixed = FixedSize();
  if (inside == fixed) return;
  outer_.cx += fixed.width - inside.width;
  outer_.cy += fixed.height - inside.height;
  stand();
}

common::WindowLook FrameWindow::Look() const {
  RECT inside{};
  GetClientRect(handle(), &inside);
  return {.shown = IsWindowVisible(handle()) != FALSE,
          .minimised = IsIconic(handle()) != FALSE,
          .maximised = IsZoomed(handle()) != FALSE,
          .size = {static_cast<int>(inside.right), static_cast<int>(inside.bottom)}};
}

POINT FrameWindow::Place() const {
  const common::Scale scale = DesktopScale();
  return {scale.Device(common::OnScreen(frame_.Left)), scale.Device(common::OnScreen(frame_.Top))};
}

/// Whether the noted place lies on the screen on which the window stands.
bool FrameWindow::IsPlaceHere() const {
  const POINT place = Place();
  const RECT there{place.x, place.y, place.x + outer_.cx, place.y + outer_.cy};
  return MonitorFromRect(&there, MONITOR_DEFAULTTONULL) == MonitorFromWindow(handle(), MONITOR_DEFAULTTONEAREST);
}

POINT FrameWindow::Corner() const {
  RECT outer{};
  GetWindowRect(handle(), &outer);
  return {outer.left, outer.top};
}

void FrameWindow::NotePlace() {
  // What the title bar is dragged over on the way to an edge of the screen, at which the system snaps the window, is
  // not where the player has put it.
  if (!appeared_ || held_ || !common::IsPlayersOwn(Look(), FixedSize())) return;
  const POINT corner = Corner();
  const double ratio = DesktopScale().ratio();
  frame_.Left = common::InTwips(static_cast<int>(std::lround(corner.x / ratio)));
  frame_.Top = common::InTwips(static_cast<int>(std::lround(corner.y / ratio)));
}

void FrameWindow::Fit() {
  if (!appeared_) return;
  delivery_.Resize(common::StateOf(Look(), FixedSize()));
  snapBack_.NoteChange(Look().size, FixedSize());
  LookLater();
}

void FrameWindow::LookLater() { SetTimer(handle(), kSnapTimer, static_cast<UINT>(snapBack_.Wait().count()), nullptr); }

void FrameWindow::SnapBack() {
  KillTimer(handle(), kSnapTimer);
  // No window is left at half the screen: none here refuses a size for that.
  constexpr common::Size kNoRoom{};
  if (!snapBack_.Wishes(Look(), FixedSize(), kNoRoom)) return NotePlace();
  // What has changed its size has moved it, too: a snap, a drag of the upper or left border. But where it was maximised
  // and has come to another screen meanwhile, or its own is gone, it stays.
  StandAt(IsPlaceHere() ? Place() : Corner());
  LookLater();
}

void FrameWindow::Rescale(UINT dpi, const RECT& suggested) {
  scale_ = ScaleOf(dpi);
  rescale_(scale_);
  const common::Rect room = FromWindows(suggested);
  const bool isNormal = !IsZoomed(handle()) && !IsIconic(handle());
  if (isNormal)
    StandAt({room.left, room.top});
  else
    outer_ = ReckonedSize();  // the least to which it can be restored
  if (IsZoomed(handle()))
    SetWindowPos(handle(), nullptr, room.left, room.top, room.width, room.height, SWP_NOZORDER | SWP_NOACTIVATE);
  InvalidateRect(handle(), nullptr, FALSE);
}

void FrameWindow::Close() {
  frame_.State = common::StateOf(Look(), FixedSize());
  held_ = false;
  NotePlace();
  delivery_.Close();
}

void FrameWindow::Paint() {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(handle(), &paint);
  SetDCBrushColor(context, ToWindows(frame_.BackColor));
  FillRect(context, &paint.rcPaint, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
  EndPaint(handle(), &paint);
}

LRESULT FrameWindow::Handle(UINT message, WPARAM wide, LPARAM details) {
  switch (message) {
    case WM_SIZE:
      Fit();
      return 0;
    case WM_MOVE:
      NotePlace();
      return 0;
    case WM_ENTERSIZEMOVE:
      held_ = true;
      break;
    case WM_EXITSIZEMOVE:
      held_ = false;
      LookLater();
      break;
    case WM_TIMER:
      SnapBack();
      return 0;
    case WM_NCHITTEST: {
      // No border can be drawn.
      const LRESULT part = Default(message, wide, details);
      return IsBorder(part) ? HTBORDER : part;
    }
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(details)->ptMinTrackSize = {outer_.cx, outer_.cy};
      return 0;
    case WM_DPICHANGED:
      Rescale(LOWORD(wide), *reinterpret_cast<const RECT*>(details));
      return 0;
    case WM_SETTINGCHANGE:
      // The height of the menu may have changed.
      Fit();
      break;
    case WM_SHOWWINDOW:
    case WM_ACTIVATEAPP:
      // Out of sight, or behind another program that has come to the front: with it goes the mouse.
      if (!wide) delivery_.Hide();
      break;
    case WM_SETFOCUS:
      SetFocus(GetWindow(handle(), GW_CHILD));
      return 0;
    case WM_ENTERMENULOOP:
      delivery_.OpenMenu();
      break;
    case WM_COMMAND:
      if (details == 0) delivery_.ChooseMenu(menu_.NameOf(LOWORD(wide)));
      return 0;
    case WM_CLOSE:
      Close();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (wide) Close();
      return 0;
    default:
      break;
  }
  return Default(message, wide, details);
}

}  // namespace desktop::win32
