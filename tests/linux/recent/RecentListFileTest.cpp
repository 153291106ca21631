// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "linux/recent/RecentListFile.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

constexpr const char* kList = "<xbel><bookmark href=\"file:///x\"/></xbel>";

TEST(RecentListFile, TheDesktopKeepsItInTheUsersDataFolder) {
  const char* variable = std::getenv("XDG_DATA_HOME");
  const std::string before = variable != nullptr ? variable : "";
  setenv("XDG_DATA_HOME", "/home/ana/data", 1);
  EXPECT_EQ(DefaultListPath(), "/home/ana/data/recently-used.xbel");
  variable != nullptr ? setenv("XDG_DATA_HOME", before.c_str(), 1) : unsetenv("XDG_DATA_HOME");
}

TEST(RecentListFile, AListIsReadOncePerVersion) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", kList));
  EXPECT_TRUE(file.IsDue());
  const ListReading reading = file.Read();
  EXPECT_EQ(reading.condition, ListCondition::Sound);
  EXPECT_EQ(reading.list.entries.size(), 1U);
  EXPECT_FALSE(file.IsDue());
}

TEST(RecentListFile, ANewVersionOfTheSameSizeIsDue) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", kList));
  file.Read();
  testing::SetWritten(folder / "list", "2026-11-20 10:00:00", 1);
  EXPECT_TRUE(file.IsDue());
  file.Read();
  testing::SetWritten(folder / "list", "2026-11-20 10:00:00", 2);
  EXPECT_TRUE(file.IsDue()) << "a nanosecond makes another version";
}

TEST(RecentListFile, AMissingListIsNotDueUntilItAppears) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder / "share/list");
  EXPECT_EQ(file.Read().condition, ListCondition::Missing);
  EXPECT_FALSE(file.IsDue());
  folder.Write("share/list", kList);
  EXPECT_TRUE(file.IsDue());
}

TEST(RecentListFile, AListThatDisappearsIsDueOnce) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", kList));
  file.Read();
  fs::remove(folder / "list");
  EXPECT_TRUE(file.IsDue());
  EXPECT_EQ(file.Read().condition, ListCondition::Missing);
  EXPECT_FALSE(file.IsDue());
}

TEST(RecentListFile, ADamagedListIsLookedAtOnceMore) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", "<xbel><bookmark href=\"file:///x\"/><book"));
  EXPECT_EQ(file.Read().condition, ListCondition::CutShort);
  EXPECT_TRUE(file.IsDue());
  EXPECT_EQ(file.Read().list.entries.size(), 1U);
  EXPECT_FALSE(file.IsDue());
}

TEST(RecentListFile, DamageWithinTheListIsNoCut) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", "<xbel><bookmark href=\"file:///x\"/><</xbel>\n"));
  EXPECT_EQ(file.Read().condition, ListCondition::Damaged);
}

TEST(RecentListFile, AListBeyondTheLimitIsNotRead) {
  const testing::TemporaryFolder folder;
  RecentListFile file(folder.Write("list", kList), 10);
  const ListReading reading = file.Read();
  EXPECT_EQ(reading.condition, ListCondition::TooLarge);
  EXPECT_TRUE(reading.list.entries.empty());
  EXPECT_FALSE(file.IsDue());
}

TEST(RecentListFile, AGigabyteOfNothingIsNotSwallowed) {
  const testing::TemporaryFolder folder;
  folder.Write("list", kList);
  fs::resize_file(folder / "list", 1ULL << 40U);
  EXPECT_EQ(RecentListFile(folder / "list").Read().condition, ListCondition::TooLarge);
}

TEST(RecentListFile, AFolderAPipeOrADeviceInItsPlaceCannotBeRead) {
  const testing::TemporaryFolder folder;
  fs::create_directory(folder / "folder");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/null", folder / "device");
  for (const char* name : {"folder", "pipe", "device"}) {
    RecentListFile file(folder / name);
    EXPECT_EQ(file.Read().condition, ListCondition::Unreadable) << name;
    EXPECT_FALSE(file.IsDue()) << name;
  }
}

TEST(RecentListFile, AListThatIsKeptElsewhereIsFollowedThere) {
  const testing::TemporaryFolder folder;
  fs::create_symlink(folder.Write("elsewhere", kList), folder / "list");
  EXPECT_EQ(RecentListFile(folder / "list").Read().condition, ListCondition::Sound);
}

TEST(RecentListFile, WithoutPermissionItIsTriedAgainEachTime) {
  const testing::TemporaryFolder folder;
  fs::permissions(folder.Native(), fs::perms::all);
  fs::permissions(folder.Write("list", kList), fs::perms::none);
  RecentListFile file(folder / "list");
  ListCondition condition = ListCondition::Sound;
  {
    const testing::UnprivilegedUser user;
    condition = file.Read().condition;
  }
  EXPECT_EQ(condition, ListCondition::Unreadable);
  EXPECT_TRUE(file.IsDue());
}

}  // namespace
}  // namespace dayvane::recent
