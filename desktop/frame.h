// The one top-level window: a menu bar and the forms inside it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/form.h"

namespace desktop {

enum class WindowState { Normal, Minimised, Maximised };

/// An entry of the menu bar. One without entries of its own is a command.
struct MenuEntry {
  std::string_view Name;
  std::string_view Caption;
  std::vector<MenuEntry> Entries;
};

class Frame {
 public:
  Frame() = default;
  virtual ~Frame() = default;
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;

  std::string Caption;
  float Left = 0;                           ///< twips on the screen, border included; kept up to date by the desktop
  float Top = 0;                            ///< twips, as Left
  bool HasPlace = true;                     ///< false where the platform tells no window its place
  int ClientWidth = 0;                      ///< pixels inside, in the normal state
  int ClientHeight = 0;                     ///< pixels inside and below the menu bar, in the normal state
  WindowState State = WindowState::Normal;  ///< the platform's; written by the desktop alone
  Colour BackColor;
  std::string_view Icon;  ///< stem of the names of the icon's pictures
  std::vector<MenuEntry> Menu;

  /// The forms on show, back to front.
  const std::vector<Form*>& Children() const { return children_; }

  /// Opens a form: loads one that is not loaded, brings one that is to the front.
  void Open(Form& form);
  /// Puts a form on show, in front of the others.
  void Show(Form& form);
  /// Takes a form off the frame. Its next opening loads it afresh.
  void Unload(Form& form);

  virtual void MenuClick(std::string_view name) = 0;
  /// The size or the state has changed.
  virtual void Resize() = 0;
  /// Unloads the frame, which ends the program: does not return.
  virtual void Close() = 0;

 private:
  std::vector<Form*> children_;
};

}  // namespace desktop
