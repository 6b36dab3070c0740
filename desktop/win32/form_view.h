// A form on the screen: a canvas for its images and labels, windows for its controls.
#pragma once

#include <map>
#include <memory>

#include "desktop/common/delivery.h"
#include "desktop/common/drawing.h"
#include "desktop/common/views.h"
#include "desktop/win32/audience.h"
#include "desktop/win32/canvas.h"
#include "desktop/win32/control.h"
#include "desktop/win32/text_view.h"
#include "desktop/win32/window.h"

namespace desktop::win32 {

class FormView : public Window, public common::View {
 public:
  /// `retire` takes the view over once it has gone off the screen.
  FormView(Form& form, common::Delivery& delivery, Materials& materials, HWND parent,
           std::function<void(FormView*)> retire);

  // --- common::View
  void Follow() override;
  void Draw(bool atOnce) override;
  void Show(bool shown) override;
  void Raise() override;
  void TakeKeyboard() override;
  void Retire() override;

  /// The window has come to a screen of another scale.
  void Rescale();

  const Form& form() const { return form_; }
  const common::Scale& scale() const { return materials_.scale; }
  HWND WindowOf(const Element& control) const { return controls_.at(&control).control->window(); }
  /// From the form's inside to the view's corner, in device pixels.
  common::Rect InView(const common::Rect& inside) const { return inside.Moved(Border(), Border()); }

 protected:
  void Paint() override;
  LRESULT Handle(UINT message, WPARAM wide, LPARAM details) override;

 private:
  /// A control's window, and how it stands.
  struct Standing {
    std::unique_ptr<Control> control;
    common::Rect place;
    bool visible = false;
  };

  void DecodePictures();
  void Stand();
  void FollowControls();
  void FollowPointer();
  void FollowMouse();
  LRESULT Answer(WPARAM flags, LPARAM object);
  void GrantWish();
  Standing& StandingOf(Element& element);
  int Border() const { return materials_.scale.Device(form_.Border); }

  void Press(int button, LPARAM point);
  void Move(int held, LPARAM point);
  void Release(int button, LPARAM point);
  void LoseMouse();
  bool TakeKey(WPARAM code, LPARAM details);
  void Wheel(WPARAM wide, LPARAM details);

  Form& form_;
  common::Delivery& delivery_;
  Materials& materials_;
  std::function<void(FormView*)> retire_;
  common::Drawing drawing_;
  std::map<const Element*, Standing> controls_;
  TextView* text_ = nullptr;
  common::Rect place_;      ///< in the frame, in device pixels
  bool capturing_ = false;  ///< the mouse is held for an element
  PointerShape shape_ = PointerShape::Default;
  std::unique_ptr<Audience> audience_;  ///< none: nobody listens
  bool retired_ = false;
};

}  // namespace desktop::win32
