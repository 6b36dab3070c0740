// The colours of the forms.
#pragma once

#include "desktop/look.h"

namespace thistle::colours {

inline constexpr desktop::Colour kTable{0xFFFF80};  ///< also the ground of cup and die pictures
inline constexpr desktop::Colour kCloth{0x00C000};
inline constexpr desktop::Colour kMat{0xC0FFC0};  ///< also the ground of the mat pictures
inline constexpr desktop::Colour kInstruction{0xFFE0C0};
inline constexpr desktop::Colour kCommand1{0xC04000};
inline constexpr desktop::Colour kTitle{0xE08800};  ///< headings of the forms around the table

/// Edges cut into honey-coloured wood.
inline constexpr desktop::ButtonLook kWoodenButton{
    .Rim = {{0x603800}},
    .Lit = {{0xFFFFFF}, 170},
    .Shaded = {{0x603800}, 150},
    .Focus = {{0x402400}},
    .Pressed = {{0x603000}, 56},
    .Disabled = {{0xFFFFFF}, 112},
    .DeadCaption = {0x605030},
};

inline constexpr desktop::Colour kRed{0xFF0000};
inline constexpr desktop::Colour kLink{0x0000FF};
inline constexpr desktop::Colour kAbout{0xFFFFC0};
inline constexpr desktop::Colour kAboutBorder{0xC0C000};
inline constexpr desktop::Colour kRuleDark{0x808080};
inline constexpr desktop::Colour kRuleLight{0xFFFFFF};
inline constexpr desktop::Colour kReturn{0xC0C000};
inline constexpr desktop::Colour kDocumentTitle{0xCC9900};
inline constexpr desktop::Colour kDocumentHeading{0x008000};

}  // namespace thistle::colours
