#include "desktop/qt/frame_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/qt/element_painter.h"
#include "desktop/qt/events.h"
#include "desktop/qt/light_palette.h"
#include "desktop/qt/text.h"
#include "desktop/units.h"

namespace desktop::qt {

namespace {

using namespace std::chrono_literals;

// A window manager needs a moment to tell a maximised window's new state after its new size, and
// another to carry out a resize.
constexpr auto kBeforeSnap = 80ms;
constexpr auto kBeforeSecondLook = 150ms;
constexpr int kMostRefusals = 2;

// Half-maximised windows have no state of their own; they are told by a side this near to the work
// area's, in pixels.
constexpr int kTiledMargin = 64;

// With a step beyond any screen a window manager has no other size to offer to a border drag.
constexpr QSize kNoOtherSize(4000, 4000);

/// A place of the frame in pixels. No window system places a window beyond 16 bits.
int OnScreen(float twips) { return qRound(std::clamp(twips / kTwipsPerPixel, -32768.F, 32767.F)); }

QIcon LoadIcon(std::string_view stem) {
  QIcon icon;
  // What a title bar or a task list shows. The larger ones are the installed program's.
  for (const int size : {16, 24, 32, 48, 64})
    icon.addFile(QStringLiteral(":/pictures/%1%2.png").arg(Text(stem)).arg(size), QSize(size, size));
  return icon;
}

}  // namespace

FrameWindow::FrameWindow(Frame& frame, Events& events)
    : frame_(frame), events_(events), menu_(new QMenuBar(this)), area_(new QWidget(this)) {
  menu_->setNativeMenuBar(false);
  MakeMenu();
  QPalette ground = LightPalette();
  ground.setColor(QPalette::Window, ToQt(frame.BackColor));
  area_->setPalette(ground);
  area_->setAutoFillBackground(true);
  setWindowTitle(QString::fromStdString(frame.Caption));
  setWindowIcon(LoadIcon(frame.Icon));
  snapBack_.setSingleShot(true);
  connect(&snapBack_, &QTimer::timeout, this, &FrameWindow::SnapBack);
}

void FrameWindow::MakeMenu() {
  for (const MenuEntry& entry : frame_.Menu) AddEntry(*menu_, entry);
}

void FrameWindow::AddEntry(QWidget& menu, const MenuEntry& entry) {
  // Every entry can be reached by its first letter.
  const QString caption = u'&' + Text(entry.Caption);
  if (!entry.Entries.empty()) {
    auto* submenu = new QMenu(caption, &menu);
    menu.addAction(submenu->menuAction());
    // An open menu takes the mouse; the release of what was held would never arrive.
    connect(submenu, &QMenu::aboutToShow, this, [this] { events_.Deliver([this] { events_.pointer().Lose(); }); });
    for (const MenuEntry& inner : entry.Entries) AddEntry(*submenu, inner);
    return;
  }
  auto* action = new QAction(caption, &menu);
  menu.addAction(action);
  connect(action, &QAction::triggered, this, [this, name = entry.Name] {
    events_.Deliver([&] {
      events_.pointer().Lose();
      frame_.MenuClick(name);
    });
  });
}

QSize FrameWindow::FixedSize() const {
  return {frame_.ClientWidth, frame_.ClientHeight + menu_->heightForWidth(frame_.ClientWidth)};
}

void FrameWindow::Appear() {
  frame_.HasPlace = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
  move(OnScreen(frame_.Left), OnScreen(frame_.Top));
  resize(FixedSize());
  setMinimumSize(FixedSize());
  winId();
  windowHandle()->setBaseSize(FixedSize());
  windowHandle()->setSizeIncrement(kNoOtherSize);
  windowHandle()->installEventFilter(this);
  show();
}

bool FrameWindow::eventFilter(QObject*, QEvent* event) {
  // What comes into view is painted there and then.
  if (event->type() == QEvent::Expose && whenSeen_) QTimer::singleShot(0, this, std::exchange(whenSeen_, nullptr));
  return false;
}

void FrameWindow::resizeEvent(QResizeEvent*) {
  const int menuHeight = menu_->heightForWidth(width());
  menu_->setGeometry(0, 0, width(), menuHeight);
  area_->setGeometry(0, menuHeight, width(), height() - menuHeight);
  Fit();
}

void FrameWindow::moveEvent(QMoveEvent*) { NotePlace(); }

void FrameWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) Fit();
}

void FrameWindow::hideEvent(QHideEvent*) {
  events_.Deliver([this] { events_.pointer().Lose(); });
}

void FrameWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  NoteState();
  NotePlace();
  events_.Deliver([this] { frame_.Close(); });
}

void FrameWindow::NoteState() {
  if (isMinimized())
    frame_.State = WindowState::Minimised;
  else if (isMaximized() || isFullScreen())
    frame_.State = WindowState::Maximised;
  else
    frame_.State = WindowState::Normal;
}

void FrameWindow::NotePlace() {
  if (!isVisible() || isMaximized() || isMinimized() || isFullScreen()) return;
  // A tiling window manager's place is not one that the player has chosen.
  if (windowHandle()->size() != FixedSize()) return;
  const QPoint corner = frameGeometry().topLeft();
  frame_.Left = static_cast<float>(corner.x() * kTwipsPerPixel);
  frame_.Top = static_cast<float>(corner.y() * kTwipsPerPixel);
}

void FrameWindow::Fit() {
  NoteState();
  events_.Deliver([this] {
    if (frame_.State == WindowState::Minimised) events_.pointer().Lose();
    frame_.Resize();
  });
  // What answers the window's own wish is no new event from outside.
  if (!snapping_) refusals_ = 0;
  snapBack_.start(kBeforeSnap);
}

bool FrameWindow::IsTiled() const {
  const QSize room = screen()->availableSize();
  const QSize size = windowHandle()->size();
  return qAbs(room.width() - size.width()) < kTiledMargin || qAbs(room.height() - size.height()) < kTiledMargin;
}

void FrameWindow::SnapBack() {
  NoteState();
  const bool fits = windowHandle()->size() == FixedSize();
  snapping_ = frame_.State == WindowState::Normal && !IsTiled() && !fits && refusals_ < kMostRefusals;
  if (!snapping_) return;
  ++refusals_;
  resize(FixedSize());
  // Where the widget believes that it has the size already, only the window can be told.
  windowHandle()->resize(FixedSize());
  snapBack_.start(kBeforeSecondLook);
}

}  // namespace desktop::qt
