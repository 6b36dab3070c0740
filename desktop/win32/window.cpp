#include "desktop/win32/window.h"

namespace desktop::win32 {

namespace {

HICON LoadIconOf(int width, int height) {
  const HANDLE icon = LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kIcon), IMAGE_ICON,
                                 GetSystemMetrics(width), GetSystemMetrics(height), LR_SHARED);
  return static_cast<HICON>(icon);
}

}  // namespace

ATOM Window::Class() {
  // Without double clicks: a second quick press is a press like any other.
  static const ATOM registered = [] {
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    made.lpfnWndProc = Receive;
    made.hInstance = GetModuleHandleW(nullptr);
    made.hIcon = LoadIconOf(SM_CXICON, SM_CYICON);
    // Where no window has a shape of its own: over the frame's ground.
    made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    made.hIconSm = LoadIconOf(SM_CXSMICON, SM_CYSMICON);
    made.lpszClassName = L"ThistleAndLantern";
    return RegisterClassExW(&made);
  }();
  return registered;
}

void Window::Create(const wchar_t* title, DWORD style, DWORD exStyle, const RECT& place, HWND parent) {
  CreateWindowExW(exStyle, MAKEINTATOM(Class()), title, style, place.left, place.top, place.right - place.left,
                  place.bottom - place.top, parent, nullptr, GetModuleHandleW(nullptr), this);
}

Window::~Window() {
  if (!handle_) return;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  DestroyWindow(handle_);
}

LRESULT CALLBACK Window::Receive(HWND handle, UINT message, WPARAM wide, LPARAM details) {
  if (message == WM_NCCREATE) {
    const auto* made = reinterpret_cast<const CREATESTRUCTW*>(details);
    static_cast<Window*>(made->lpCreateParams)->handle_ = handle;
    SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made->lpCreateParams));
  }
  auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (!window) return DefWindowProcW(handle, message, wide, details);
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return window->Handle(message, wide, details);
  window->Paint();
  return 0;
}

}  // namespace desktop::win32
