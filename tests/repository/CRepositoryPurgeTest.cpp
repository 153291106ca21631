// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "repository/CRepository.h"
#include "tests/support/System.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using platform::MessageAnswer;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class CRepositoryPurgeTest : public ::testing::Test {
 protected:
  CRepositoryPurgeTest() { desktop.clock.Set(1998, 6, 10, 14, 30); }

  void File(const std::string& day, const std::string& name = "a.odt.lnk") const {
    desktop.folder.Write("program/Daily/" + day + "/" + name, "x");
  }
  void MakeFolder(const std::string& folder) const { fs::create_directories(Native(folder)); }
  bool Exists(const std::string& path) const { return fs::exists(Native(path)); }
  std::string Native(const std::string& path) const { return desktop.NativeFolder() + "/Daily/" + path; }
  std::string Path(const std::string& path) const { return repository.DailyPath() + "\\" + path; }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
};

TEST_F(CRepositoryPurgeTest, ADayGoesWhenItLiesMoreThanThePurgeAgeBack) {
  for (const char* day : {"1997/December/31", "1998/May/10", "1998/May/11", "1998/June/10"}) File(day);
  EXPECT_TRUE(repository.PurgeOldShortcuts(30));
  EXPECT_FALSE(Exists("1997/December/31"));
  EXPECT_FALSE(Exists("1998/May/10"));
  EXPECT_TRUE(Exists("1998/May/11"));
  EXPECT_TRUE(Exists("1998/June/10"));
}

TEST_F(CRepositoryPurgeTest, WithAnAgeOfOneDayYesterdayStays) {
  File("1998/June/08");
  File("1998/June/09");
  EXPECT_TRUE(repository.PurgeOldShortcuts(1));
  EXPECT_FALSE(Exists("1998/June/08"));
  EXPECT_TRUE(Exists("1998/June/09"));
}

TEST_F(CRepositoryPurgeTest, TheLimitIsTheSameAtMidnight) {
  desktop.clock.Set(1998, 6, 10, 0);
  File("1998/June/08");
  File("1998/June/09");
  EXPECT_TRUE(repository.PurgeOldShortcuts(1));
  EXPECT_FALSE(Exists("1998/June/08"));
  EXPECT_TRUE(Exists("1998/June/09"));
}

TEST_F(CRepositoryPurgeTest, TheQuestionNamesThePurgeDateAndTellsThatDocumentsStay) {
  File("1998/May/01");
  repository.PurgeOldShortcuts(30);
  ASSERT_THAT(desktop.windowing.messages, SizeIs(1));
  const platform::Message& question = desktop.windowing.messages[0];
  EXPECT_EQ(question.text,
            "There are shortcuts to programs and documents\r\n"
            "that you accessed prior to 5/10/1998.\r\n"
            "\r\n"
            "Do you want to remove these shortcuts from Dayvane?\r\n"
            "(The programs and documents will NOT be deleted.)");
  EXPECT_EQ(question.title, "Dayvane");
  EXPECT_EQ(question.buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(question.icon, platform::MessageIcon::Information);
}

TEST_F(CRepositoryPurgeTest, OneQuestionIsForAllOldDays) {
  for (const char* day : {"1996/May/01", "1997/May/01", "1998/April/30", "1998/May/01"}) File(day);
  EXPECT_TRUE(repository.PurgeOldShortcuts(30));
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
  for (const char* day : {"1996/May/01", "1997/May/01", "1998/April/30", "1998/May/01"}) EXPECT_FALSE(Exists(day));
}

TEST_F(CRepositoryPurgeTest, NoKeepsEveryDay) {
  File("1997/May/01");
  File("1998/May/01");
  desktop.windowing.answer = MessageAnswer::No;
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
  EXPECT_TRUE(Exists("1997/May/01/a.odt.lnk"));
  EXPECT_TRUE(Exists("1998/May/01/a.odt.lnk"));
}

TEST_F(CRepositoryPurgeTest, AfterNoNothingMoreIsLookedAt) {
  File("1997/May/01/no month/99");
  desktop.windowing.answer = MessageAnswer::No;
  EXPECT_NO_THROW(repository.PurgeOldShortcuts(30));
}

TEST_F(CRepositoryPurgeTest, AfterNoTheQuestionIsNotAskedAgainUntilTheNextStart) {
  File("1998/May/01");
  desktop.windowing.answer = MessageAnswer::No;
  repository.PurgeOldShortcuts(30);
  repository.PurgeOldShortcuts(30);
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
  CRepository(application).PurgeOldShortcuts(30);
  EXPECT_THAT(desktop.windowing.messages, SizeIs(2));
}

TEST_F(CRepositoryPurgeTest, AfterYesALaterRunPurgesWithoutAsking) {
  File("1998/May/01");
  repository.PurgeOldShortcuts(30);
  File("1998/May/02");
  EXPECT_TRUE(repository.PurgeOldShortcuts(30));
  EXPECT_THAT(desktop.windowing.messages, SizeIs(1));
  EXPECT_FALSE(Exists("1998/May/02"));
}

TEST_F(CRepositoryPurgeTest, WithoutOldDaysNothingIsAsked) {
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
  File("1998/June/01");
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(CRepositoryPurgeTest, ARunThatPurgesNothingGivesFalseAfterOneThatDid) {
  File("1998/May/01");
  EXPECT_TRUE(repository.PurgeOldShortcuts(30));
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
}

TEST_F(CRepositoryPurgeTest, FoldersThatAreNoDaysAreLeft) {
  for (const char* folder : {"1997/May/1", "1997/May/notes", "1997/May/001"}) File(folder);
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(CRepositoryPurgeTest, FoldersThatAreNoDatesArePassedOverAndOldDaysBehindThemAskedAbout) {
  for (const char* folder : {"1997/February/31", "1997/Mai/01", "1997/May/07", "1997/12/05", "Photos/1997/01"})
    File(folder);
  EXPECT_TRUE(repository.PurgeOldShortcuts(30));
  EXPECT_FALSE(Exists("1997/May/07"));
  EXPECT_FALSE(Exists("1997/12/05")) << "a month may be a number";
  for (const char* folder : {"1997/February/31", "1997/Mai/01", "Photos/1997/01"})
    EXPECT_TRUE(Exists(std::string(folder) + "/a.odt.lnk")) << folder;
}

TEST_F(CRepositoryPurgeTest, WhatIsPassedOverIsLoggedOnceARun) {
  for (const char* folder : {"1997/February/31", "1997/Mai/01", "1997/Mai/02"}) File(folder);
  File("1997/Other", "letter.odt");
  repository.PurgeOldShortcuts(30);
  repository.PurgeEmptyFolders();
  repository.PurgeOldShortcuts(30);
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre(::testing::HasSubstr("passed over")));
}

TEST_F(CRepositoryPurgeTest, APurgeNeverFollowsALinkOutOfTheRepository) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const testing::TemporaryFolder outside;
  const std::string document = outside.Write("May/01/letter.odt", "x");
  testing::MakeFolderLink(outside.Native(), Native("1997"));
  EXPECT_FALSE(repository.PurgeOldShortcuts(30));
  EXPECT_TRUE(fs::exists(document));
}

TEST_F(CRepositoryPurgeTest, AMissingPurgeDateIsLogged) {
  repository.ConfirmPurge();
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tCRepository.ConfirmPurge: Purge date is missing"));
}

TEST_F(CRepositoryPurgeTest, APurgeAgeThatReachesBackToNoDateIsLoggedForEachFolder) {
  desktop.clock.Set(1998, 6, 10, 0);
  const auto today = Date::Of(1998, 6, 10).SecondsSinceDayZero() / 86400;
  File("1998/June/01");
  repository.PurgeOldShortcuts(static_cast<int>(today) - 1);
  const auto lines = desktop.LogLines("EventLog.txt");
  EXPECT_THAT(lines, SizeIs(3));
  EXPECT_THAT(lines, Each("2\tCRepository.m_oPurgeWalker_ItemFound: Purge date is missing"));
}

TEST_F(CRepositoryPurgeTest, PurgingADayDeletesItsFilesAndTheFolder) {
  for (const char* name : {"a.odt.lnk", "Writer.lnk", "notes.txt", "noextension"}) File("1998/June/09", name);
  File("1998/June/10");
  repository.PurgeDay(Path("1998\\June\\09"));
  EXPECT_FALSE(Exists("1998/June/09"));
  EXPECT_TRUE(Exists("1998/June/10/a.odt.lnk"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(CRepositoryPurgeTest, PurgingADayDeletesALinkButNotWhatItPointsAt) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const std::string document = desktop.folder.Write("letter.odt", "x");
  MakeFolder("1998/June/09");
  testing::MakeFileLink(document, Native("1998/June/09/letter.odt"));
  repository.PurgeDay(Path("1998\\June\\09"));
  EXPECT_FALSE(Exists("1998/June/09"));
  EXPECT_TRUE(fs::exists(document));
}

TEST_F(CRepositoryPurgeTest, AFolderInADayIsLeftAndIsAnErrorForTheCaller) {
  File("1998/June/09/mine", "letter.odt");
  EXPECT_THROW(repository.PurgeDay(Path("1998\\June\\09")), Error);
  EXPECT_TRUE(Exists("1998/June/09/mine/letter.odt"));
}

TEST_F(CRepositoryPurgeTest, AMissingFolderToPurgeIsLogged) {
  EXPECT_ANY_THROW(repository.PurgeDay("  "));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tCRepository.PurgeDay: Folder is missing"));
}

TEST_F(CRepositoryPurgeTest, AnEmptyDayTakesItsEmptyMonthAndYearAlong) {
  MakeFolder("1997/May/01");
  EXPECT_TRUE(repository.PurgeEmptyFolders());
  EXPECT_FALSE(Exists("1997"));
  EXPECT_TRUE(Exists(""));
}

TEST_F(CRepositoryPurgeTest, AnEmptyMonthGoesWhileItsYearHasAnother) {
  MakeFolder("1998/May");
  File("1998/June/09");
  EXPECT_TRUE(repository.PurgeEmptyFolders());
  EXPECT_FALSE(Exists("1998/May"));
  EXPECT_TRUE(Exists("1998/June/09/a.odt.lnk"));
}

TEST_F(CRepositoryPurgeTest, AnEmptyYearGoes) {
  MakeFolder("1997");
  EXPECT_TRUE(repository.PurgeEmptyFolders());
  EXPECT_FALSE(Exists("1997"));
}

TEST_F(CRepositoryPurgeTest, DaysWithShortcutsStayWhateverTheCaseOfTheExtension) {
  File("1998/June/09", "a.LNK");
  File("1998/June/10", "b.lnk");
  EXPECT_FALSE(repository.PurgeEmptyFolders());
  EXPECT_TRUE(Exists("1998/June/09"));
  EXPECT_TRUE(Exists("1998/June/10"));
}

TEST_F(CRepositoryPurgeTest, FoldersThatAreNoDaysMonthsOrYearsAreNotSwept) {
  File("1998/June/09");
  MakeFolder("1998/June/7");
  MakeFolder("19980");
  repository.PurgeEmptyFolders();
  EXPECT_TRUE(Exists("1998/June/7"));
  EXPECT_TRUE(Exists("19980"));
}

TEST_F(CRepositoryPurgeTest, ADayThatHoldsOnlySomethingElseCannotBeSwept) {
  File("1998/June/09", "letter.odt");
  EXPECT_THROW(repository.PurgeEmptyFolders(), Error);
  EXPECT_TRUE(Exists("1998/June/09/letter.odt"));
}

TEST_F(CRepositoryPurgeTest, FoldersOfTheUsersOwnStayAndKeepNoEmptyDaysFromBeingSwept) {
  for (const char* folder : {"1996/Photos", "1996/12/Photos", "1998/June/09/mine", "Photos", "Photos/12/01"})
    File(folder, "letter.odt");
  File("1998/June/09");
  MakeFolder("1997/May/01");
  EXPECT_TRUE(repository.PurgeEmptyFolders());
  EXPECT_FALSE(Exists("1997"));
  for (const char* folder : {"1996/Photos", "1996/12/Photos", "1998/June/09/mine", "Photos", "Photos/12/01"})
    EXPECT_TRUE(Exists(std::string(folder) + "/letter.odt")) << folder;
}

TEST_F(CRepositoryPurgeTest, AFileInTheRootKeepsNothingFromBeingSwept) {
  desktop.folder.Write("program/Daily/readme.lnk", "");
  MakeFolder("1997/May/01");
  EXPECT_TRUE(repository.PurgeEmptyFolders());
  EXPECT_FALSE(Exists("1997"));
}

TEST_F(CRepositoryPurgeTest, AnEmptyRepositoryHasNothingToSweep) {
  EXPECT_FALSE(repository.PurgeEmptyFolders());
  EXPECT_TRUE(Exists(""));
}

TEST_F(CRepositoryPurgeTest, WindowsArePaintedWhileManyDaysArePurged) {
  for (const char* day : {"01", "02", "03"}) MakeFolder(std::string("1997/May/") + day);
  int paints = 0;
  desktop.windowing.pending = [&] { ++paints; };
  repository.PurgeOldShortcuts(30);
  EXPECT_EQ(paints, 3);
}

}  // namespace
}  // namespace dayvane
