#include "desktop/qt/light_palette.h"

namespace desktop::qt {

QPalette LightPalette() {
  struct Role {
    QPalette::ColorRole role;
    QRgb colour;
  };
  constexpr Role kRoles[] = {
      {QPalette::Window, 0xFFFFFF80},
      {QPalette::WindowText, 0xFF000000},
      {QPalette::Base, 0xFFFFFFFF},
      {QPalette::AlternateBase, 0xFFF4F4F4},
      {QPalette::Text, 0xFF000000},
      {QPalette::Button, 0xFFEFEFEF},
      {QPalette::ButtonText, 0xFF000000},
      {QPalette::BrightText, 0xFFFFFFFF},
      {QPalette::Light, 0xFFFFFFFF},
      {QPalette::Midlight, 0xFFCACACA},
      {QPalette::Mid, 0xFFB8B8B8},
      {QPalette::Dark, 0xFF9F9F9F},
      {QPalette::Shadow, 0xFF767676},
      {QPalette::Highlight, 0xFF308CC6},
      {QPalette::HighlightedText, 0xFFFFFFFF},
      {QPalette::Link, 0xFF0000FF},
      {QPalette::LinkVisited, 0xFF800080},
      {QPalette::ToolTipBase, 0xFFFFFFE1},
      {QPalette::ToolTipText, 0xFF000000},
      {QPalette::PlaceholderText, 0xFF808080},
  };
  QPalette palette;
  for (const auto& [role, colour] : kRoles) palette.setColor(role, QColor::fromRgba(colour));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
  return palette;
}

}  // namespace desktop::qt
