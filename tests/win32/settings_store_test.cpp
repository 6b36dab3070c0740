// The stored values in the registry.
#include "desktop/win32/settings_store.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace desktop::win32 {

namespace {

constexpr auto kApplication = "Thistle and Lantern Test";
constexpr auto kKey = L"Software\\Thistle and Lantern Test";

class SettingsStoreTest : public testing::Test {
 protected:
  void SetUp() override { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }
  void TearDown() override { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }

  static std::string Read(std::string_view key) { return SettingsStore().Read(kApplication, "Settings", key, "none"); }

  /// What somebody else has put there.
  static void Put(DWORD type, std::wstring_view bytes) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Settings", type, bytes.data(),
                    static_cast<DWORD>(bytes.size() * sizeof(wchar_t)));
  }
};

TEST_F(SettingsStoreTest, WhatIsSavedIsStoredAllAtOnceBesideWhatWasThere) {
  SettingsStore first;
  first.Save(kApplication, "Settings", "Stash0", "7");
  first.Save(kApplication, "Settings", "Name", "\xC2\xA3 = x");
  EXPECT_EQ(Read("Stash0"), "none") << "before the end nothing is stored";
  first.Sync();
  SettingsStore second;
  second.Save(kApplication, "Settings", "Stash0", "8");
  second.Sync();
  EXPECT_EQ(Read("Stash0"), "8");
  EXPECT_EQ(Read("Name"), "\xC2\xA3 = x");
  EXPECT_EQ(Read("Stash"), "none");
}

TEST_F(SettingsStoreTest, ReadingMakesNothing) {
  EXPECT_EQ(Read("Stash0"), "none");
  HKEY key = nullptr;
  EXPECT_EQ(RegOpenKeyW(HKEY_CURRENT_USER, kKey, &key), ERROR_FILE_NOT_FOUND);
}

TEST_F(SettingsStoreTest, OddTextsAreNoTexts) {
  Put(REG_MULTI_SZ, {L"Stash0=7\0no line\0=\0Stash1=1", 27});  // and no zero behind the last
  EXPECT_EQ(Read("Stash0"), "7");
  EXPECT_EQ(Read("Stash1"), "1");
  EXPECT_EQ(Read("no line"), "none");
  Put(REG_SZ, {L"Stash0=7", 9});
  EXPECT_EQ(Read("Stash0"), "none");
}

}  // namespace

}  // namespace desktop::win32
