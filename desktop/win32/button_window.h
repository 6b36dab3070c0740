// What all controls have in common that are pressed.
#pragma once

#include "desktop/win32/canvas.h"
#include "desktop/win32/control.h"

namespace desktop::win32 {

/// Windows' own button to the system and to screen readers. It paints itself, takes the mouse in its own way, as the
/// system's would take the keyboard with it and count double clicks, and leaves keys to the form.
class ButtonWindow : public Control {
 public:
  ~ButtonWindow() override;

  HWND window() const override { return window_; }
  void Follow(const Element& record) override;
  void Rescale() override { Repaint(); }

 protected:
  ButtonWindow(DWORD style, ControlEvents events, Materials& materials, HWND parent);

  virtual void Paint(WindowCanvas& canvas) = 0;
  virtual LPCWSTR Pointer() const { return IDC_ARROW; }
  /// What a screen reader calls it.
  virtual std::wstring Name() const = 0;

  const Element& record() const { return record_; }
  Materials& materials() const { return materials_; }
  void PaintGround(WindowCanvas& canvas) const { events_.paintGround(canvas); }
  bool IsPressed() const { return held_ && over_; }
  void Repaint() const { InvalidateRect(window_, nullptr, FALSE); }

 private:
  static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wide, LPARAM details, UINT_PTR id, DWORD_PTR self);
  LRESULT Handle(UINT message, WPARAM wide, LPARAM details);
  void Press();
  void Move(LPARAM point);
  void Release();
  void Lose();

  HWND window_;
  ControlEvents events_;
  Materials& materials_;
  Element record_;
  bool held_ = false;  ///< pressed, and not yet released
  bool over_ = false;  ///< while held: the mouse is still on it
};

}  // namespace desktop::win32
