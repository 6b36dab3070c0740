// The store of the user's values, on a real disk and between real processes.
#include "desktop/qt/settings_store.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>

namespace {

using desktop::qt::SettingsStore;

constexpr const char* kApplication = "Thistle and Lantern";
constexpr const char* kKeys[] = {"SoundOn", "Stash0", "Stash1", "Stash2", "MainLeft", "MainTop"};

std::string Read(SettingsStore& store, const char* key) { return store.Read(kApplication, "Settings", key, "none"); }
void Save(SettingsStore& store, const char* key, const char* text) { store.Save(kApplication, "Settings", key, text); }
void SaveAll(SettingsStore& store, const char* text) {
  for (const char* key : kKeys) Save(store, key, text);
}
void ExpectAll(SettingsStore& store, const std::string& text) {
  for (const char* key : kKeys) EXPECT_EQ(Read(store, key), text) << key;
}

class Settings : public testing::Test {
 protected:
  void SetUp() override { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home_.path()); }

  QString Folder() const { return home_.path() + "/" + kApplication; }
  QString File() const { return Folder() + "/Settings.conf"; }
  static void Write(const QString& name, const QByteArray& text) {
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write(text) == text.size());
  }

  /// Another run of the program: what Qt remembers of a file within one process would hide the disk.
  static pid_t Begin(const std::function<void(SettingsStore&)>& run) {
    const pid_t child = fork();
    if (child != 0) return child;
    SettingsStore store;
    run(store);
    _exit(HasFailure() ? 1 : 0);
  }
  static void InARun(const std::function<void(SettingsStore&)>& run) {
    int status = -1;
    waitpid(Begin(run), &status, 0);
    EXPECT_EQ(status, 0);
  }

 private:
  QTemporaryDir home_;
};

TEST_F(Settings, OutliveTheRunAndAreNotMadeByReading) {
  InARun([](SettingsStore& store) {
    ExpectAll(store, "none");
    store.Sync();
  });
  EXPECT_FALSE(QFile::exists(Folder()));
  const std::pair<const char*, const char*> texts[] = {
      {"MainLeft", "-1200"}, {"SoundOn", "False"}, {"Stash1", "  a, b; \"c\""}, {"Stash2", "£ é \\ @Point(1 2)"}};
  InARun([&](SettingsStore& store) {
    for (const auto& [key, text] : texts) Save(store, key, text);
    store.Sync();
  });
  InARun([&](SettingsStore& store) {
    for (const auto& [key, text] : texts) EXPECT_EQ(Read(store, key), text);
    EXPECT_EQ(store.Read("Another Game", "Settings", "Stash1", "none"), "none");
    EXPECT_EQ(store.Read(kApplication, "Elsewhere", "Stash1", "none"), "none");
  });
}

TEST_F(Settings, LeaveAloneWhatOthersWroteAndWhatIsStillWholeInADamagedFile) {
  Write(File(),
        "[General]\nStash0=7\nForeign=kept\n" + QByteArray("\0\xFF\xFE", 3) + "\n[[[\nStash1\n=\n[Group]\nDeep=too\n");
  InARun([](SettingsStore& store) {
    EXPECT_EQ(Read(store, "Stash0"), "7");
    EXPECT_EQ(Read(store, "Stash2"), "none");
    Save(store, "Stash2", "4");
    store.Sync();
  });
  InARun([](SettingsStore& store) {
    for (const auto& [key, text] :
         {std::pair{"Stash2", "4"}, {"Stash0", "7"}, {"Foreign", "kept"}, {"Group/Deep", "too"}})
      EXPECT_EQ(Read(store, key), text) << key;
  });
}

TEST_F(Settings, StopNothingWhereTheyCannotBeKept) {
  const auto useless = [](SettingsStore& store) {
    ExpectAll(store, "none");
    SaveAll(store, "1");
    store.Sync();
  };
  QDir().mkpath(File());
  InARun(useless);
  EXPECT_TRUE(QDir(File()).exists()) << "a folder in the file's place";

  QDir(Folder()).removeRecursively();
  Write(Folder(), "here first");
  InARun(useless);
  EXPECT_EQ(QFileInfo(Folder()).size(), 10) << "a file in the folder's place";
}

TEST_F(Settings, StandAsTheyWereWhenTheDiskIsFull) {
  InARun([](SettingsStore& store) {
    SaveAll(store, "old");
    store.Sync();
  });
  InARun([](SettingsStore& store) {
    // No file may grow: to a writer the same as a disk without room.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{10, 10};
    setrlimit(RLIMIT_FSIZE, &little);
    SaveAll(store, "new");
    store.Sync();
  });
  InARun([](SettingsStore& store) { ExpectAll(store, "old"); });
}

TEST_F(Settings, OpenAfterARunThatDiedWhileWriting) {
  const pid_t dead = Begin([](SettingsStore&) {});
  waitpid(dead, nullptr, 0);
  Write(File() + ".lock", QByteArray::number(dead) + "\nqt_test\n" + QSysInfo::machineHostName().toUtf8() + "\n");
  InARun([](SettingsStore& store) {
    SaveAll(store, "1");
    store.Sync();
  });
  InARun([](SettingsStore& store) { ExpectAll(store, "1"); });
}

TEST_F(Settings, AreThoseOfTheRunThatEndsLastAndNeverAMixture) {
  InARun([](SettingsStore& slow) {
    SaveAll(slow, "slow");
    InARun([](SettingsStore& quick) {
      SaveAll(quick, "quick");
      quick.Sync();
    });
    slow.Sync();
  });
  InARun([](SettingsStore& store) { ExpectAll(store, "slow"); });

  const auto writer = [](const char* text) {
    return Begin([text](SettingsStore& store) {
      for (int i = 0; i < 100; ++i) {
        SaveAll(store, text);
        store.Sync();
        Save(store, "Stash0", "away");  // so that there is something to write each time
      }
      SaveAll(store, text);
      store.Sync();
    });
  };
  std::vector<pid_t> writers{writer("first"), writer("second")};
  while (!writers.empty()) {
    InARun([](SettingsStore& store) { ExpectAll(store, Read(store, kKeys[0])); });
    std::erase_if(writers, [](pid_t child) { return waitpid(child, nullptr, WNOHANG) == child; });
  }
}

}  // namespace
