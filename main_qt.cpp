// The program: the real desktop, and the frame on it.
#include <QApplication>

#include "desktop/qt/qt_desktop.h"
#include "shell/frmMain.h"

int main(int, char** argv) {
  // Only the program's name: nothing on the command line means anything here.
  int count = 1;
  desktop::qt::PrepareToolkit();
  QApplication application(count, argv);
  desktop::qt::QtDesktop desktop;
  thistle::frmMain frame(desktop);
  thistle::Main(frame);
  return QApplication::exec();
}
