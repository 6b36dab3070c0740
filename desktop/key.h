// The keys that mean something on a form.
#pragma once

namespace desktop {

enum class Key {
  Tab,
  BackTab,
  Enter,
  Space,
  Escape,
  Up,
  Down,
  Left,
  Right,
  PageUp,
  PageDown,
  Home,
  End,
  Delete,
  Backspace,
  Plus,
  One,  ///< the digits follow one another
  Two,
  Three,
  Four,
  Five,
  Six,
};

}  // namespace desktop
