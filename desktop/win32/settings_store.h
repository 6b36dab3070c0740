// The user's stored values, in the registry under the user's own key.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace desktop::win32 {

/// One text for each application, section and key. A section is one value of the application's registry key, a list of
/// lines "key=text", so that what a run saves is stored by one call: all of it or nothing. A store that cannot be read
/// or written never stops anything: reading gives the default, and saving changes nothing.
class SettingsStore {
 public:
  std::string Read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view fallback) const;
  void Save(std::string_view application, std::string_view section, std::string_view key, std::string_view text);
  /// Stores all that was saved, beside what another run has stored meanwhile. The process may end at once after it.
  void Sync();

 private:
  using Section = std::map<std::string, std::string, std::less<>>;

  struct Address {
    std::string application;
    std::string section;
    auto operator<=>(const Address&) const = default;
  };

  static Section Load(const Address& address);
  static void Store(const Address& address, const Section& section);

  std::map<Address, Section> saved_;
};

}  // namespace desktop::win32
