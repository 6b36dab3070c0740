// The program on Windows: the real desktop, and the frame on it.
#include "desktop/win32/win32_desktop.h"
#include "shell/frmMain.h"

int main() {
  desktop::win32::Win32Desktop desktop;
  thistle::frmMain frame(desktop);
  thistle::Main(frame);
  desktop.Run();
}
