// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/linux/disk/FullDisk.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/views/FavoritesFixture.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::kRecord;
using testing::ReadFile;
using ::testing::StartsWith;

class FavoritesDiskTest : public testing::FavoritesTest {};

TEST_F(FavoritesDiskTest, ADiskThatFillsKeepsTheOldFileAndIsReported) {
  WriteData(kRecord);
  favorites.Read();
  Count(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00"));
  {
    const testing::FullDisk full;
    favorites.Save();
  }
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred saving the current settings."));
}

TEST_F(FavoritesDiskTest, ADamagedFileOfWhichNoCopyCanBeWrittenIsMovedAsideWhenTheTableIsSaved) {
  const std::string damaged = kRecord + "7,#1998-05-12#";
  WriteData(damaged);
  {
    const testing::FullDisk full;
    favorites.Read();
  }
  EXPECT_EQ(favorites.Count(), 2) << "what was read is there all the same";
  favorites.Save();
  EXPECT_EQ(ReadFile(Kept("2026-11-21 12.00.00")), damaged);
  EXPECT_NE(ReadFile(DataFile()), damaged);
}

TEST_F(FavoritesDiskTest, AFileThatMayNotBeReadIsReportedAndMovedAsideBeforeAnythingIsSaved) {
  WriteData(kRecord);
  fs::permissions(DataFile(), fs::perms::none);
  fs::permissions(desktop.NativeFolder(), fs::perms::all);
  fs::permissions(desktop.folder.Native(), fs::perms::all);
  const std::string filed = File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00");
  {
    const testing::UnprivilegedUser user;
    EXPECT_TRUE(favorites.Read());
    EXPECT_EQ(favorites.Count(), 0);
    favorites.RebuildFavorites();
    favorites.Save();
  }
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred starting the program."));
  EXPECT_EQ(ReadFile(Kept("2026-11-21 12.00.00")), kRecord);
  EXPECT_THAT(ReadFile(DataFile()), HasSubstr("b.odt"));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"),
              ElementsAre(HasSubstr("Favorites.dat could not be read; it is kept as ")));
}

TEST_F(FavoritesDiskTest, ARebuildThatWasCutShortIsNotSavedOverTheFile) {
  WriteData(kRecord);
  favorites.Read();
  fs::permissions(desktop.folder.Native(), fs::perms::all);
  File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00");
  File("2026/May/06", "Z:\\home\\b.odt", "2026-05-06 10:00:00");
  fs::permissions(desktop.NativeFolder() + "/Daily/2026/May/06", fs::perms::none);
  {
    const testing::UnprivilegedUser user;
    favorites.RebuildFavorites();
  }
  EXPECT_EQ(favorites.Count(), 1) << "what was built so far stays";
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
  fs::permissions(desktop.NativeFolder() + "/Daily/2026/May/06", fs::perms::owner_all);
  favorites.RebuildFavorites();
  favorites.Save();
  EXPECT_THAT(ReadFile(DataFile()), StartsWith("2,")) << "a whole rebuild is";
}

TEST_F(FavoritesDiskTest, WhatCannotBeSettledAtOnceIsCountedWhenTheTableIsLoaded) {
  WriteData(kRecord);
  favorites.Read();
  favorites.WillCount(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00"));
  CFavorites next(application);
  next.AppPath = desktop.Folder();
  {
    const testing::FullDisk full;
    next.CountWhatWasCutOff();
  }
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
  next.WillCount(File("2026/May/06", "Z:\\home\\a.odt", "2026-05-06 10:00:00"));
  next.Read();
  next.Save();
  EXPECT_THAT(ReadFile(DataFile()), StartsWith("5,#2026-05-06 10:00:00#"));
}

}  // namespace
}  // namespace dayvane
