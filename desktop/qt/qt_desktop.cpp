#include "desktop/qt/qt_desktop.h"

#include <QDesktopServices>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <random>
#include <utility>

#include "desktop/qt/question_box.h"
#include "desktop/qt/text.h"
#include "desktop/units.h"

namespace desktop::qt {

void ChoosePlatform() {
#ifdef Q_OS_LINUX
  if (!qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
#endif
}

void QtDesktop::ShowFrame(Frame& frame) {
  frame_ = &frame;
  pointer_.emplace(frame);
  window_ = std::make_unique<FrameWindow>(frame, static_cast<Events&>(*this));
  window_->WhenSeen([this] {
    seen_ = true;
    if (opening_) sound_.Play(*opening_);
  });
  window_->Appear();
}

void QtDesktop::Deliver(const std::function<void()>& handler) {
  handler();
  Follow();
  if (wait_) wait_->quit();
}

void QtDesktop::Follow() {
  DropUnloaded();
  for (Form* form : frame_->Children()) {
    FormView*& view = views_[form];
    if (!view) view = new FormView(*form, *this, pictures_, &window_->area());
    view->Follow();
  }
  FollowOrder();
}

void QtDesktop::DropUnloaded() {
  std::erase_if(views_, [this](const auto& entry) {
    const auto& children = frame_->Children();
    if (std::ranges::find(children, entry.first) != children.end()) return false;
    // Its own handler may be what unloaded it.
    entry.second->hide();
    entry.second->deleteLater();
    return true;
  });
}

void QtDesktop::FollowOrder() {
  if (order_ == frame_->Children()) return;
  order_ = frame_->Children();
  for (Form* form : order_) views_[form]->raise();
  if (!order_.empty()) views_[order_.back()]->TakeKeyboard();
}

void QtDesktop::SetFocus(Form& form, Element& control) {
  Follow();
  views_[&form]->SetFocus(control);
}

double QtDesktop::Clock() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void QtDesktop::RunEventsUntil(double moment) {
  Follow();
  const double left = moment - Clock();
  if (left <= 0) return;
  QEventLoop loop;
  QTimer::singleShot(std::chrono::milliseconds(std::lround(std::ceil(left * 1000))), Qt::PreciseTimer, &loop,
                     &QEventLoop::quit);
  QEventLoop* const outer = std::exchange(wait_, &loop);
  loop.exec();
  wait_ = outer;
}

void QtDesktop::Randomize() {
  std::random_device entropy;
  const auto ticks = static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  chance_.Seed(ticks ^ (static_cast<std::uint64_t>(entropy()) << 32) ^ entropy());
}

bool QtDesktop::AskYesNo(std::string_view text, std::string_view title) {
  pointer_->Lose();
  Follow();
  return QuestionBox(Text(title), Lines(text), window_.get()).Ask();
}

std::string QtDesktop::ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                   std::string_view fallback) {
  return settings_.Read(application, section, key, fallback);
}

void QtDesktop::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view text) {
  settings_.Save(application, section, key, text);
}

void QtDesktop::PlayWave(const WaveImage& image) {
  // To load the sound library beside it would hold up the first picture.
  if (seen_)
    sound_.Play(image);
  else
    opening_ = image;
}

Area QtDesktop::WorkArea() const {
  const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
  const auto twips = [](int pixels) { return static_cast<float>(pixels * kTwipsPerPixel); };
  return {twips(room.left()), twips(room.top()), twips(room.width()), twips(room.height())};
}

void QtDesktop::OpenMail(std::string_view address) { QDesktopServices::openUrl(QUrl("mailto:" + Text(address))); }

void QtDesktop::OpenPage(std::string_view address) { QDesktopServices::openUrl(QUrl(Text(address))); }

void QtDesktop::EndProcess() {
  settings_.Sync();
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace desktop::qt
