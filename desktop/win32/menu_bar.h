// The menu bar, as Windows has it.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

#include "desktop/frame.h"

namespace desktop::win32 {

class MenuBar {
 public:
  /// The bar belongs to the window that is given it. `entries` must outlive this.
  explicit MenuBar(const std::vector<MenuEntry>& entries);

  HMENU handle() const { return bar_; }
  /// The name of the command with this number in a WM_COMMAND; empty where there is none.
  std::string_view NameOf(WORD command) const;

 private:
  void Add(HMENU menu, const std::vector<MenuEntry>& entries);

  HMENU bar_ = CreateMenu();
  std::vector<std::string_view> names_;
};

}  // namespace desktop::win32
