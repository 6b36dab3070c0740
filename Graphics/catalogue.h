// Every picture the program carries, by the name under which the forms ask for it.
#pragma once

#include <array>
#include <vector>

#include "desktop/picture.h"

namespace thistle {

/// Sizes in pixels at a scale of 1. The desktop finds the pixels by the picture's name.
namespace pictures {

using desktop::Picture;

// The picture store, shared by all forms.
inline constexpr Picture TenPound{"TenPound", 59, 31};
inline constexpr Picture FivePound{"FivePound", 56, 28};
inline constexpr Picture OnePound{"OnePound", 20, 20};
inline constexpr Picture Wood{"Wood", 400, 400};
inline constexpr Picture ThistleAndLantern128{"ThistleAndLantern128", 128, 128};
inline constexpr Picture ThistleLantern32{"ThistleLantern32", 32, 32};

/// Two dozen frames of a tumbling die in one closed loop; see FaceSquare for the face of each group
/// of four.
inline constexpr std::array<Picture, 24> Anidice{{
    {"Anidice00", 92, 105}, {"Anidice01", 92, 105}, {"Anidice02", 92, 105}, {"Anidice03", 92, 105},
    {"Anidice04", 92, 105}, {"Anidice05", 92, 105}, {"Anidice06", 92, 105}, {"Anidice07", 92, 105},
    {"Anidice08", 92, 105}, {"Anidice09", 92, 105}, {"Anidice10", 92, 105}, {"Anidice11", 92, 105},
    {"Anidice12", 92, 105}, {"Anidice13", 92, 105}, {"Anidice14", 92, 105}, {"Anidice15", 92, 105},
    {"Anidice16", 92, 105}, {"Anidice17", 92, 105}, {"Anidice18", 92, 105}, {"Anidice19", 92, 105},
    {"Anidice20", 92, 105}, {"Anidice21", 92, 105}, {"Anidice22", 92, 105}, {"Anidice23", 92, 105},
}};

// The table's own: mat squares from the left, then the frames of the shake.
inline constexpr std::array<Picture, 6> Mat{{
    {"MatHeart", 100, 100},
    {"MatSpade", 100, 100},
    {"MatDiamond", 100, 100},
    {"MatClub", 100, 100},
    {"MatThistle", 100, 100},
    {"MatLantern", 100, 100},
}};
inline constexpr Picture CupStanding{"CupStanding", 91, 117};
inline constexpr Picture CupCentre{"CupCentre", 89, 137};
inline constexpr Picture CupLeft{"CupLeft", 111, 140};
inline constexpr Picture CupRight{"CupRight", 111, 142};
inline constexpr Picture CupThrow{"CupThrow", 118, 150};

// In the lines of the instructions.
inline constexpr std::array<Picture, 6> Face{{
    {"FaceHeart", 32, 32},
    {"FaceSpade", 32, 32},
    {"FaceDiamond", 32, 32},
    {"FaceClub", 32, 32},
    {"FaceThistle", 32, 32},
    {"FaceLantern", 32, 32},
}};
inline constexpr Picture InlineMat{"InlineMat", 200, 37};
inline constexpr Picture InlineTen{"InlineTen", 84, 44};
inline constexpr Picture InlineFive{"InlineFive", 79, 40};
inline constexpr Picture InlineOne{"InlineOne", 27, 27};
inline constexpr Picture NoDrop{"NoDrop", 15, 15};

}  // namespace pictures

/// All of the above, for a desktop that wants to look them over.
std::vector<const desktop::Picture*> AllPictures();

}  // namespace thistle
