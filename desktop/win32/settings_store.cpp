#include "desktop/win32/settings_store.h"

#include <windows.h>

#include <utility>

#include "desktop/win32/handles.h"
#include "desktop/win32/text.h"

namespace desktop::win32 {

namespace {

std::wstring KeyOf(const std::string& application) { return L"Software\\" + Wide(application); }

}  // namespace

std::string SettingsStore::Read(std::string_view application, std::string_view section, std::string_view key,
                                std::string_view fallback) const {
  const Section stored = Load({std::string(application), std::string(section)});
  const auto found = stored.find(key);
  return found == stored.end() ? std::string(fallback) : found->second;
}

void SettingsStore::Save(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view text) {
  saved_[{std::string(application), std::string(section)}].insert_or_assign(std::string(key), std::string(text));
}

void SettingsStore::Sync() {
  for (auto& [address, saved] : std::exchange(saved_, {})) {
    saved.merge(Load(address));  // what this run has saved goes before
    Store(address, saved);
  }
}

SettingsStore::Section SettingsStore::Load(const Address& address) {
  const std::wstring key = KeyOf(address.application);
  const std::wstring value = Wide(address.section);
  const auto get = [&](wchar_t* lines, DWORD& size) {
    return RegGetValueW(HKEY_CURRENT_USER, key.c_str(), value.c_str(), RRF_RT_REG_MULTI_SZ, nullptr, lines, &size);
  };
  DWORD size = 0;
  if (get(nullptr, size) != ERROR_SUCCESS) return {};
  std::wstring lines(size / sizeof(wchar_t) + 1, L'\0');
  if (get(lines.data(), size) != ERROR_SUCCESS) return {};
  Section section;
  for (const wchar_t* line = lines.c_str(); *line; line += std::wstring_view(line).size() + 1) {
    const std::string text = Narrow(line);
    const auto equals = text.find('=');
    if (equals != std::string::npos) section.insert_or_assign(text.substr(0, equals), text.substr(equals + 1));
  }
  return section;
}

void SettingsStore::Store(const Address& address, const Section& section) {
  std::wstring lines;
  for (const auto& [key, text] : section) lines += Wide(key + "=" + text) + L'\0';
  HKEY opened = nullptr;
  if (RegCreateKeyExW(HKEY_CURRENT_USER, KeyOf(address.application).c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                      &opened, nullptr) != ERROR_SUCCESS)
    return;
  const RegistryKey key(opened);
  // With the zero behind the last line.
  const auto* bytes = reinterpret_cast<const BYTE*>(lines.c_str());
  RegSetValueExW(key.get(), Wide(address.section).c_str(), 0, REG_MULTI_SZ, bytes,
                 static_cast<DWORD>((lines.size() + 1) * sizeof(wchar_t)));
}

}  // namespace desktop::win32
