// The smallest possible window of the toolkit, of the frame's size and colour: what the game's start
// and memory are measured against.
#include <QApplication>
#include <QPainter>
#include <QWidget>

namespace {

class BareWindow : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), QColor(0xFF, 0xFF, 0x80)); }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  BareWindow window;
  window.setWindowTitle(QStringLiteral("Thistle and Lantern"));
  window.setAttribute(Qt::WA_OpaquePaintEvent);
  window.resize(632, 425);
  window.show();
  return QApplication::exec();
}
