#include "desktop/qt/settings_store.h"

#include "desktop/qt/text.h"

namespace desktop::qt {

QSettings& SettingsStore::At(std::string_view application, std::string_view section) {
  std::string address = std::string(application) + "/" + std::string(section);
  if (!store_ || address != address_) {
    address_ = std::move(address);
    store_ =
        std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, Text(application), Text(section));
    store_->setFallbacksEnabled(false);
  }
  return *store_;
}

std::string SettingsStore::Read(std::string_view application, std::string_view section, std::string_view key,
                                std::string_view fallback) {
  // A file that somebody has written by hand may have a comma, at which the toolkit makes a list of it.
  return At(application, section).value(Text(key), Text(fallback)).toStringList().join(u',').toStdString();
}

void SettingsStore::Save(std::string_view application, std::string_view section, std::string_view key,
                         std::string_view text) {
  At(application, section).setValue(Text(key), Text(text));
}

void SettingsStore::Sync() {
  if (store_) store_->sync();
}

}  // namespace desktop::qt
