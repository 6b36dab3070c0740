#include "desktop/win32/text.h"

#include <windows.h>

namespace desktop::win32 {

std::wstring Wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Narrow(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), needed, nullptr, nullptr);
  return narrow;
}

std::wstring SpokenName(std::string_view caption) {
  std::string words;
  for (const char c : caption)
    if (c == '\n' && !words.empty() && words.back() != ' ')
      words += ' ';
    else if (c != '\r' && c != '\n')
      words += c;
  while (!words.empty() && words.back() == ' ') words.pop_back();
  return Wide(words);
}

}  // namespace desktop::win32
