// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/support/System.h"
#include "tests/views/FavoritesFixture.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kRecord;
using testing::ReadFile;

class CFavoritesFileTest : public testing::FavoritesTest {};

TEST_F(CFavoritesFileTest, AMissingDataFileIsRebuiltFromTheRepositoryAndNotWrittenUntilSaved) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  EXPECT_FALSE(favorites.Read());
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_FALSE(fs::exists(DataFile()));
  favorites.Save();
  EXPECT_TRUE(fs::exists(DataFile()));
}

TEST_F(CFavoritesFileTest, SavingAnEmptyTableLeavesAnOldFileUntouched) {
  WriteData(kRecord);
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
}

TEST_F(CFavoritesFileTest, ATableThatIsReadAndSavedIsTheSameFile) {
  const std::string text = kRecord + "1,#1998-05-12#,\"\xC3\xA4\",\"b\",\"c\",\"\",,-5\r\n";
  WriteData(text);
  EXPECT_TRUE(favorites.Read());
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), text);
}

TEST_F(CFavoritesFileTest, ARecordSplitOverTwoLinesReadsTheSame) {
  std::string split = kRecord;
  split.replace(split.find(",\"a.odt\""), 1, "\r\n");
  WriteData(split);
  favorites.Read();
  ASSERT_EQ(favorites.Count(), 1);
  EXPECT_EQ(Text(0, favorites::kTargetFileName), "a.odt");
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(CFavoritesFileTest, AFileThatEndsInsideARecordIsReportedAndKeepsWhatWasRead) {
  WriteData(kRecord + "7,#1998-05-12#");
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 2);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "3");
  EXPECT_EQ(Text(1, favorites::kDaysAccessed), "7");
  ASSERT_EQ(desktop.LogLines("ErrorLog.txt").size(), 1U);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt")[0], ::testing::StartsWith("CFavorites.Read\t62\t"));
}

TEST_F(CFavoritesFileTest, ADamagedFileIsKeptBeforeASaveWritesOverIt) {
  const std::string damaged = kRecord + "7,#1998-05-12#";
  WriteData(damaged);
  favorites.Read();
  favorites.Save();
  EXPECT_EQ(ReadFile(Kept("2026-11-21 12.00.00")), damaged);
}

TEST_F(CFavoritesFileTest, AFileCutAtAnyByteIsReadUpToThereWithoutACrash) {
  const std::string whole = kRecord + kRecord;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    WriteData(whole.substr(0, length));
    favorites.Read();
    EXPECT_LE(favorites.Count(), 2) << length;
    EXPECT_GE(favorites.Count(), length >= kRecord.size() ? 1 : 0) << length;
  }
}

TEST_F(CFavoritesFileTest, ValuesOfTheWrongTypeAreTakenAsTheyStand) {
  WriteData("\"many\",7,8,9,10,#1998-05-12#,,\"x\"\r\n");
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), "\"many\",7,8,9,10,#1998-05-12#,,\"x\"\r\n");
}

TEST_F(CFavoritesFileTest, AMillionRecordsAreReadAndFound) {
  std::string text;
  for (int i = 0; i < 1'000'000; ++i)
    text += "1,#1998-05-12#,\"l\",\"" + std::to_string(i) + ".odt\",\"z:\\home\",\"\",\"\",0\r\n";
  WriteData(text);
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 1'000'000);
  Count(File("2026/May/05", "Z:\\home\\999999.odt", "2026-05-05 10:00:00"));
  EXPECT_EQ(favorites.Count(), 1'000'000);
  EXPECT_EQ(Text(999'999, favorites::kDaysAccessed), "2");
}

TEST_F(CFavoritesFileTest, ASecondDamageKeepsTheCopyOfTheFirst) {
  WriteData("1");
  favorites.Read();
  WriteData("2");
  favorites.Read();
  desktop.clock.Set(2027, 1, 2, 3, 4, 5);
  WriteData("3");
  favorites.Read();
  EXPECT_EQ(ReadFile(Kept("2026-11-21 12.00.00")), "1");
  EXPECT_EQ(ReadFile(Kept("2026-11-21 12.00.00 2")), "2");
  EXPECT_EQ(ReadFile(Kept("2027-01-02 03.04.05")), "3");
}

TEST_F(CFavoritesFileTest, AFileLargerThanCanBeReadIsMovedAside) {
  WriteData(kRecord);
  fs::resize_file(DataFile(), (std::uintmax_t{512} << 20) + 1);
  favorites.Read();
  EXPECT_FALSE(favorites.IsWhole());
  File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00");
  favorites.RebuildFavorites();
  favorites.Save();
  EXPECT_EQ(fs::file_size(Kept("2026-11-21 12.00.00")), (std::uintmax_t{512} << 20) + 1);
  EXPECT_THAT(ReadFile(DataFile()), ::testing::HasSubstr("b.odt"));
}

TEST_F(CFavoritesFileTest, AFileThatTheUserKeepsElsewhereIsReadAndWrittenThroughItsLink) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const std::string elsewhere = desktop.folder.Write("elsewhere/counts.dat", kRecord);
  testing::MakeFileLink(elsewhere, DataFile());
  EXPECT_TRUE(favorites.Read());
  EXPECT_EQ(favorites.Count(), 1);
  Count(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00"));
  favorites.Save();
  EXPECT_TRUE(fs::is_symlink(DataFile()));
  EXPECT_THAT(ReadFile(elsewhere), ::testing::StartsWith("4,#2026-05-05 10:00:00#"));
}

TEST_F(CFavoritesFileTest, ALinkToAFileThatIsNotThereYetIsRebuiltAndWrittenThrough) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  fs::create_directory(desktop.folder / "elsewhere");
  testing::MakeFileLink(desktop.folder / "elsewhere/counts.dat", DataFile());
  File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00");
  EXPECT_FALSE(favorites.Read());
  favorites.Save();
  EXPECT_TRUE(fs::is_regular_file(desktop.folder / "elsewhere/counts.dat"));
  EXPECT_TRUE(fs::is_symlink(DataFile()));
}

TEST_F(CFavoritesFileTest, ATableThatWasNeverLoadedIsNotSavedOverTheFile) {
  WriteData(kRecord);
  Count(File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00"));
  favorites.Save();
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
  EXPECT_THAT(desktop.LogLines("EventLog.txt"),
              ElementsAre("3\tFavorites.dat stays as it is: the favorites were not loaded"));
}

TEST_F(CFavoritesFileTest, WhatWasRebuiltBeforeTheFileWasLoadedIsNotSavedOverIt) {
  WriteData(kRecord);
  File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00");
  favorites.RebuildFavorites();
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
}

TEST_F(CFavoritesFileTest, WhatWasFiledAndNotCountedWhenASessionWasCutOffIsCountedOnce) {
  WriteData(kRecord);
  favorites.Read();
  const std::string filed = File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00");
  favorites.WillCount(filed);
  favorites.WillCount(filed + ".never-filed.lnk");
  for (int start = 0; start < 2; ++start) {
    CFavorites next(application);
    next.AppPath = desktop.Folder();
    next.CountWhatWasCutOff();
    EXPECT_EQ(next.Count(), 0) << "the table itself is loaded later";
    EXPECT_THAT(ReadFile(DataFile()), ::testing::StartsWith("4,#2026-05-05 10:00:00#")) << start;
    next.Read();
    EXPECT_EQ(next.Count(), 1);
    EXPECT_EQ(favorites::NumberOf(next.GetFavorites()[0][favorites::kDaysAccessed]), 4);
    EXPECT_FALSE(fs::exists(desktop.NativeFolder() + "/Favorites.pending"));
  }
}

TEST_F(CFavoritesFileTest, OneRecordWhoseCountIsNoNumberKeepsNoOtherFromBeingCounted) {
  WriteData("\"many\",#1998-05-12#,\"l\",\"a.odt\",\"z:\\home\",\"\",\"\",0\r\n");
  favorites.WillCount(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00"));
  favorites.WillCount(File("2026/May/05", "Z:\\home\\b.odt", "2026-05-05 10:00:00"));
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 2);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "many");
  EXPECT_EQ(Text(1, favorites::kDaysAccessed), "1");
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre(::testing::HasSubstr("Could not be counted: ")));
}

}  // namespace
}  // namespace dayvane
