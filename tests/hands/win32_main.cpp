// The real program on Windows, witnessed.
#include <windows.h>

#include "desktop/win32/win32_desktop.h"
#include "tests/hands/witnessed.h"

namespace {

bool IsInput(UINT message) {
  const bool button = message >= WM_LBUTTONDOWN && message <= WM_MBUTTONDBLCLK;
  return button || message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

/// Of what is taken from the queue: by the program's own loop, and by the system's in a menu or a question.
LRESULT CALLBACK WhenTaken(int code, WPARAM taken, LPARAM details) {
  if (code == HC_ACTION && taken == PM_REMOVE && IsInput(reinterpret_cast<const MSG*>(details)->message))
    hands::SayArrived();
  return CallNextHookEx(nullptr, code, taken, details);
}

}  // namespace

int main() {
  SetWindowsHookExW(WH_GETMESSAGE, WhenTaken, nullptr, GetCurrentThreadId());
  hands::Witnessed<desktop::win32::Win32Desktop> desktop;
  thistle::frmMain frame(desktop);
  desktop.Watch(frame);
  thistle::Main(frame);
  desktop.Run();
}
