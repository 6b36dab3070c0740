// Between the rules' UTF-8 and Windows' UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace desktop::win32 {

std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);

/// A caption as a screen reader says it: the words without the line ends around and between them.
std::wstring SpokenName(std::string_view caption);

}  // namespace desktop::win32
