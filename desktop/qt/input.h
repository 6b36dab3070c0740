// Qt's mouse buttons and keys, as the records and the rooms above know them.
#pragma once

#include <QKeyEvent>
#include <optional>

#include "desktop/common/keyboard.h"
#include "desktop/form.h"

namespace desktop::qt {

/// 0 for a button that the game has no use for.
int ButtonOf(Qt::MouseButton button);
/// The sum of all that are held.
int ButtonsOf(Qt::MouseButtons buttons);

/// None for a key that means nothing on a form.
std::optional<Key> KeyOf(const QKeyEvent& event);

}  // namespace desktop::qt
