#include "desktop/win32/form_view.h"

#include <windowsx.h>

#include <utility>

#include "desktop/common/painting.h"
#include "desktop/win32/input.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

HCURSOR CursorOf(PointerShape shape) {
  return LoadCursorW(nullptr, shape == PointerShape::NoDrop ? IDC_NO : IDC_ARROW);
}

}  // namespace

FormView::FormView(Form& form, common::Delivery& delivery, Materials& materials, HWND parent,
                   std::function<void(FormView*)> retire)
    : form_(form),
      delivery_(delivery),
      materials_(materials),
      retire_(std::move(retire)),
      drawing_(form, materials.fonts) {
  Create(Wide(form.AccessibleName).c_str(), WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT, {},
         parent);
  DecodePictures();
}

/// So that no step of a throw has to wait for one.
void FormView::DecodePictures() {
  const common::Scale& scale = materials_.scale;
  for (const Picture* picture : common::PicturesOf(form_)) materials_.pictures.Sized(*picture, scale.Device(*picture));
}

void FormView::Follow() {
  Stand();
  for (const common::Rect& area : drawing_.Follow()) {
    const RECT damaged = ToWindows(materials_.scale.Outward(area).Moved(Border(), Border()));
    InvalidateRect(handle(), &damaged, FALSE);
  }
  FollowControls();
  FollowPointer();
  FollowMouse();
}

/// Always at once: where events come one upon the other, it would wait for a gap between them.
void FormView::Draw(bool) {
  // With its controls, or where one comes what was there before would be seen for a moment.
  RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  if (audience_) audience_->Call();
}

void FormView::Show(bool shown) {
  if ((IsWindowVisible(handle()) != 0) != shown) ShowWindow(handle(), shown ? SW_SHOWNA : SW_HIDE);
}

void FormView::Stand() {
  const common::Scale& scale = materials_.scale;
  const common::Rect box = common::BoxOf(form_);
  const common::Rect place{scale.Device(box.left), scale.Device(box.top), scale.Device(box.width),
                           scale.Device(box.height)};
  if (std::exchange(place_, place) == place) return;
  SetWindowPos(handle(), nullptr, place.left, place.top, place.width, place.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormView::FollowControls() {
  for (Element* element : form_.Controls()) {
    Standing& standing = StandingOf(*element);
    const HWND window = standing.control->window();
    const common::Rect place = materials_.scale.Device(*element).Moved(Border(), Border());
    if (std::exchange(standing.place, place) != place)
      SetWindowPos(window, nullptr, place.left, place.top, place.width, place.height, SWP_NOZORDER | SWP_NOACTIVATE);
    if ((IsWindowEnabled(window) != FALSE) != element->Enabled) EnableWindow(window, element->Enabled);
    standing.control->Follow(*element);
    if (std::exchange(standing.visible, element->Visible) != element->Visible)
      ShowWindow(window, element->Visible ? SW_SHOWNA : SW_HIDE);
  }
}

FormView::Standing& FormView::StandingOf(Element& element) {
  Standing& standing = controls_[&element];
  if (standing.control) return standing;
  ControlEvents events{.pressed = [this, &element] { delivery_.PressControl(form_, element); },
                       .clicked = [this, &element] { delivery_.ClickControl(form_, element); },
                       .paintGround =
                           [this, &standing](WindowCanvas& canvas) {
                             const common::Rect& place = standing.place;
                             const int border = Border();
                             canvas.BeginAt(border - place.left, border - place.top);
                             const common::Rect damaged =
                                 canvas.Damaged().Moved(place.left - border, place.top - border);
                             common::PaintInside(canvas, form_, drawing_, damaged, materials_.scale);
                             canvas.BeginAt(0, 0);
                           }};
  standing.control = MakeControl(element, std::move(events), materials_, handle());
  if (element.Kind == Kind::TextView) text_ = static_cast<TextView*>(standing.control.get());
  return standing;
}

void FormView::FollowPointer() {
  if (std::exchange(shape_, form_.MousePointer) == form_.MousePointer) return;
  // While the mouse is held nobody asks for its shape.
  if (capturing_) SetCursor(CursorOf(shape_));
}

/// A hold may have ended from within.
void FormView::FollowMouse() {
  if (capturing_ && delivery_.HeldOn() != &form_ && std::exchange(capturing_, false)) ReleaseCapture();
}

void FormView::Raise() { SetWindowPos(handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE); }

void FormView::TakeKeyboard() {
  // It would bring the window to the front of the desktop; there it takes the keyboard by itself.
  if (GetActiveWindow() != GetParent(handle())) return;
  const Element* focus = common::FocusOf(form_);
  SetFocus(focus ? controls_.at(focus).control->window() : handle());
}

void FormView::Retire() {
  // Its form may be empty by now.
  audience_.reset();
  retired_ = true;
  SetWindowPos(handle(), HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_HIDEWINDOW);
  retire_(this);
}

void FormView::Rescale() {
  DecodePictures();
  Stand();
  FollowControls();
  for (const auto& [element, standing] : controls_) standing.control->Rescale();
  InvalidateRect(handle(), nullptr, FALSE);
}

LRESULT FormView::Handle(UINT message, WPARAM wide, LPARAM details) {
  if (const int button = PressedBy(message)) {
    Press(button, details);
    return 0;
  }
  if (const int button = ReleasedBy(message)) {
    Release(button, details);
    return 0;
  }
  switch (message) {
    case WM_MOUSEMOVE:
      Move(HeldIn(wide), details);
      return 0;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
      LoseMouse();
      break;
    case WM_SETCURSOR:
      if (reinterpret_cast<HWND>(wide) != handle()) break;
      SetCursor(CursorOf(shape_));
      return TRUE;
    case WM_SETFOCUS:
      if (common::FocusOf(form_)) TakeKeyboard();
      if (audience_) audience_->NoteKeyboard();
      return 0;
    case WM_KEYDOWN:
      if (TakeKey(wide, details)) return 0;
      break;
    case WM_MOUSEWHEEL:
      Wheel(wide, details);
      return 0;
    case WM_GETOBJECT:
      return Answer(wide, details);
    case kTellMessage:
      if (audience_) audience_->Tell();
      return 0;
    case kWishMessage:
      GrantWish();
      return 0;
    default:
      break;
  }
  return Default(message, wide, details);
}

LRESULT FormView::Answer(WPARAM flags, LPARAM object) {
  if (retired_) return 0;
  if (!audience_) {
    audience_ = std::make_unique<Audience>(*this);
    audience_->Call();
  }
  return static_cast<LONG>(object) == OBJID_CLIENT ? audience_->Answer(flags) : Default(WM_GETOBJECT, flags, object);
}

void FormView::GrantWish() {
  if (const auto hand = audience_ ? audience_->TakeWish() : std::nullopt) delivery_.MoveHand(form_, *hand);
}

void FormView::Paint() {
  WindowCanvas canvas(handle(), materials_);
  const common::Scale& scale = materials_.scale;
  common::PaintBorder(canvas, form_, scale);
  canvas.BeginAt(Border(), Border());
  const common::Rect inside{0, 0, scale.Device(form_.Width - 2 * form_.Border),
                            scale.Device(form_.Height - 2 * form_.Border)};
  common::PaintInside(canvas, form_, drawing_, canvas.Damaged().Moved(-Border(), -Border()).Shared(inside), scale);
}

void FormView::Press(int button, LPARAM point) {
  const common::Scale& scale = materials_.scale;
  if (button == kLeftButton) {
    capturing_ = true;
    SetCapture(handle());
  }
  delivery_.Press(form_, button, static_cast<float>(scale.Pixel(GET_X_LPARAM(point))),
                  static_cast<float>(scale.Pixel(GET_Y_LPARAM(point))));
}

void FormView::Move(int held, LPARAM point) {
  if (delivery_.HeldOn() != &form_) return;
  const common::Scale& scale = materials_.scale;
  delivery_.Move(held, static_cast<float>(scale.Pixel(GET_X_LPARAM(point))),
                 static_cast<float>(scale.Pixel(GET_Y_LPARAM(point))));
}

void FormView::Release(int button, LPARAM point) {
  // A click may run for seconds: the hold must be over before its handler starts.
  if (button == kLeftButton && std::exchange(capturing_, false)) ReleaseCapture();
  if (delivery_.HeldOn() != &form_) return;
  const common::Scale& scale = materials_.scale;
  delivery_.Release(button, static_cast<float>(scale.Pixel(GET_X_LPARAM(point))),
                    static_cast<float>(scale.Pixel(GET_Y_LPARAM(point))));
}

void FormView::LoseMouse() {
  if (!std::exchange(capturing_, false)) return;
  if (GetCapture() == handle()) ReleaseCapture();
  delivery_.Deliver([this] { delivery_.ReleaseMouse(); });
}

/// Keys mean the same wherever on the form the keyboard is. False for a key that means nothing here.
bool FormView::TakeKey(WPARAM code, LPARAM details) {
  const auto key = KeyOf(code, WrittenBy(code, details));
  if (key) {
    const common::Scroll scroll = delivery_.PressKey(*key, IsRepeated(details));
    if (text_) text_->ScrollBy(scroll);
  } else if (text_ && IsCopy(code)) {
    text_->Copy();
  } else {
    return false;
  }
  return true;
}

/// The system gives the wheel to the control that has the keyboard, and that gives it on.
void FormView::Wheel(WPARAM wide, LPARAM details) {
  const POINT point{GET_X_LPARAM(details), GET_Y_LPARAM(details)};
  if (text_ && WindowFromPoint(point) == text_->window()) text_->Wheel(GET_WHEEL_DELTA_WPARAM(wide));
}

}  // namespace desktop::win32
