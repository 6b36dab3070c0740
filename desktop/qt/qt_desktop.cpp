#include "desktop/qt/qt_desktop.h"

#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QPixmapCache>
#include <QScreen>
#include <QUrl>
#include <cstdlib>

#include "desktop/qt/event_loop_rest.h"
#include "desktop/qt/form_view.h"
#include "desktop/qt/question_box.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

bool IsWaylandAtHand() {
  const QDir platforms(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
  return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
         !platforms.entryList({QStringLiteral("*qwayland*")}).isEmpty();
}

}  // namespace

CommandLine::CommandLine(char* program) : words{program} {
#ifdef Q_OS_LINUX
  // Where both are at hand and the user has not chosen: X11 tells a window its place, but in a Wayland session it shows
  // a picture that is stretched on dense screens. Not by the environment, which the user's programs for mail and pages
  // would inherit.
  static char option[] = "-platform";
  static char wayland[] = "wayland;xcb";
  static char x11[] = "xcb;wayland";
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) {
    words[1] = option;
    words[2] = IsWaylandAtHand() ? wayland : x11;
    count = 3;
  }
#endif
  // The toolkit's own store of pixmaps would wake an idle program half a minute later, to look through itself.
  QPixmapCache::setCacheLimit(0);
}

void QtDesktop::ShowFrame(Frame& frame) {
  delivery_.emplace(frame, static_cast<common::Screen&>(*this), waits_);
  window_ = std::make_unique<FrameWindow>(frame, *delivery_);
  views_.emplace(frame, [this](Form& form) { return new FormView(form, *delivery_, pictures_, &window_->area()); });
  endings_.emplace([this] { delivery_->Close(); });
  window_->WhenSeen([this] { sound_.Begin(); });
  window_->Appear();
}

void QtDesktop::RunEventsUntil(double moment) {
  // At once: else the platform would wake the program once more for it, some milliseconds later.
  views_->Follow(true);
  const double left = moment - Clock();
  if (left <= 0) return;
  EventLoopRest rest(left);
  waits_.Run(rest);
}

bool QtDesktop::AskYesNo(std::string_view text, std::string_view title) {
  return delivery_->Ask([&] { return QuestionBox(Text(title), WithoutReturns(text), window_.get()).Ask(); });
}

std::string QtDesktop::ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                   std::string_view fallback) {
  return settings_.Read(application, section, key, fallback);
}

void QtDesktop::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view text) {
  settings_.Save(application, section, key, text);
}

Area QtDesktop::WorkArea() const {
  // Of any size, where no screen is connected just now.
  const QScreen* screen = QGuiApplication::primaryScreen();
  const QRect room = screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
  return {common::InTwips(room.left()), common::InTwips(room.top()), common::InTwips(room.width()),
          common::InTwips(room.height())};
}

void QtDesktop::OpenMail(std::string_view address) { QDesktopServices::openUrl(QUrl("mailto:" + Text(address))); }

void QtDesktop::OpenPage(std::string_view address) { QDesktopServices::openUrl(QUrl(Text(address))); }

void QtDesktop::EndProcess() {
  settings_.Sync();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace desktop::qt
