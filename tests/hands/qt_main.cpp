// The real program on Qt, witnessed.
#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include "desktop/qt/qt_desktop.h"
#include "tests/hands/witnessed.h"

namespace {

class Doorman : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    const bool input = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                       type == QEvent::MouseButtonRelease || type == QEvent::KeyPress;
    if (input && qobject_cast<QWindow*>(watched)) hands::SayArrived();
    return false;
  }
};

}  // namespace

int main(int, char** argv) {
  desktop::qt::CommandLine line(argv[0]);
  QApplication application(line.count, line.words);
  Doorman doorman;
  application.installEventFilter(&doorman);
  hands::Witnessed<desktop::qt::QtDesktop> desktop;
  thistle::frmMain frame(desktop);
  desktop.Watch(frame);
  thistle::Main(frame);
  return QApplication::exec();
}
