// The user's stored values, at the platform's own place for them.
#pragma once

#include <QSettings>
#include <memory>
#include <string>
#include <string_view>

namespace desktop::qt {

/// One text for each application, section and key. A store that cannot be read or written never
/// stops anything: reading gives the default, and saving changes nothing.
class SettingsStore {
 public:
  std::string Read(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view fallback);
  void Save(std::string_view application, std::string_view section, std::string_view key, std::string_view text);
  /// Puts all that was saved on the disk. The process may end at once after it.
  void Sync();

 private:
  QSettings& At(std::string_view application, std::string_view section);

  std::string address_;
  std::unique_ptr<QSettings> store_;
};

}  // namespace desktop::qt
