// The values that survive a run: their keys, their text forms, and how a text is read back.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace thistle::settings {

inline constexpr std::string_view kSection = "Settings";
inline constexpr std::string_view kMainLeft = "MainLeft";
inline constexpr std::string_view kMainTop = "MainTop";
inline constexpr std::string_view kSoundOn = "SoundOn";
inline constexpr std::string_view kStash[] = {"Stash0", "Stash1", "Stash2"};
inline constexpr std::string_view kTrue = "True";
inline constexpr std::string_view kFalse = "False";

/// The number that `text` begins with, after any blanks: the longest prefix that is a decimal
/// number with an optional sign, fraction and exponent. 0 where there is none; the largest double, or
/// beyond, where it is larger.
double LeadingNumber(std::string_view text);

/// A count of pieces from its stored text. A fraction is cut off. What no pile can hold counts as 0:
/// less than nothing, what is not finite, and more than 2^53, beyond which a number of this kind no
/// longer tells one piece from the next.
std::int64_t PieceCount(std::string_view text);

/// A place of the frame in twips; none where the text does not begin with a finite number.
std::optional<float> Place(std::string_view text);

/// The flag; none where the text is neither of the two words.
std::optional<bool> Flag(std::string_view text);

}  // namespace thistle::settings
