// How large the frame is in the normal state.
#pragma once

namespace thistle::frame_size {

// Twips, with border, title bar and menu: what the start place is reckoned with.
inline constexpr int kOuterWidth = 9600;
inline constexpr int kOuterHeight = 6775;

// Pixels inside, below the menu: a full-size form.
inline constexpr int kClientWidth = 632;
inline constexpr int kClientHeight = 406;

}  // namespace thistle::frame_size
