#include "desktop/qt/input.h"

#include <algorithm>

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

}  // namespace desktop::qt
