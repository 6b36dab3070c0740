// The store of the user's values, on a real disk.
#include "desktop/qt/settings_store.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

TEST(Settings, AreWrittenToTheirFileAndNotMadeByReading) {
  const QTemporaryDir home;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
  desktop::qt::SettingsStore store;
  const auto read = [&](const char* key) { return store.Read("Thistle and Lantern", "Settings", key, "none"); };
  const auto save = [&](const char* key, const char* text) {
    store.Save("Thistle and Lantern", "Settings", key, text);
    store.Sync();
  };
  // A file for all of the application's sections is somebody else's.
  QSettings(QSettings::NativeFormat, QSettings::UserScope, "Thistle and Lantern").setValue("Stash0", "9");
  EXPECT_EQ(read("Stash0"), "none");
  store.Sync();
  QFile file(home.path() + "/Thistle and Lantern/Settings.conf");
  EXPECT_FALSE(file.exists());
  save("MainLeft", "-1200");
  save("SoundOn", "False");
  ASSERT_TRUE(file.open(QFile::ReadOnly));
  EXPECT_EQ(file.readAll(), "[General]\nMainLeft=-1200\nSoundOn=False\n");
  EXPECT_EQ(read("MainLeft"), "-1200");
  file.close();
  // As somebody may have written it.
  ASSERT_TRUE(file.open(QFile::WriteOnly));
  file.write("[General]\nStash0=1,000\nStash1=\n");
  file.close();
  desktop::qt::SettingsStore fresh;
  EXPECT_EQ(fresh.Read("Thistle and Lantern", "Settings", "Stash0", "none"), "1,000");
  EXPECT_EQ(fresh.Read("Thistle and Lantern", "Settings", "Stash1", "none"), "");
}

}  // namespace
