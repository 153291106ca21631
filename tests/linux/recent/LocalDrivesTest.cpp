// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/LocalDrives.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::Optional;
using testing::TemporaryFolder;

/// The whole machine is one local drive, but for another one that is mounted there.
LocalDrives Drives(const std::string& folder, const std::string& type) {
  return LocalDrives({{"/", "ext4"}, {folder, type}});
}

TEST(LocalDrives, AFileIsMissingWhereItsFolderIsThere) {
  const TemporaryFolder home;
  home.Write("there.txt", "");
  const LocalDrives drives = Drives("/mnt/server", "nfs");
  EXPECT_THAT(drives.MissingPlace(home / "gone.txt"), Optional(fs::canonical(home.Native()).string() + "/gone.txt"));
  EXPECT_EQ(drives.MissingPlace(home / "there.txt"), std::nullopt);
  EXPECT_EQ(drives.MissingPlace(home / "no/folder/gone.txt"), std::nullopt);
  EXPECT_EQ(drives.MissingPlace(home / "there.txt/gone.txt"), std::nullopt);
  EXPECT_THAT(drives.MissingPlace("/dayvane is not there.txt"), Optional<std::string>("/dayvane is not there.txt"));
}

TEST(LocalDrives, NothingIsMissingOnADriveThatIsNotLocal) {
  const TemporaryFolder home;
  fs::create_directory(home / "server");
  for (const char* type : {"nfs4", "cifs", "smb3", "fuse.sshfs", "fuse.portal", "autofs", "9p", "davfs"})
    EXPECT_EQ(Drives(home / "server", type).MissingPlace(home / "server/gone.txt"), std::nullopt) << type;
  for (const char* type : {"ext4", "btrfs", "vfat", "fuseblk", "tmpfs", "overlay"})
    EXPECT_NE(Drives(home / "server", type).MissingPlace(home / "server/gone.txt"), std::nullopt) << type;
  EXPECT_NE(Drives(home / "server", "nfs").MissingPlace(home / "server2.txt"), std::nullopt);
}

TEST(LocalDrives, ALinkToADriveThatIsNotLocalIsNotFollowed) {
  const TemporaryFolder home;
  fs::create_directory(home / "server");
  fs::create_directory(home / "here");
  testing::MakeFolderLink("here/../server", home / "papers");
  testing::MakeFolderLink(home / "here", home / "local");
  testing::MakeFolderLink("round", home / "round");
  const LocalDrives drives = Drives(fs::canonical(home.Native()).string() + "/server", "nfs");
  EXPECT_EQ(drives.MissingPlace(home / "papers/gone.txt"), std::nullopt);
  EXPECT_NE(drives.MissingPlace(home / "local/gone.txt"), std::nullopt);
  EXPECT_EQ(drives.MissingPlace(home / "round/gone.txt"), std::nullopt);
}

TEST(LocalDrives, OfTwoDrivesOnOneFolderTheLaterCounts) {
  const TemporaryFolder home;
  EXPECT_EQ(LocalDrives({{"/", "ext4"}, {home.Native(), "ext4"}, {home.Native(), "nfs"}}).MissingPlace(home / "x"),
            std::nullopt);
  EXPECT_NE(LocalDrives({{"/", "ext4"}, {home.Native(), "autofs"}, {home.Native(), "ext4"}}).MissingPlace(home / "x"),
            std::nullopt);
}

TEST(LocalDrives, WithoutAMountTableNothingIsKnownToBeLocal) {
  const TemporaryFolder home;
  EXPECT_EQ(LocalDrives({}).MissingPlace(home / "gone.txt"), std::nullopt);
}

TEST(LocalDrives, WhatIsMountedUnderAPlaceMeanwhileIsNotTouched) {
  const TemporaryFolder home;
  EXPECT_TRUE(Drives("/mnt/server", "nfs").IsMissing(home / "gone.txt"));
  EXPECT_FALSE(Drives(home.Native(), "nfs").IsMissing(home / "gone.txt"));
}

}  // namespace
}  // namespace dayvane::recent
