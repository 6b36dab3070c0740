// The real program, with dice dealt by a seed and a clock that runs only when told to. What comes of a player's hands
// it tells on its standard output, line by line; a line that begins with # only says that an input has arrived.
//
// The environment names the seed: HANDS_SEED. "go TEXT" on the standard input lets the clock run, ten times as fast as
// any other, until a line that begins so is told.
#include <QApplication>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QWindow>
#include <cstdio>
#include <iostream>

#include "desktop/qt/qt_desktop.h"
#include "tests/hands/witness.h"

namespace {

class WitnessedDesktop : public desktop::qt::QtDesktop {
 public:
  explicit WitnessedDesktop(std::uint64_t seed) : chance_(seed) {}

  void Watch(const thistle::frmMain& frame) {
    witness_.emplace(frame, [this](const std::string& line) { Tell(line); });
  }

  void Go(const std::string& until) {
    until_ = until;
    began_ = QtDesktop::Clock();
  }

  double Clock() const override { return ran_ + (began_ ? kHaste * (QtDesktop::Clock() - *began_) : 0); }
  void RunEventsUntil(double moment) override {
    // The clock may stand still meanwhile: then it is looked at again and again.
    QtDesktop::RunEventsUntil(Clock() + std::min(0.02, (moment - Clock()) / kHaste));
  }
  void Randomize() override {}
  float Random() override { return chance_.Next(); }
  bool AskYesNo(std::string_view text, std::string_view title) override {
    ReleaseMouse();
    witness_->Happens("question " + hands::OneLine(text));
    const bool yes = QtDesktop::AskYesNo(text, title);
    witness_->Happens(yes ? "answer yes" : "answer no");
    return yes;
  }
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view text) override {
    saved_ += "saved " + std::string(key) + "=" + std::string(text) + "\n";
    QtDesktop::SaveSetting(application, section, key, text);
  }
  void PlayWave(const desktop::WaveImage& image) override {
    witness_->Tell("sound " + std::string(image.name));
    QtDesktop::PlayWave(image);
  }
  void EndProcess() override {
    witness_->Look();
    std::cout << saved_ << "ended" << std::endl;
    QtDesktop::EndProcess();
  }

 protected:
  void Follow(bool atOnce) override {
    QtDesktop::Follow(atOnce);
    witness_->Look();
  }

 private:
  static constexpr double kHaste = 10;

  void Tell(const std::string& line) {
    std::cout << line << std::endl;
    if (!began_ || !line.starts_with(until_)) return;
    ran_ = Clock();
    began_.reset();
  }

  desktop::common::Chance chance_;
  std::optional<hands::Witness> witness_;
  std::string saved_;
  std::string until_;
  double ran_ = 0;               ///< seconds, up to the last stop
  std::optional<double> began_;  ///< while it runs
};

/// Says that an input has come in, just before it is dealt with.
class Doorman : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto type = event->type();
    const bool input = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                       type == QEvent::MouseButtonRelease || type == QEvent::KeyPress;
    if (input && qobject_cast<QWindow*>(watched)) std::cout << "#" << std::endl;
    return false;
  }
};

}  // namespace

int main(int, char** argv) {
  int count = 1;
  desktop::qt::PrepareToolkit();
  QApplication application(count, argv);
  Doorman doorman;
  application.installEventFilter(&doorman);
  WitnessedDesktop desktop(qgetenv("HANDS_SEED").toULongLong());
  thistle::frmMain frame(desktop);
  desktop.Watch(frame);
  QSocketNotifier orders(0, QSocketNotifier::Read);
  QObject::connect(&orders, &QSocketNotifier::activated, [&] {
    std::string order;
    if (!std::getline(std::cin, order)) return orders.setEnabled(false);
    desktop.Go(order.substr(3));
  });
  thistle::Main(frame);
  return QApplication::exec();
}
