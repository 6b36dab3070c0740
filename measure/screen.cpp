// What drawing and waiting cost on the real desktop. Prints one line a measurement: its name, then
// the figure.
//   drag_step_ms      processor time from a mouse move to its painted result
//   drag_area_ratio   pixels repainted a step, over the piece's old and new place together
//   change_ms         processor time of one picture change in a throw, painting included
//   bare_change_ms    the same of the bare window that fills two places of a cup, at the pace of the shake
//   turn_over_percent how much longer a throw with its settlement takes than the sum of its waits
#include <QApplication>
#include <QMouseEvent>
#include <QPaintEvent>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>

#include "desktop/common/scale.h"
#include "desktop/qt/event_loop_rest.h"
#include "desktop/qt/form_view.h"
#include "desktop/qt/qt_desktop.h"
#include "measure/bare_window.h"
#include "shell/frmMain.h"

namespace {

double ProcessorMilliseconds() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Adds up the waits that are asked for, and counts the rests in them.
class CountingDesktop : public desktop::qt::QtDesktop {
 public:
  void RunEventsUntil(double moment) override {
    if (moment != moment_) {
      moment_ = moment;
      planned += moment - Clock();
      ++waits;
    }
    QtDesktop::RunEventsUntil(moment);
  }
  bool AskYesNo(std::string_view, std::string_view) override { return true; }
  // The fanfare would play into the first turn, and its mixing would count as painting.
  void PlayWave(const desktop::WaveImage&) override {}

  double planned = 0;
  int waits = 0;

 private:
  double moment_ = 0;
};

/// Adds up the pixels that paint events ask for.
class PaintMeter : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint)
      for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
        pixels += static_cast<double>(part.width()) * part.height();
    return false;
  }

  double pixels = 0;
};

void Send(QWidget& view, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, at, view.mapToGlobal(at), button, held, Qt::NoModifier);
  QApplication::sendEvent(&view, &event);
}

void Settle() {
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

void MeasureDrag(QWidget& view, const desktop::Element& piece) {
  constexpr int kSteps = 400;
  PaintMeter meter;
  view.installEventFilter(&meter);
  const QPointF start(piece.Left + 20, piece.Top + 10);
  Send(view, QEvent::MouseButtonPress, start, Qt::LeftButton, Qt::LeftButton);
  Settle();
  meter.pixels = 0;
  const double before = ProcessorMilliseconds();
  for (int step = 0; step < kSteps; ++step) {
    const QPointF at(120 + step % 400, 190 + step % 37);
    Send(view, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    QApplication::processEvents();
  }
  std::printf("drag_step_ms %.4f\n", (ProcessorMilliseconds() - before) / kSteps);
  std::printf("drag_area_ratio %.3f\n", meter.pixels / kSteps / (2.0 * piece.Width * piece.Height));
  // Twice: where the pointer is decides only once the piece has followed it there.
  for (int i = 0; i < 2; ++i) Send(view, QEvent::MouseMove, QPointF(60, 200), Qt::NoButton, Qt::LeftButton);
  Send(view, QEvent::MouseButtonRelease, QPointF(60, 200), Qt::LeftButton, Qt::NoButton);
  Settle();
  view.removeEventFilter(&meter);
}

void MeasureTurn(QWidget& view, CountingDesktop& desktop, const desktop::Element& cup) {
  const QPointF at(cup.Left + cup.Width / 2, cup.Top + cup.Height / 2);
  desktop.planned = 0;
  desktop.waits = 0;
  const double start = desktop.Clock();
  const double before = ProcessorMilliseconds();
  Send(view, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  Send(view, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  const double took = desktop.Clock() - start;
  std::printf("change_ms %.4f\n", (ProcessorMilliseconds() - before) / desktop.waits);
  std::printf("turn_over_percent %.3f\n", 100 * (took / desktop.planned - 1));
}

/// The least that a change can cost: to be woken, to fill, and to hand it to the screen.
void MeasureBareChanges(QRect before, QRect after) {
  constexpr int kChanges = 20;
  constexpr double kPace = 0.16;
  BareWindow window;
  window.show();
  Settle();
  desktop::qt::EventLoopRest(1).Run();
  const double start = ProcessorMilliseconds();
  for (int change = 0; change < kChanges; ++change) {
    window.repaint(QRegion(before) + after);
    desktop::qt::EventLoopRest(kPace).Run();
  }
  std::printf("bare_change_ms %.4f\n", (ProcessorMilliseconds() - start) / kChanges);
}

QRect PlaceOf(const desktop::Element& element) {
  const desktop::common::Rect box = desktop::common::BoxOf(element);
  return {box.left, box.top, box.width, box.height};
}

}  // namespace

int main(int, char** argv) {
  int count = 1;
  QApplication application(count, argv);
  CountingDesktop desktop;
  thistle::frmMain frame(desktop);
  thistle::Main(frame);
  frame.Open(frame.Game);
  frame.Unload(frame.Splash);
  desktop.SetFocus(frame.Game, frame.Game.Command1);
  Settle();
  const auto views = desktop.window().findChildren<desktop::qt::FormView*>();
  const auto view = std::ranges::find(views, &frame.Game, [](const auto* shown) { return &shown->form(); });
  for (int turn = 0; turn < 3; ++turn) {
    // A bet first, so that the settlement has something to do.
    MeasureDrag(**view, frame.Game.Money[12 - turn]);
    MeasureTurn(**view, desktop, frame.Game.CupStanding);
    MeasureBareChanges(PlaceOf(frame.Game.CupLeft), PlaceOf(frame.Game.CupRight));
  }
  return 0;
}
