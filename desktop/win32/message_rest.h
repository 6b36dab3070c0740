// A rest in Windows' queue of messages.
#pragma once

#include <windows.h>

#include "desktop/common/waits.h"
#include "desktop/win32/handles.h"

namespace desktop::win32 {

/// Ends of itself after `seconds`, never early. While a menu is open or the title bar is held, messages run inside the
/// system's own loop, and the rest ends when that does.
class MessageRest : public common::Rest {
 public:
  explicit MessageRest(double seconds);

  void Run() override;
  void End() override { ended_ = true; }

 private:
  bool IsOver() const;

  KernelHandle timer_;
  bool ended_ = false;
};

}  // namespace desktop::win32
