// The smallest possible window of the platform, of the frame's size and colour: what the game's start and memory are
// measured against.
#include <windows.h>

namespace {

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM details) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wide, details);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int show) {
  WNDCLASSW kind{};
  kind.lpfnWndProc = Handle;
  kind.hInstance = instance;
  kind.hbrBackground = CreateSolidBrush(RGB(0xFF, 0xFF, 0x80));
  kind.lpszClassName = L"BareWindow";
  RegisterClassW(&kind);
  const HWND window = CreateWindowExW(0, kind.lpszClassName, L"Thistle and Lantern", WS_OVERLAPPEDWINDOW, 0, 0, 640,
                                      452, nullptr, nullptr, instance, nullptr);
  ShowWindow(window, show);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
