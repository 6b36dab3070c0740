// A window of the program's own, as an object.
#pragma once

#include <windows.h>

namespace desktop::win32 {

/// The number of the program's icon among its resources.
inline constexpr int kIcon = 1;

class Window {
 public:
  Window() = default;
  /// Destroys the window.
  virtual ~Window();
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  HWND handle() const { return handle_; }

 protected:
  /// Makes the window, which asks Handle from now on: to be called in the body of the last constructor.
  void Create(const wchar_t* title, DWORD style, DWORD exStyle, const RECT& place, HWND parent);

  /// The window has something to show: all of it, its ground, too.
  virtual void Paint() = 0;
  /// Answers any other message. What it has no use for goes on to Default.
  virtual LRESULT Handle(UINT message, WPARAM wide, LPARAM details) = 0;
  LRESULT Default(UINT message, WPARAM wide, LPARAM details) { return DefWindowProcW(handle_, message, wide, details); }

 private:
  static LRESULT CALLBACK Receive(HWND handle, UINT message, WPARAM wide, LPARAM details);
  static ATOM Class();

  HWND handle_ = nullptr;
};

}  // namespace desktop::win32
