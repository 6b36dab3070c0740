#include "desktop/qt/frame_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>
#include <utility>

#include "desktop/qt/canvas.h"
#include "desktop/qt/light_palette.h"
#include "desktop/qt/text.h"

namespace desktop::qt {

namespace {

common::Size FromQt(QSize size) { return {size.width(), size.height()}; }
QSize ToQt(common::Size size) { return {size.width, size.height}; }

QIcon LoadIcon(std::string_view stem) {
  QIcon icon;
  // What a title bar or a task list shows. The larger ones are the installed program's.
  for (const int size : {16, 24, 32, 48, 64})
    icon.addFile(QStringLiteral(":/pictures/%1%2.png").arg(Text(stem)).arg(size), QSize(size, size));
  return icon;
}

}  // namespace

FrameWindow::FrameWindow(Frame& frame, common::Delivery& delivery)
    : frame_(frame), delivery_(delivery), menu_(new QMenuBar(this)), area_(new QWidget(this)) {
  menu_->setNativeMenuBar(false);
  for (const MenuEntry& entry : frame_.Menu) AddEntry(*menu_, entry);
  QPalette ground = LightPalette();
  ground.setColor(QPalette::Window, qt::ToQt(frame.BackColor));
  area_->setPalette(ground);
  area_->setAutoFillBackground(true);
  setWindowTitle(QString::fromStdString(frame.Caption));
  setWindowIcon(LoadIcon(frame.Icon));
  snapTimer_.setSingleShot(true);
  connect(&snapTimer_, &QTimer::timeout, this, &FrameWindow::SnapBack);
}

void FrameWindow::AddEntry(QWidget& menu, const MenuEntry& entry) {
  // Every entry can be reached by its first letter.
  const QString caption = u'&' + Text(entry.Caption);
  if (!entry.Entries.empty()) {
    auto* submenu = new QMenu(caption, &menu);
    menu.addAction(submenu->menuAction());
    connect(submenu, &QMenu::aboutToShow, this, [this] { delivery_.OpenMenu(); });
    for (const MenuEntry& inner : entry.Entries) AddEntry(*submenu, inner);
    return;
  }
  auto* action = new QAction(caption, &menu);
  menu.addAction(action);
  connect(action, &QAction::triggered, this, [this, name = entry.Name] { delivery_.ChooseMenu(name); });
}

common::Size FrameWindow::FixedSize() const {
  return {frame_.ClientWidth, frame_.ClientHeight + menu_->heightForWidth(frame_.ClientWidth)};
}

common::WindowLook FrameWindow::Look() const {
  // The widget's size is what the platform has told last. The window's may be a wish that was refused without a word.
  return {.shown = isVisible(),
          .minimised = isMinimized(),
          .maximised = isMaximized() || isFullScreen(),
          .size = FromQt(size())};
}

void FrameWindow::Appear() {
  frame_.HasPlace = !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
  move(common::OnScreen(frame_.Left), common::OnScreen(frame_.Top));
  menuHeight_ = menu_->heightForWidth(frame_.ClientWidth);
  resize(ToQt(FixedSize()));
  setMinimumSize(ToQt(FixedSize()));
  winId();
  windowHandle()->installEventFilter(this);
  show();
}

bool FrameWindow::event(QEvent* event) {
  // The user's font or style has changed while the game runs.
  if (event->type() == QEvent::LayoutRequest) NoteMenuHeight();
  return QWidget::event(event);
}

void FrameWindow::NoteMenuHeight() {
  const int height = menu_->heightForWidth(frame_.ClientWidth);
  if (height == menuHeight_ || !windowHandle()) return;
  const bool wasFixed = Look().size.height == frame_.ClientHeight + std::exchange(menuHeight_, height);
  setMinimumSize(ToQt(FixedSize()));
  if (wasFixed) resize(ToQt(FixedSize()));
  LayOut();
}

bool FrameWindow::eventFilter(QObject*, QEvent* event) {
  // What comes into view is painted there and then.
  if (event->type() == QEvent::Expose && whenSeen_) QTimer::singleShot(0, this, std::exchange(whenSeen_, nullptr));
  return false;
}

void FrameWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier)
    menu_->setActiveAction(menu_->actions().first());
  else
    QWidget::keyPressEvent(event);
}

void FrameWindow::LayOut() {
  const int menuHeight = menu_->heightForWidth(width());
  menu_->setGeometry(0, 0, width(), menuHeight);
  area_->setGeometry(0, menuHeight, width(), height() - menuHeight);
}

void FrameWindow::resizeEvent(QResizeEvent*) {
  LayOut();
  Fit();
}

void FrameWindow::moveEvent(QMoveEvent*) {
  // In a drag of the upper or left border the frame may for a moment have its size at another place.
  if (!snapTimer_.isActive()) NotePlace();
}

void FrameWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) Fit();
}

void FrameWindow::hideEvent(QHideEvent*) { delivery_.Hide(); }

void FrameWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  frame_.State = common::StateOf(Look(), FixedSize());
  NotePlace();
  delivery_.Close();
}

void FrameWindow::NotePlace() {
  if (!windowHandle() || !common::IsPlayersOwn(Look(), FixedSize())) return;
  const QPoint corner = frameGeometry().topLeft();
  frame_.Left = common::InTwips(corner.x());
  frame_.Top = common::InTwips(corner.y());
}

void FrameWindow::Fit() {
  if (!windowHandle()) return;
  delivery_.Resize(common::StateOf(Look(), FixedSize()));
  snapBack_.NoteChange(Look().size, FixedSize());
  snapTimer_.start(snapBack_.Wait());
}

void FrameWindow::SnapBack() {
  if (!snapBack_.Wishes(Look(), FixedSize(), FromQt(screen()->availableSize()))) return NotePlace();
  // Of the window, not of the widget, which would believe it at once. Nor is the window asked twice for what it
  // believes: so first it is told the truth, as a wish may have been refused without a word.
  windowHandle()->setGeometry(geometry());
  // A drag of the upper or left border has moved it, too.
  const QMargins decoration = windowHandle()->frameMargins();
  const QPoint corner(common::OnScreen(frame_.Left) + decoration.left(),
                      common::OnScreen(frame_.Top) + decoration.top());
  windowHandle()->setGeometry({corner, ToQt(FixedSize())});
  snapTimer_.start(snapBack_.Wait());
}

}  // namespace desktop::qt
