// What the game's start and memory are measured against.
#include "measure/bare_window.h"

#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.show();
  return QApplication::exec();
}
