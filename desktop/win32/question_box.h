// A yes-or-no question that can only be answered, not dismissed.
#pragma once

#include <windows.h>

#include <string_view>

namespace desktop::win32 {

/// Asks in the system's own message box, Yes being the default. True for Yes. Esc and the box's close button do
/// nothing: a No by accident could cost the player's money.
bool AskYesNo(HWND owner, std::string_view text, std::string_view title);

}  // namespace desktop::win32
