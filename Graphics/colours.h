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

}  // namespace thistle::colours
