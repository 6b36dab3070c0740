#include "desktop/win32/question_box.h"

#include <commctrl.h>

#include <string_view>

#include "desktop/win32/input.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

bool IsDismissal(UINT message, WPARAM wide) {
  if (message == WM_CLOSE) return true;
  if (message == WM_SYSCOMMAND) return (wide & 0xFFF0) == SC_CLOSE;
  return message == WM_COMMAND && LOWORD(wide) == IDCANCEL;
}

LRESULT CALLBACK Stay(HWND box, UINT message, WPARAM wide, LPARAM details, UINT_PTR, DWORD_PTR) {
  return IsDismissal(message, wide) ? 0 : DefSubclassProc(box, message, wide, details);
}

bool IsDialog(HWND window) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return std::wstring_view(name) == L"#32770";
}

LRESULT CALLBACK WhenActivated(int code, WPARAM wide, LPARAM details) {
  const auto window = reinterpret_cast<HWND>(wide);
  if (code == HCBT_ACTIVATE && IsDialog(window)) SetWindowSubclass(window, Stay, 0, 0);
  return CallNextHookEx(nullptr, code, wide, details);
}

/// An answer by a key that has been held since before would be one by accident.
LRESULT CALLBACK WhenReceived(int code, WPARAM wide, LPARAM details) {
  const auto& message = *reinterpret_cast<const MSG*>(details);
  if (code == MSGF_DIALOGBOX && message.message == WM_KEYDOWN && IsRepeated(message.lParam)) return 1;
  return CallNextHookEx(nullptr, code, wide, details);
}

}  // namespace

bool AskYesNo(HWND owner, std::string_view text, std::string_view title) {
  // The box tells nobody its window but a hook, and shows nobody its messages but another.
  const HHOOK windows = SetWindowsHookExW(WH_CBT, WhenActivated, nullptr, GetCurrentThreadId());
  const HHOOK messages = SetWindowsHookExW(WH_MSGFILTER, WhenReceived, nullptr, GetCurrentThreadId());
  const int answer =
      MessageBoxW(owner, Wide(text).c_str(), Wide(title).c_str(), MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON1);
  UnhookWindowsHookEx(messages);
  UnhookWindowsHookEx(windows);
  return answer == IDYES;
}

}  // namespace desktop::win32
