#include "desktop/win32/menu_bar.h"

#include <string>

#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

// Below it lie the numbers of the system's own commands.
constexpr std::size_t kFirst = 100;

}  // namespace

MenuBar::MenuBar(const std::vector<MenuEntry>& entries) { Add(bar_, entries); }

void MenuBar::Add(HMENU menu, const std::vector<MenuEntry>& entries) {
  for (const MenuEntry& entry : entries) {
    // Every entry can be reached by its first letter.
    const std::wstring caption = L'&' + Wide(entry.Caption);
    if (entry.Entries.empty()) {
      AppendMenuW(menu, MF_STRING, kFirst + names_.size(), caption.c_str());
      names_.push_back(entry.Name);
      continue;
    }
    const HMENU inner = CreatePopupMenu();
    Add(inner, entry.Entries);
    AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(inner), caption.c_str());
  }
}

std::string_view MenuBar::NameOf(WORD command) const {
  const std::size_t index = command - kFirst;
  return command >= kFirst && index < names_.size() ? names_[index] : std::string_view();
}

}  // namespace desktop::win32
