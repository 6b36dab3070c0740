#include "desktop/win32/message_rest.h"

#include <cmath>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x2
#endif

namespace desktop::win32 {

namespace {

constexpr double kTicksPerSecond = 1e7;

/// Of high resolution where the system has such: the others end up to 16 ms late.
HANDLE MakeTimer() {
  const HANDLE timer =
      CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION, TIMER_ALL_ACCESS);
  return timer ? timer : CreateWaitableTimerExW(nullptr, nullptr, 0, TIMER_ALL_ACCESS);
}

}  // namespace

MessageRest::MessageRest(double seconds) : timer_(MakeTimer()) {
  LARGE_INTEGER due{};
  due.QuadPart = -static_cast<LONGLONG>(std::ceil(seconds * kTicksPerSecond));  // from now on
  SetWaitableTimer(timer_.get(), &due, 0, nullptr, nullptr, FALSE);
}

bool MessageRest::IsOver() const { return ended_ || WaitForSingleObject(timer_.get(), 0) == WAIT_OBJECT_0; }

void MessageRest::Run() {
  HANDLE timer = timer_.get();
  while (!ended_) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
      if (IsOver()) return;
    }
    if (MsgWaitForMultipleObjectsEx(1, &timer, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE) == WAIT_OBJECT_0) return;
  }
}

}  // namespace desktop::win32
