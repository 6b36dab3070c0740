#include "desktop/qt/input.h"

#include <QGuiApplication>
#include <algorithm>
#include <utility>

namespace desktop::qt {

int ButtonOf(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return kLeftButton;
  if (button == Qt::RightButton) return kRightButton;
  if (button == Qt::MiddleButton) return kMiddleButton;
  return 0;
}

int ButtonsOf(Qt::MouseButtons buttons) {
  int held = 0;
  for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
    if (buttons.testFlag(button)) held |= ButtonOf(button);
  return held;
}

std::optional<Key> KeyOf(const QKeyEvent& event) {
  struct Pair {
    int code;
    Key key;
  };
  constexpr Pair kKeys[] = {{Qt::Key_Tab, Key::Tab},       {Qt::Key_Backtab, Key::BackTab},
                            {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},
                            {Qt::Key_Space, Key::Space},   {Qt::Key_Escape, Key::Escape},
                            {Qt::Key_Up, Key::Up},         {Qt::Key_Down, Key::Down},
                            {Qt::Key_Left, Key::Left},     {Qt::Key_Right, Key::Right},
                            {Qt::Key_PageUp, Key::PageUp}, {Qt::Key_PageDown, Key::PageDown},
                            {Qt::Key_Home, Key::Home},     {Qt::Key_End, Key::End},
                            {Qt::Key_Delete, Key::Delete}, {Qt::Key_Backspace, Key::Backspace},
                            {Qt::Key_Plus, Key::Plus},     {Qt::Key_1, Key::One},
                            {Qt::Key_2, Key::Two},         {Qt::Key_3, Key::Three},
                            {Qt::Key_4, Key::Four},        {Qt::Key_5, Key::Five},
                            {Qt::Key_6, Key::Six}};
  // With one of them held a key is a command of the window's or the system's.
  if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
  const auto* found = std::ranges::find(kKeys, event.key(), &Pair::code);
  return found == std::end(kKeys) ? std::nullopt : std::optional(found->key);
}

bool Repeats::Has(const QKeyEvent& event) {
  if (event.isAutoRepeat()) return event.type() == QEvent::KeyPress;
  // X tells a repeat by a release and a press of one moment. Where they arrive apart, on a busy machine, the toolkit
  // takes them for the player's. One who plays with no fingers may be as quick, but no server repeats within 3 ms.
  static const bool isX11 = QGuiApplication::platformName() == QLatin1String("xcb");
  // What was pressed before it came here has been held for long.
  if (std::exchange(key_, event.nativeScanCode()) != event.nativeScanCode()) pressed_ = released_ = 0;
  if (event.type() == QEvent::KeyRelease) {
    released_ = event.timestamp();
    return false;
  }
  const bool wasHeld = released_ > std::exchange(pressed_, event.timestamp()) + 3;
  return isX11 && wasHeld && event.timestamp() == released_;
}

}  // namespace desktop::qt
