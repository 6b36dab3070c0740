#include "desktop/win32/button_window.h"

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

namespace desktop::win32 {

ButtonWindow::ButtonWindow(DWORD style, ControlEvents events, Materials& materials, HWND parent)
    : window_(CreateWindowExW(0, WC_BUTTONW, nullptr, WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr)),
      events_(std::move(events)),
      materials_(materials) {
  SetWindowSubclass(window_, Receive, 0, reinterpret_cast<DWORD_PTR>(this));
}

ButtonWindow::~ButtonWindow() {
  RemoveWindowSubclass(window_, Receive, 0);
  DestroyWindow(window_);
}

void ButtonWindow::Follow(const Element& record) {
  if (record == record_) return;
  record_ = record;
  SetWindowTextW(window_, Name().c_str());
  Repaint();
}

LRESULT CALLBACK ButtonWindow::Receive(HWND, UINT message, WPARAM wide, LPARAM details, UINT_PTR, DWORD_PTR self) {
  return reinterpret_cast<ButtonWindow*>(self)->Handle(message, wide, details);
}

LRESULT ButtonWindow::Handle(UINT message, WPARAM wide, LPARAM details) {
  switch (message) {
    case WM_PAINT: {
      WindowCanvas canvas(window_, materials_);
      Paint(canvas);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      Press();
      return 0;
    case WM_MOUSEMOVE:
      Move(details);
      return 0;
    case WM_LBUTTONUP:
      Move(details);
      Release();
      return 0;
    case WM_CAPTURECHANGED:
      Lose();
      return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
      Repaint();
      return 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
      return SendMessageW(GetParent(window_), message, wide, details);
    case WM_SETCURSOR:
      SetCursor(LoadCursorW(nullptr, Pointer()));
      return TRUE;
    default:
      return DefSubclassProc(window_, message, wide, details);
  }
}

void ButtonWindow::Press() {
  held_ = over_ = true;
  SetCapture(window_);
  Repaint();
  events_.pressed();
}

void ButtonWindow::Move(LPARAM point) {
  if (!held_) return;
  RECT box{};
  GetClientRect(window_, &box);
  const bool over = PtInRect(&box, {GET_X_LPARAM(point), GET_Y_LPARAM(point)}) != FALSE;
  if (std::exchange(over_, over) != over) Repaint();
}

void ButtonWindow::Release() {
  if (!held_) return;
  const bool clicked = over_;
  // The click may run for seconds: the hold must be over before.
  held_ = false;
  ReleaseCapture();
  Repaint();
  if (clicked) events_.clicked();
}

void ButtonWindow::Lose() {
  if (std::exchange(held_, false)) Repaint();
}

}  // namespace desktop::win32
