// Painting with Windows' own device contexts.
#pragma once

#include <windows.h>

#include "desktop/common/painting.h"
#include "desktop/win32/dib.h"
#include "desktop/win32/materials.h"

namespace desktop::win32 {

inline COLORREF ToWindows(Colour colour) {
  return RGB(colour.rgb >> 16 & 0xFF, colour.rgb >> 8 & 0xFF, colour.rgb & 0xFF);
}
inline RECT ToWindows(const common::Rect& rect) { return {rect.left, rect.top, rect.Right(), rect.Bottom()}; }
inline common::Rect FromWindows(const RECT& rect) {
  return common::Rect::Between(rect.left, rect.top, rect.right, rect.bottom);
}

/// Paints what a window has to paint, unseen, and shows it all at once when it goes.
class WindowCanvas : public common::Canvas {
 public:
  /// Between the two a window need not be painted again: to be made in its WM_PAINT.
  WindowCanvas(HWND window, Materials& materials);
  ~WindowCanvas() override;
  WindowCanvas(const WindowCanvas&) = delete;
  WindowCanvas& operator=(const WindowCanvas&) = delete;

  /// What must be painted, in device pixels of the window.
  common::Rect Damaged() const { return FromWindows(paint_.rcPaint); }
  /// From now on places count from this device pixel of the window.
  void BeginAt(int x, int y);
  HDC context() const { return context_.get(); }

  // --- common::Canvas
  const common::TextMeasure& Type() const override { return materials_.fonts; }
  void Fill(const common::Rect& place, const Tint& tint) override;
  void Show(const Picture& picture, const common::Rect& place) override;
  void Write(const common::TextLine& line, const Font& font, Colour colour) override;

 private:
  void Blend(HBITMAP bitmap, common::Size size, const common::Rect& place, BLENDFUNCTION how);

  HWND window_;
  Materials& materials_;
  PAINTSTRUCT paint_{};
  // Before the contexts that they are selected into: those go first.
  Dib picture_;
  Dib pixel_;  ///< of one pixel, for tints
  Context context_;
  Context source_;
};

}  // namespace desktop::win32
