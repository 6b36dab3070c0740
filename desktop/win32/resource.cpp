#include "desktop/win32/resource.h"

#include <windows.h>

namespace desktop::win32 {

std::span<const std::byte> Resource(const std::wstring& name, const wchar_t* type) {
  const HRSRC found = FindResourceW(nullptr, name.c_str(), type);
  if (!found) return {};
  const auto* bytes = static_cast<const std::byte*>(LockResource(LoadResource(nullptr, found)));
  return {bytes, SizeofResource(nullptr, found)};
}

}  // namespace desktop::win32
