#include "desktop/qt/endings.h"

#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEvent>
#include <QSocketNotifier>
#include <QThread>
#include <cstdlib>
#include <utility>

namespace desktop::qt {

namespace {

// A signal's handler may do next to nothing; what it writes here wakes the event loop.
int wakeUp[2] = {-1, -1};

void Wake(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(wakeUp[0], &byte, 1);
}

// Where the window system breaks the connection the toolkit calls exit: this is the last call that we get.
const std::function<void()>* lastCall = nullptr;

void AtExit() {
  if (const auto* end = std::exchange(lastCall, nullptr)) (*end)();
}

// On Wayland it calls _exit, of which nobody is told, but it says so before, also on a thread of its own that reads
// from the compositor. That one is held up until the last call has been made where the game runs.
constexpr unsigned long kLongestCall = 10;  // seconds

QtMessageHandler sayToOthers = nullptr;

void Hear(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  sayToOthers(type, context, text);
  if (!text.startsWith(QLatin1String("The Wayland connection "))) return;
  if (QThread::currentThread() == qApp->thread()) return AtExit();
  QMetaObject::invokeMethod(qApp, AtExit, Qt::QueuedConnection);
  QThread::sleep(kLongestCall);
}

}  // namespace

Endings::Endings(std::function<void()> end) : end_(std::move(end)) {
  CatchSignals();
  QCoreApplication::instance()->installEventFilter(this);
  static const int registered = std::atexit(AtExit);
  if (registered == 0) lastCall = &end_;
  sayToOthers = qInstallMessageHandler(Hear);
}

Endings::~Endings() {
  qInstallMessageHandler(sayToOthers);
  lastCall = nullptr;
}

void Endings::CatchSignals() {
  if (wakeUp[0] < 0 && socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, wakeUp) != 0) return;
  auto* notifier = new QSocketNotifier(wakeUp[1], QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [this] {
    char byte = 0;
    if (read(wakeUp[1], &byte, 1) == 1) end_();
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
    struct sigaction now = {};
    // Whoever started the program may have it outlive a terminal.
    if (sigaction(signal, nullptr, &now) != 0 || now.sa_handler == SIG_IGN) continue;
    now.sa_handler = Wake;
    now.sa_flags = SA_RESTART;
    sigaction(signal, &now, nullptr);
  }
}

bool Endings::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::Quit) return false;
  end_();
  return true;
}

}  // namespace desktop::qt
