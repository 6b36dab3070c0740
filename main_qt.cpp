// The program: the real desktop, and the frame on it.
#include <QApplication>

#include "desktop/qt/qt_desktop.h"
#include "shell/frmMain.h"

int main(int, char** argv) {
  desktop::qt::CommandLine line(argv[0]);
  QApplication application(line.count, line.words);
  desktop::qt::QtDesktop desktop;
  thistle::frmMain frame(desktop);
  thistle::Main(frame);
  return QApplication::exec();
}
