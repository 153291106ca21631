// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/registry/SettingsFile.h"
#include "tests/linux/disk/FullDisk.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::registry {
namespace {

using dayvane::testing::FullDisk;
using dayvane::testing::ReadFile;
using dayvane::testing::TemporaryFolder;
using dayvane::testing::UnprivilegedUser;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace fs = std::filesystem;

constexpr const char* kKey = "Software\\Korvath\\Dayvane\\Options";
constexpr const char* kStored = "[Software\\Korvath\\Dayvane\\Options]\nPurge Age=30\n";

class SettingsFileTest : public ::testing::Test {
 protected:
  SettingsFile Open() {
    return {m_path, [this](const std::string& event) { m_events.push_back(event); }};
  }

  TemporaryFolder m_folder;
  std::string m_path = m_folder / "config/dayvane/dayvane.ini";
  std::vector<std::string> m_events;
};

TEST_F(SettingsFileTest, AMissingFileHoldsNothingAndIsNoDamage) {
  SettingsFile file = Open();
  EXPECT_FALSE(file.HasKey(kKey));
  EXPECT_EQ(file.Value(kKey, "Purge Age"), std::nullopt);
  EXPECT_THAT(m_events, IsEmpty());
  EXPECT_FALSE(fs::exists(m_path));
}

TEST_F(SettingsFileTest, AValueIsOnTheDiskAtOnce) {
  SettingsFile file = Open();
  file.SetValue(kKey, "Purge Age", "30");
  EXPECT_EQ(ReadFile(m_path), kStored);
}

TEST_F(SettingsFileTest, AValueOutlivesTheProgram) {
  Open().SetValue(kKey, "Purge Age", "a, b\n \"c\" ");
  EXPECT_EQ(Open().Value(kKey, "Purge Age"), "a, b\n \"c\" ");
}

TEST_F(SettingsFileTest, FoldersThatItMakesAreTheUsersAlone) {
  Open().SetValue(kKey, "Purge Age", "30");
  EXPECT_EQ(fs::status(m_folder / "config/dayvane").permissions(), fs::perms::owner_all);
}

TEST_F(SettingsFileTest, NamesAreTheSameWhateverTheirCase) {
  SettingsFile file = Open();
  file.SetValue(kKey, "Purge Age", "30");
  file.SetValue("software\\KORVATH\\dayvane\\options", "PURGE AGE", "31");
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "31");
  EXPECT_EQ(ReadFile(m_path), "[Software\\Korvath\\Dayvane\\Options]\nPurge Age=31\n");
}

TEST_F(SettingsFileTest, AKeyAboveAValueExists) {
  SettingsFile file = Open();
  file.SetValue(kKey, "Purge Age", "30");
  EXPECT_TRUE(file.HasKey("Software\\Korvath"));
  EXPECT_FALSE(file.HasKey("Software\\Kor"));
}

TEST_F(SettingsFileTest, AnAddedKeyReachesTheDiskWithItsFirstValue) {
  SettingsFile file = Open();
  file.AddKey(kKey);
  EXPECT_TRUE(file.HasKey(kKey));
  EXPECT_TRUE(file.HasKey("Software\\Korvath"));
  EXPECT_FALSE(Open().HasKey(kKey));
}

TEST_F(SettingsFileTest, AChangeMadeByHandIsSeenAndKept) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  SettingsFile file = Open();
  ASSERT_EQ(file.Value(kKey, "Purge Age"), "30");
  m_folder.Write("config/dayvane/dayvane.ini", "[Software\\Korvath\\Dayvane\\Options]\nPurge Age=7\nMine=yes\n");
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "7");
  file.SetValue(kKey, "Purge Age", "8");
  EXPECT_THAT(ReadFile(m_path), HasSubstr("Mine=yes"));
}

TEST_F(SettingsFileTest, AFileDeletedByHandHoldsNothingAnyMore) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  SettingsFile file = Open();
  ASSERT_TRUE(file.HasKey(kKey));
  fs::remove(m_path);
  EXPECT_FALSE(file.HasKey(kKey));
}

TEST_F(SettingsFileTest, TheSameTextAgainWritesNothing) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  SettingsFile file = Open();
  const FullDisk full;
  EXPECT_NO_THROW(file.SetValue(kKey, "Purge Age", "30"));
}

TEST_F(SettingsFileTest, AFullDiskIsAnErrorAndKeepsTheOldFile) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  SettingsFile file = Open();
  try {
    const FullDisk full;
    file.SetValue(kKey, "Purge Age", "31");
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kDiskFull);
  }
  EXPECT_EQ(ReadFile(m_path), kStored);
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
}

TEST_F(SettingsFileTest, AFolderThatMayNotBeWrittenIsAnErrorAndKeepsTheOldFile) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  fs::permissions(m_folder.Native(), fs::perms(0755));
  SettingsFile file = Open();
  fs::permissions(m_folder / "config/dayvane", fs::perms(0555));
  try {
    const UnprivilegedUser nobody;
    file.SetValue(kKey, "Purge Age", "31");
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPermissionDenied);
  }
  fs::permissions(m_folder / "config/dayvane", fs::perms(0700));
  EXPECT_EQ(ReadFile(m_path), kStored);
}

TEST_F(SettingsFileTest, ADefaultThatCannotBeStoredHoldsForThisRunAndIsToldOnce) {
  m_folder.Write("config/dayvane", "a file in the folder's place");
  SettingsFile file = Open();
  file.AddValue(kKey, "Purge Age", "30");
  file.AddValue(kKey, "Timer Interval", "60");
  EXPECT_TRUE(file.HasKey(kKey));
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("cannot be stored")));
  EXPECT_FALSE(Open().HasKey(kKey));
}

TEST_F(SettingsFileTest, AChangeThatCannotBeStoredIsAnErrorAndNoNewValue) {
  m_folder.Write("config/dayvane", "a file in the folder's place");
  SettingsFile file = Open();
  file.AddValue(kKey, "Purge Age", "30");
  EXPECT_THROW(file.SetValue(kKey, "Purge Age", "31"), Error);
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
}

TEST_F(SettingsFileTest, ADefaultThatCouldNotBeStoredIsStoredWithTheNextChange) {
  m_folder.Write("config/dayvane", "a file in the folder's place");
  SettingsFile file = Open();
  file.AddValue(kKey, "Purge Age", "30");
  fs::remove(m_folder / "config/dayvane");
  file.SetValue(kKey, "Timer Interval", "60");
  EXPECT_THAT(ReadFile(m_path), HasSubstr("Purge Age=30\nTimer Interval=60\n"));
}

TEST_F(SettingsFileTest, AValueThatTheUserWritesIntoTheFileIsStrongerThanADefaultOfThisRun) {
  m_folder.Write("config/dayvane", "a file in the folder's place");
  SettingsFile file = Open();
  file.AddValue(kKey, "Purge Age", "31");
  fs::remove(m_folder / "config/dayvane");
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
}

TEST_F(SettingsFileTest, CommentsAndEmptyLinesThatTheUserWroteSurviveASave) {
  const std::string above = "; mine\n\n# often\n\n";
  m_folder.Write("config/dayvane/dayvane.ini", above + kStored);
  SettingsFile file = Open();
  file.SetValue(kKey, "Purge Age", "31");
  file.SetValue(kKey, "Timer Interval", "60");
  EXPECT_EQ(ReadFile(m_path), above + "[Software\\Korvath\\Dayvane\\Options]\nPurge Age=31\nTimer Interval=60\n");
}

TEST_F(SettingsFileTest, ACommentWrittenWhileTheProgramRunsIsKept) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  SettingsFile file = Open();
  ASSERT_EQ(file.Value(kKey, "Purge Age"), "30");
  m_folder.Write("config/dayvane/dayvane.ini", std::string(kStored) + "# a month\n");
  file.SetValue(kKey, "Purge Age", "31");
  EXPECT_THAT(ReadFile(m_path), HasSubstr("Purge Age=31\n# a month\n"));
}

TEST_F(SettingsFileTest, ADamagedFileHoldsNothingAndIsReportedOnce) {
  m_folder.Write("config/dayvane/dayvane.ini", std::string(kStored) + "\xFFgarbage\nTimer Interval=60\n");
  SettingsFile file = Open();
  EXPECT_EQ(file.Value(kKey, "Purge Age"), std::nullopt);
  EXPECT_EQ(file.Value(kKey, "Timer Interval"), std::nullopt);
  EXPECT_THAT(m_events, ElementsAre(HasSubstr(m_path)));
}

TEST_F(SettingsFileTest, ADamagedFileIsKeptBeforeItIsReplaced) {
  const std::string garbage(
      "\x7F"
      "ELF\x00\x01\x02",
      7);
  m_folder.Write("config/dayvane/dayvane.ini", garbage);
  SettingsFile file = Open();
  file.SetValue(kKey, "Purge Age", "30");
  file.SetValue(kKey, "Timer Interval", "60");
  EXPECT_EQ(ReadFile(m_path + ".damaged"), garbage);
  EXPECT_FALSE(fs::exists(m_path + ".damaged-2"));
  EXPECT_EQ(Open().Value(kKey, "Purge Age"), "30");
}

TEST_F(SettingsFileTest, EveryDamagedFileIsKept) {
  for (const char* garbage : {"first garbage", "second garbage"}) {
    m_folder.Write("config/dayvane/dayvane.ini", garbage);
    Open().SetValue(kKey, "Purge Age", "30");
  }
  EXPECT_EQ(ReadFile(m_path + ".damaged"), "first garbage");
  EXPECT_EQ(ReadFile(m_path + ".damaged-2"), "second garbage");
}

TEST_F(SettingsFileTest, ADamagedFileThatCannotBeReplacedStays) {
  m_folder.Write("config/dayvane/dayvane.ini", "garbage");
  SettingsFile file = Open();
  {
    const FullDisk full;
    EXPECT_THROW(file.SetValue(kKey, "Purge Age", "30"), Error);
  }
  EXPECT_EQ(ReadFile(m_path), "garbage");
}

TEST_F(SettingsFileTest, AFolderInItsPlaceIsMovedAside) {
  m_folder.Write("config/dayvane/dayvane.ini/inside.txt", "mine");
  SettingsFile file = Open();
  EXPECT_FALSE(file.HasKey(kKey));
  file.SetValue(kKey, "Purge Age", "30");
  EXPECT_EQ(ReadFile(m_path + ".damaged/inside.txt"), "mine");
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
}

TEST_F(SettingsFileTest, APipeInItsPlaceDoesNotStopTheProgram) {
  fs::create_directories(m_folder / "config/dayvane");
  ASSERT_EQ(mkfifo(m_path.c_str(), 0600), 0);
  EXPECT_FALSE(Open().HasKey(kKey));
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("damaged")));
}

TEST_F(SettingsFileTest, AFileThatMayNotBeReadIsKept) {
  m_folder.Write("config/dayvane/dayvane.ini", kStored);
  fs::permissions(m_folder.Native(), fs::perms(0755));
  fs::permissions(m_folder / "config/dayvane", fs::perms(0777));
  fs::permissions(m_path, fs::perms::none);
  {
    const UnprivilegedUser nobody;
    SettingsFile file = Open();
    EXPECT_FALSE(file.HasKey(kKey));
    file.SetValue(kKey, "Timer Interval", "60");
  }
  fs::permissions(m_path + ".damaged", fs::perms::owner_read);
  EXPECT_EQ(ReadFile(m_path + ".damaged"), kStored);
}

TEST_F(SettingsFileTest, AFileTooLargeForSettingsIsNotReadAndKept) {
  m_folder.Write("config/dayvane/dayvane.ini", "");
  fs::resize_file(m_path, 1ULL << 40);
  SettingsFile file = Open();
  EXPECT_FALSE(file.HasKey(kKey));
  file.SetValue(kKey, "Purge Age", "30");
  EXPECT_EQ(fs::file_size(m_path + ".damaged"), 1ULL << 40);
}

TEST_F(SettingsFileTest, ALinkToTheFileIsWrittenThrough) {
  m_folder.Write("elsewhere/settings", kStored);
  fs::create_directories(m_folder / "config/dayvane");
  fs::create_symlink(m_folder / "elsewhere/settings", m_path);
  SettingsFile file = Open();
  EXPECT_EQ(file.Value(kKey, "Purge Age"), "30");
  file.SetValue(kKey, "Purge Age", "31");
  EXPECT_TRUE(fs::is_symlink(m_path));
  EXPECT_THAT(ReadFile(m_folder / "elsewhere/settings"), HasSubstr("Purge Age=31"));
}

}  // namespace
}  // namespace dayvane::registry
