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

/// Tells keys that are held down and repeat from keys that are pressed anew.
class Repeats {
 public:
  /// Of a press or a release, each of which it wants in turn. True for a press that repeats.
  bool Has(const QKeyEvent& event);

 private:
  // Of one key, in the X server's milliseconds.
  quint32 key_ = 0;
  quint64 pressed_ = 0;
  quint64 released_ = 0;
};

}  // namespace desktop::qt
