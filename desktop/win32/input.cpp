#include "desktop/win32/input.h"

#include <algorithm>
#include <iterator>

#include "desktop/form.h"

namespace desktop::win32 {

namespace {

bool IsDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

int PressedBy(UINT message) {
  if (message == WM_LBUTTONDOWN) return kLeftButton;
  if (message == WM_RBUTTONDOWN) return kRightButton;
  return message == WM_MBUTTONDOWN ? kMiddleButton : 0;
}

int ReleasedBy(UINT message) {
  if (message == WM_LBUTTONUP) return kLeftButton;
  if (message == WM_RBUTTONUP) return kRightButton;
  return message == WM_MBUTTONUP ? kMiddleButton : 0;
}

int HeldIn(WPARAM flags) {
  return (flags & MK_LBUTTON ? kLeftButton : 0) | (flags & MK_RBUTTON ? kRightButton : 0) |
         (flags & MK_MBUTTON ? kMiddleButton : 0);
}

wchar_t WrittenBy(WPARAM code, LPARAM details) {
  // So that an accent begun elsewhere is not lost.
  constexpr UINT kLeaveKeyboard = 1 << 2;
  BYTE held[256] = {};
  if (!GetKeyboardState(held)) return 0;
  wchar_t written[4] = {};
  const UINT scanCode = HIWORD(details) & 0xFF;
  const int count = ToUnicode(static_cast<UINT>(code), scanCode, held, written, 4, kLeaveKeyboard);
  return count == 1 ? written[0] : 0;
}

std::optional<Key> KeyOf(WPARAM code, wchar_t written) {
  // On some keyboards on the key of a digit.
  if (written == L'+') return Key::Plus;
  struct Pair {
    WPARAM code;
    Key key;
  };
  constexpr Pair kKeys[] = {{VK_RETURN, Key::Enter},   {VK_SPACE, Key::Space},  {VK_ESCAPE, Key::Escape},
                            {VK_UP, Key::Up},          {VK_DOWN, Key::Down},    {VK_LEFT, Key::Left},
                            {VK_RIGHT, Key::Right},    {VK_PRIOR, Key::PageUp}, {VK_NEXT, Key::PageDown},
                            {VK_HOME, Key::Home},      {VK_END, Key::End},      {VK_DELETE, Key::Delete},
                            {VK_BACK, Key::Backspace}, {VK_ADD, Key::Plus},     {VK_OEM_PLUS, Key::Plus}};
  constexpr WPARAM kDigits[] = {'1', VK_NUMPAD1};
  for (const WPARAM one : kDigits)
    if (code >= one && code < one + 6)
      return static_cast<Key>(static_cast<int>(Key::One) + static_cast<int>(code - one));
  if (code == VK_TAB) return IsDown(VK_SHIFT) ? Key::BackTab : Key::Tab;
  const auto* found = std::ranges::find(kKeys, code, &Pair::code);
  return found == std::end(kKeys) ? std::nullopt : std::optional(found->key);
}

bool IsCopy(WPARAM code) { return (code == 'C' || code == VK_INSERT) && IsDown(VK_CONTROL); }

}  // namespace desktop::win32
