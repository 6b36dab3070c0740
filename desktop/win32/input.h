// Windows' mouse and keys, as the records and the rooms above know them.
#pragma once

#include <windows.h>

#include <optional>

#include "desktop/common/keyboard.h"

namespace desktop::win32 {

/// The mouse button that a message tells of. 0 for other messages, and for a button that the game has no use for.
int PressedBy(UINT message);
int ReleasedBy(UINT message);
/// The sum of all that are held, from a mouse message's flags.
int HeldIn(WPARAM flags);

/// What a WM_KEYDOWN of the code means, with what the key writes on the user's keyboard. None for a key that means
/// nothing on a form.
std::optional<Key> KeyOf(WPARAM code, wchar_t written);
/// What the key of a WM_KEYDOWN writes, with what else is held now. Zero where that is nothing, or an accent to come.
wchar_t WrittenBy(WPARAM code, LPARAM details);
/// Whether a WM_KEYDOWN tells of a key that is held down and repeats.
inline bool IsRepeated(LPARAM details) { return (details & 1 << 30) != 0; }
bool IsCopy(WPARAM code);

}  // namespace desktop::win32
