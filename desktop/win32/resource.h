// What the program carries in its own file.
#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace desktop::win32 {

/// The bytes of a resource, which live as long as the program; empty where there is none.
std::span<const std::byte> Resource(const std::wstring& name, const wchar_t* type);

}  // namespace desktop::win32
