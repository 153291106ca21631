// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/System.h"
#include "tests/views/FavoritesFixture.h"

namespace dayvane {
namespace {

using favorites::Record;
using ::testing::ElementsAre;
using testing::kRecord;
using testing::ReadFile;

using CFavoritesTest = testing::FavoritesTest;

TEST_F(CFavoritesTest, ANewDocumentStartsWithOneDayAndItsShortcutsProperties) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text", "writer,2");
  const std::string path = File("2026/May/05", "Z:\\home\\Ana\\a.odt", "2026-05-05 10:00:00");
  Count(path);
  ASSERT_EQ(favorites.Count(), 1);
  const Record expected{std::int64_t{1},
                        Date::Of(2026, 5, 5, 10),
                        path,
                        std::string("a.odt"),
                        std::string("z:\\home\\ana"),
                        std::string("OpenDocument Text"),
                        std::string("writer"),
                        std::int64_t{2}};
  EXPECT_EQ(favorites.GetFavorites()[0], expected);
}

TEST_F(CFavoritesTest, TargetsThatDifferOnlyInLetterCaseAreOneDocument) {
  Count(File("2026/May/05", "Z:\\home\\ana\\Über.odt", "2026-05-05 10:00:00"));
  Count(File("2026/May/06", "Z:\\HOME\\Ana\\über.ODT", "2026-05-06 10:00:00"));
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "2");
}

TEST_F(CFavoritesTest, AnOlderFilingCountsButKeepsTheLaterDate) {
  Count(File("2026/May/06", "Z:\\a.odt", "2026-05-06 10:00:00"));
  Count(File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00"));
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "2");
  EXPECT_EQ(Text(0, favorites::kLastAccessed), "#2026-05-06 10:00:00#");
}

TEST_F(CFavoritesTest, AShortcutWhoseWorkingFolderIsNotItsTargetsAddsARecordEachTime) {
  for (const char* day : {"05", "06"})
    Count(File(std::string("2026/May/") + day, "Z:\\home\\a.odt", "2026-05-05 10:00:00", "Z:\\elsewhere"));
  EXPECT_EQ(favorites.Count(), 2);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "1");
  EXPECT_EQ(Text(1, favorites::kDaysAccessed), "1");
}

TEST_F(CFavoritesTest, OfTwoRecordsForOneDocumentTheFirstIsCounted) {
  WriteData(kRecord + kRecord);
  favorites.Read();
  Count(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00"));
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "4");
  EXPECT_EQ(Text(1, favorites::kDaysAccessed), "3");
}

TEST_F(CFavoritesTest, ACountThatIsNoNumberCannotBeCountedUp) {
  WriteData("\"many\",#1998-05-12#,\"l\",\"a.odt\",\"z:\\home\",\"\",\"\",0\r\n");
  favorites.Read();
  EXPECT_ANY_THROW(Count(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00")));
}

TEST_F(CFavoritesTest, WhatWouldBreakTheDataFileNeverReachesIt) {
  desktop.registry.AddClass(".ODT", "\"New\", and old", "wri\"ter,2");
  Count(File("2026/May/05", "Z:\\home\\a, b.odt", "2026-05-05 10:00:00"));
  EXPECT_EQ(Text(0, favorites::kType), "'New'; and old");
  EXPECT_EQ(Text(0, favorites::kIconFile), "wri'ter");
  EXPECT_EQ(Text(0, favorites::kTargetFileName), "a, b.odt") << "a name is the document's identity";
}

TEST_F(CFavoritesTest, ADocumentFiledOnThreeDaysIsRebuiltAsOneRecordOfThree) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  File("2026/May/07", "Z:\\a.odt", "2026-05-07 10:00:00");
  File("2026/June/01", "Z:\\a.odt", "2026-05-06 10:00:00");
  favorites.RebuildFavorites();
  ASSERT_EQ(favorites.Count(), 1);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "3");
  EXPECT_EQ(Text(0, favorites::kLastAccessed), "#2026-05-07 10:00:00#");
}

TEST_F(CFavoritesTest, ARebuildForgetsTheTableBeforeIt) {
  WriteData(kRecord);
  favorites.Read();
  favorites.RebuildFavorites();
  EXPECT_EQ(favorites.Count(), 0);
}

TEST_F(CFavoritesTest, ARebuildOfAnEmptyRepositoryIsEmptyAndASaveKeepsTheOldFile) {
  WriteData(kRecord);
  favorites.RebuildFavorites();
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
}

TEST_F(CFavoritesTest, FilesThatAreNoShortcutsAreIgnoredByARebuild) {
  desktop.folder.Write("program/Daily/2026/May/05/notes.txt", "x");
  desktop.folder.Write("program/Daily/2026/May/05/a.lnk.bak", "x");
  favorites.RebuildFavorites();
  EXPECT_EQ(favorites.Count(), 0);
}

TEST_F(CFavoritesTest, ARebuildNeverLeavesTheRepositoryByALink) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const testing::TemporaryFolder outside;
  platform::ShellLink link;
  link.target = "Z:\\secret.odt";
  testing::WriteShortcut(outside / "secret.odt.lnk", link, "2026-05-05 10:00:00");
  testing::MakeFolderLink(outside.Native(), desktop.NativeFolder() + "/Daily/2026");
  favorites.RebuildFavorites();
  EXPECT_EQ(favorites.Count(), 0);
}

TEST_F(CFavoritesTest, RemovingADocumentTakesItFromTheListAlone) {
  WriteData(kRecord);
  favorites.Read();
  list.Add("KZ:\\d\\a.lnk", "a.odt", 1);
  EXPECT_TRUE(favorites.RemoveDocument("KZ:\\d\\a.lnk"));
  EXPECT_EQ(list.Count(), 0U);
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
}

TEST_F(CFavoritesTest, RemovingADocumentThatIsNotListedGivesFalse) {
  EXPECT_FALSE(favorites.RemoveDocument("Knone"));
}

TEST_F(CFavoritesTest, MissingThingsAreLoggedByTheirProcedure) {
  favorites.AppPath = " ";
  favorites.DailyFolder = "";
  favorites.SetListControls(nullptr, nullptr);
  favorites.Save();
  favorites.RebuildFavorites();
  favorites.RemoveDocument("");
  EXPECT_ANY_THROW(favorites.ProcessShortcut(nullptr));
  EXPECT_THAT(
      desktop.LogLines("EventLog.txt"),
      ElementsAre("2\tCFavorites.Save: App path is missing", "2\tCFavorites.RebuildFavorites: App path is missing",
                  "2\tCFavorites.RebuildFavorites: Daily folder is missing",
                  "2\tCFavorites.RemoveDocument: Key is missing", "2\tCFavorites.RemoveDocument: ListView is Nothing",
                  "2\tCFavorites.ProcessShortcut: Shortcut is Nothing"));
}

TEST_F(CFavoritesTest, AMissingAppPathIsLoggedByRead) {
  favorites.AppPath = "";
  favorites.Read();
  EXPECT_EQ(desktop.LogLines("EventLog.txt").at(0), "2\tCFavorites.Read: App path is missing");
}

TEST_F(CFavoritesTest, WindowsArePaintedWhileTheFavoritesAreRebuilt) {
  int paints = 0;
  desktop.windowing.pending = [&] { ++paints; };
  File("2026/May/05", "Z:\\home\\ana\\a.odt", "2026-05-05 10:00:00");
  File("2026/May/06", "Z:\\home\\ana\\a.odt", "2026-05-06 10:00:00");
  favorites.RebuildFavorites();
  EXPECT_EQ(paints, 2);
}

}  // namespace
}  // namespace dayvane
