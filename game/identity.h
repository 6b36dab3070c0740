// Who the application is, wherever it says so.
#pragma once

#include <string_view>

namespace thistle::identity {

inline constexpr std::string_view kTitle = "Thistle and Lantern";
inline constexpr std::string_view kCompany = "Quenby Software";
// A reserved domain: these addresses can never belong to a stranger.
inline constexpr std::string_view kSupportAddress = "support@quenby-software.example";
inline constexpr std::string_view kWebSite = "https://quenby-software.example";
inline constexpr int kMajor = 1;
inline constexpr int kMinor = 0;
inline constexpr int kRevision = 0;

}  // namespace thistle::identity
