// The store of the user's values, on a real disk.
#include "desktop/qt/settings_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <optional>

namespace {

constexpr const char* kApplication = "Thistle and Lantern";

class Settings : public testing::Test {
 protected:
  Settings() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home_.path()); }

  std::string Read(const char* key) { return store_->Read(kApplication, "Settings", key, "none"); }
  void Save(const char* key, const char* text) { store_->Save(kApplication, "Settings", key, text); }

  QTemporaryDir home_;
  QString folder_ = home_.path() + "/" + kApplication;
  QFile file_{folder_ + "/Settings.conf"};
  std::optional<desktop::qt::SettingsStore> store_{std::in_place};
};

TEST_F(Settings, AreWrittenToTheirFileAndAreNotMadeByReading) {
  EXPECT_EQ(Read("Stash0"), "none");
  store_->Sync();
  EXPECT_FALSE(QFile::exists(folder_));
  Save("MainLeft", "-1200");
  Save("SoundOn", "False");
  store_->Sync();
  ASSERT_TRUE(file_.open(QFile::ReadOnly));
  EXPECT_EQ(file_.readAll(), "[General]\nMainLeft=-1200\nSoundOn=False\n");
  EXPECT_EQ(Read("MainLeft"), "-1200");
}

TEST_F(Settings, KeepWhatOthersWroteAndWhatIsStillWholeInADamagedFile) {
  QDir().mkpath(folder_);
  ASSERT_TRUE(file_.open(QFile::ReadWrite));
  file_.write("[General]\nStash0=7\nForeign=kept\n" + QByteArray("\0\xFF\xFE", 3) + "\n[[[\nStash1\n=\n");
  file_.write("[Group]\nDeep=too\n");
  file_.close();
  EXPECT_EQ(Read("Stash0"), "7");
  EXPECT_EQ(Read("Stash2"), "none");
  Save("Stash2", "4");
  store_.reset();  // which writes, too
  ASSERT_TRUE(file_.open(QFile::ReadOnly));
  const QByteArray text = file_.readAll();
  for (const char* line : {"\nStash0=7\n", "\nStash2=4\n", "\nForeign=kept\n", "\n[Group]\nDeep=too\n"})
    EXPECT_TRUE(text.contains(line)) << line << "is not in " << text.toStdString();
}

}  // namespace
