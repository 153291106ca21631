// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/recent/KdeActivities.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/linux/recent/ActivityDatabase.h"
#include "tests/support/Random.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {

/// For the messages of failed tests.
static void PrintTo(const Opening& opening, std::ostream* stream) {
  *stream << opening.program << " opened " << opening.path << " at " << opening.moment / kNanosecondsPerSecond;
}

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::int64_t kNine = 1795251600;  // 2026-11-21 09:00 UTC
constexpr std::int64_t kOneHour = 3600;
constexpr std::int64_t kOneDay = 24 * kOneHour;

auto Opened(const std::string& path, std::int64_t seconds) {
  return ::testing::AllOf(Field(&Opening::path, path), Field(&Opening::moment, seconds * kNanosecondsPerSecond));
}

/// A user's KDE session, and the program reading along.
class KdeActivitiesTest : public ::testing::Test {
 protected:
  /// What a reading brings; the memory is kept for the next.
  std::vector<Opening> News() {
    auto reading = m_source.Read(m_memory);
    m_memory = reading.memory;
    return reading.openings;
  }

  std::string Complaint() {
    try {
      m_source.Read(m_memory);
    } catch (const Error& error) {
      return error.Description();
    }
    return "";
  }

  testing::TemporaryFolder m_folder;
  const std::string m_path = m_folder / "kactivitymanagerd/resources/database";
  testing::ActivityDatabase m_kde{m_path};
  KdeActivities m_source{m_path};
  std::string m_memory;
};

TEST_F(KdeActivitiesTest, ADocumentThatOkularOpenedIsFound) {
  m_kde.Add("okular", "/home/ana/Report.pdf", kNine);
  m_kde.SetType("/home/ana/Report.pdf", "application/pdf");
  const auto news = News();
  ASSERT_THAT(news, ElementsAre(Opened("/home/ana/Report.pdf", kNine)));
  EXPECT_EQ(news[0].program, "okular");
  EXPECT_EQ(news[0].mimeType, "application/pdf");
}

TEST_F(KdeActivitiesTest, RowsInTheLogOfARunningDaemonAreReadToo) {
  News();
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  ASSERT_GT(fs::file_size(m_path + "-wal"), 0U);
  EXPECT_TRUE(m_source.IsDue());
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine)));
}

TEST_F(KdeActivitiesTest, ADatabaseWhoseDaemonHasEndedIsReadToo) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Close();
  ASSERT_FALSE(fs::exists(m_path + "-wal"));
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine)));
  EXPECT_FALSE(m_source.IsDue()) << "reading makes no news";
}

TEST_F(KdeActivitiesTest, WithoutANewRowNothingIsDue) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  EXPECT_TRUE(m_source.IsDue());
  News();
  EXPECT_FALSE(m_source.IsDue());
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(KdeActivitiesTest, TheFirstReadingTellsOfEachDocumentsLatestOpeningAlone) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine - 5 * kOneDay, kNine - 5 * kOneDay + 60);
  m_kde.Add("kate", "/home/ana/b.txt", kNine - 3 * kOneDay, kNine - 3 * kOneDay + 60);
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine), Opened("/home/ana/b.txt", kNine - 3 * kOneDay)));
}

TEST_F(KdeActivitiesTest, ALaterReadingTellsOfEveryOpeningSince) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine - 9 * kOneDay, kNine - 9 * kOneDay);
  News();
  m_kde.Add("kate", "/home/ana/a.txt", kNine - 2 * kOneDay, kNine - 2 * kOneDay + 60);
  m_kde.Add("kate", "/home/ana/a.txt", kNine - kOneDay, kNine - kOneDay + 60);
  EXPECT_THAT(News(),
              ElementsAre(Opened("/home/ana/a.txt", kNine - 2 * kOneDay), Opened("/home/ana/a.txt", kNine - kOneDay)));
}

TEST_F(KdeActivitiesTest, WhatWasOpenedWhileTheProgramWasOffIsToldByTheNextSession) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine - kOneDay, kNine - kOneDay);
  News();
  m_kde.Add("kate", "/home/ana/b.txt", kNine);
  KdeActivities nextSession(m_path);
  EXPECT_THAT(nextSession.Read(m_memory).openings, ElementsAre(Opened("/home/ana/b.txt", kNine)));
}

TEST_F(KdeActivitiesTest, TheSecondRowOfAnOpeningIsNoNewOneWhenTheFirstWasRead) {
  m_kde.Add("okular", "/home/ana/a.pdf", kNine);
  EXPECT_THAT(News(), SizeIs(1));
  m_kde.Add("okularApplication_pdf", "/home/ana/a.pdf", kNine + 1);
  EXPECT_TRUE(m_source.IsDue());
  EXPECT_THAT(News(), IsEmpty());
  m_kde.Add("okular", "/home/ana/a.pdf", kNine + kOneHour);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.pdf", kNine + kOneHour)));
}

TEST_F(KdeActivitiesTest, AnOpeningAfterTheWholeHistoryWasDeletedIsFound) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Add("kate", "/home/ana/b.txt", kNine + 100);
  News();
  m_kde.Run("DELETE FROM ResourceEvent");
  m_kde.Add("kate", "/home/ana/c.txt", kNine + 200);  // is row 1
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/c.txt", kNine + 200)));
  m_kde.Add("kate", "/home/ana/d.txt", kNine + 300);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/d.txt", kNine + 300)));
}

TEST_F(KdeActivitiesTest, AnEmptiedHistoryIsReadOnFromItsFirstNewRow) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  News();
  m_kde.Run("DELETE FROM ResourceEvent");
  EXPECT_THAT(News(), IsEmpty());
  m_kde.Add("kate", "/home/ana/a.txt", kNine + kOneHour);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine + kOneHour)));
}

TEST_F(KdeActivitiesTest, AHistoryThatStaysEmptyHasNoNews) {
  News();
  const std::string memory = m_memory;
  EXPECT_THAT(News(), IsEmpty());
  EXPECT_EQ(m_memory, memory);
}

TEST_F(KdeActivitiesTest, RowsThatTookTheNumbersOfDeletedOnesAreNew) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Add("kate", "/home/ana/secret.txt", kNine + 100);
  m_kde.Add("kate", "/home/ana/secret.txt", kNine + 200);
  News();
  m_kde.Run("DELETE FROM ResourceEvent WHERE targettedResource LIKE '%secret%'");
  m_kde.Add("kate", "/home/ana/b.txt", kNine + 300);
  m_kde.Add("kate", "/home/ana/c.txt", kNine + 400);
  m_kde.Add("kate", "/home/ana/d.txt", kNine + 500);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/b.txt", kNine + 300), Opened("/home/ana/c.txt", kNine + 400),
                                  Opened("/home/ana/d.txt", kNine + 500)));
}

TEST_F(KdeActivitiesTest, TheEndOfTheLastReadUseIsNoNews) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  News();
  m_kde.Run("UPDATE ResourceEvent SET end = start + 60");
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(KdeActivitiesTest, OldRowsThatTheDaemonDropsCostNothing) {
  m_kde.Add("kate", "/home/ana/old.txt", kNine - 200 * kOneDay);
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  News();
  m_kde.Run("DELETE FROM ResourceEvent WHERE rowid = 1");
  m_kde.Add("kate", "/home/ana/b.txt", kNine + 100);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/b.txt", kNine + 100)));
}

TEST_F(KdeActivitiesTest, AMemoryOfAnotherFormIsNone) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine - kOneDay, kNine - kOneDay);
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  for (const char* memory : {"", "1", "-9223372036854775808 1 1", "1 2 3 4", "99999999999999999999 0 0", "x y z"})
    EXPECT_THAT(m_source.Read(memory).openings, ElementsAre(Opened("/home/ana/a.txt", kNine))) << memory;
}

TEST_F(KdeActivitiesTest, TheMemoryIsOneLine) {
  m_kde.Add("kate", "/home/ana/two\nlines.txt", kNine);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/two\nlines.txt", kNine)));
  EXPECT_EQ(m_memory.find('\n'), std::string::npos);
}

TEST_F(KdeActivitiesTest, FoldersAreNoDocuments) {
  m_kde.Add("org.kde.dolphin", "/home/ana/Documents", kNine);
  m_kde.SetType("/home/ana/Documents", "inode/directory");
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(KdeActivitiesTest, ADatabaseWithoutTypesIsReadToo) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Run("DROP TABLE ResourceInfo");
  EXPECT_THAT(News(), SizeIs(1));
}

TEST_F(KdeActivitiesTest, NotMoreThanTheLimitIsReadAtOnceAndTheRestIsDue) {
  KdeActivities source(m_path, {.rows = 3, .uses = 10});
  m_memory = source.Read("").memory;
  for (std::int64_t i = 0; i < 50; ++i) m_kde.Add("kate", "/home/ana/" + std::to_string(i), kNine + 100 * i);
  std::size_t found = 0;
  for (int readings = 0; source.IsDue() && readings < 50; ++readings) {
    const auto reading = source.Read(m_memory);
    EXPECT_LE(reading.openings.size(), 19U);
    found += reading.openings.size();
    m_memory = reading.memory;
  }
  EXPECT_EQ(found, 50U);
}

TEST_F(KdeActivitiesTest, WithoutKdeThereIsNothingAndNoComplaint) {
  KdeActivities source(m_folder / "none/database");
  EXPECT_FALSE(source.IsDue());
  EXPECT_THAT(source.Read("1 2 3").openings, IsEmpty());
  EXPECT_EQ(source.Read("1 2 3").memory, "1 2 3");
  EXPECT_EQ(source.BeganAt({"/home/ana/a.txt", kNine, "kate", ""}), std::nullopt);
  EXPECT_FALSE(fs::exists(m_folder / "none")) << "nothing is made either";
}

TEST_F(KdeActivitiesTest, ADatabaseThatAppearsIsDue) {
  const std::string path = m_folder / "later/database";
  KdeActivities source(path);
  EXPECT_FALSE(source.IsDue());
  testing::ActivityDatabase kde(path);
  EXPECT_TRUE(source.IsDue());
}

TEST_F(KdeActivitiesTest, ADatabaseThatIsGoneIsDueWhenItIsBack) {
  News();
  m_kde.Close();
  fs::rename(m_path, m_path + ".away");
  EXPECT_FALSE(m_source.IsDue());
  testing::ActivityDatabase kde(m_path);
  kde.Add("kate", "/home/ana/a.txt", kNine);
  EXPECT_TRUE(m_source.IsDue());
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine)));
}

TEST_F(KdeActivitiesTest, ALockedDatabaseIsTriedAgain) {
  m_kde.Run("PRAGMA journal_mode = DELETE");
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Run("BEGIN EXCLUSIVE");
  EXPECT_EQ(Complaint(), "The database cannot be read (database is locked)");
  EXPECT_EQ(m_source.BeganAt({"/home/ana/a.txt", kNine * kNanosecondsPerSecond, "kate", ""}), std::nullopt);
  m_kde.Run("COMMIT");
  EXPECT_TRUE(m_source.IsDue());
  EXPECT_THAT(News(), SizeIs(1));
}

TEST_F(KdeActivitiesTest, ADaemonInTheMiddleOfWritingDoesNotDisturb) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  m_kde.Run("BEGIN EXCLUSIVE");
  m_kde.Add("kate", "/home/ana/b.txt", kNine + 100);
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/a.txt", kNine)));
  m_kde.Run("COMMIT");
  EXPECT_TRUE(m_source.IsDue());
  EXPECT_THAT(News(), ElementsAre(Opened("/home/ana/b.txt", kNine + 100)));
}

TEST_F(KdeActivitiesTest, AnotherSchemaIsNotRead) {
  for (const char* sql : {"UPDATE SchemaInfo SET value = '2031.01.01'", "DELETE FROM SchemaInfo"}) {
    m_kde.Run(sql);
    EXPECT_EQ(Complaint(), "The database has another schema than 2015.02.09");
  }
  m_kde.Run("DROP TABLE SchemaInfo");
  EXPECT_NE(Complaint(), "");
  EXPECT_TRUE(m_source.IsDue());
}

TEST_F(KdeActivitiesTest, AViewInTheTablesPlaceIsRefused) {
  m_kde.Run("DROP TABLE ResourceEvent");
  m_kde.Run(
      "CREATE VIEW ResourceEvent AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i FROM n) "
      "SELECT i AS rowid, 'a' AS initiatingAgent, '/b' AS targettedResource, 1 AS start, 1 AS end FROM n");
  EXPECT_EQ(Complaint(), "The database cannot be read (SQL logic error)");
}

TEST_F(KdeActivitiesTest, WithoutTheRightToMakeTheFilesBesideItADatabaseIsTriedAgain) {
  m_kde.Add("kate", "/home/ana/a.txt", kNine);
  const std::string copy = m_folder.Write("copy/database", testing::ReadFile(m_path));
  m_folder.Write("copy/database-wal", testing::ReadFile(m_path + "-wal"));
  fs::permissions(m_folder.Native(), fs::perms::all);
  fs::permissions(m_folder / "copy",
                  fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec);
  fs::permissions(copy, fs::perms::all);
  KdeActivities source(copy);
  {
    const testing::UnprivilegedUser user;
    EXPECT_THROW(source.Read(""), Error);
    EXPECT_TRUE(source.IsDue());
  }
  fs::permissions(m_folder / "copy", fs::perms::all);
  EXPECT_THAT(source.Read("").openings, SizeIs(1));
}

TEST_F(KdeActivitiesTest, AnUnreadableDatabaseIsTriedAgain) {
  m_kde.Close();
  fs::permissions(m_folder.Native(), fs::perms::all);
  fs::permissions(m_path, fs::perms::none);
  const testing::UnprivilegedUser user;
  EXPECT_NE(Complaint(), "");
  EXPECT_TRUE(m_source.IsDue());
}

/// The complaint about a file of these bytes in the database's place.
std::string ComplaintAbout(const std::string& path) {
  try {
    KdeActivities(path).Read("");
  } catch (const Error& error) {
    return error.Description();
  }
  return "";
}

TEST_F(KdeActivitiesTest, EmptyCutAndRandomFilesAreNoDatabases) {
  for (std::int64_t i = 0; i < 200; ++i) m_kde.Add("kate", "/home/ana/a.txt", kNine + 100 * i);
  m_kde.Close();
  const std::string whole = testing::ReadFile(m_path);
  EXPECT_NE(ComplaintAbout(m_folder.Write("empty", "")), "");
  EXPECT_NE(ComplaintAbout(m_folder.Write("text", "recently used")), "");
  for (const std::size_t length : {std::size_t{1}, std::size_t{99}, std::size_t{4096}, whole.size() / 2})
    EXPECT_NE(ComplaintAbout(m_folder.Write("cut", whole.substr(0, length))), "") << length;
}

TEST_F(KdeActivitiesTest, DamagedPagesEndInAComplaintOrInWhatIsWhole) {
  for (std::int64_t i = 0; i < 200; ++i) m_kde.Add("kate", "/home/ana/a.txt", kNine + 100 * i);
  m_kde.Close();
  const std::string whole = testing::ReadFile(m_path);
  testing::Random random(1);
  for (int round = 0; round < 100; ++round) {
    std::string damaged = whole;
    for (int i = 0; i < 20; ++i)
      damaged[100 + random.UnsignedBelow(static_cast<int>(damaged.size()) - 100)] =
          static_cast<char>(random.Below(256));
    ComplaintAbout(m_folder.Write("damaged", damaged));
  }
}

TEST_F(KdeActivitiesTest, AFolderOrAPipeInItsPlaceIsNoDatabase) {
  fs::create_directory(m_folder / "folder");
  ASSERT_EQ(mkfifo((m_folder / "pipe").c_str(), 0600), 0);
  for (const char* name : {"folder", "pipe"}) {
    KdeActivities source(m_folder / name);
    EXPECT_FALSE(source.IsDue()) << name;
    EXPECT_THAT(source.Read("").openings, IsEmpty()) << name;
  }
}

TEST_F(KdeActivitiesTest, AFolderNameThatLooksLikeAnAddressIsTakenAsItIs) {
  const std::string path = m_folder / "100%25?mode=memory#1/database";
  testing::ActivityDatabase kde(path);
  kde.Add("kate", "/home/ana/a.txt", kNine);
  EXPECT_THAT(KdeActivities(path).Read("").openings, SizeIs(1));
}

Opening Use(const std::string& program, std::int64_t seconds) {
  return {"/home/ana/a.txt", seconds * kNanosecondsPerSecond, program, ""};
}

TEST_F(KdeActivitiesTest, AnEditorClosedAfterMidnightHadBegunTheDayBefore) {
  m_kde.Add("org.kde.kate", "/home/ana/a.txt", kNine, kNine + 16 * kOneHour);
  EXPECT_EQ(m_source.BeganAt(Use("Kate", kNine + 16 * kOneHour)), kNine * kNanosecondsPerSecond);
}

TEST_F(KdeActivitiesTest, ADocumentThatIsStillOpenHadBegunWhenItWasOpened) {
  m_kde.Add("okular", "/home/ana/a.txt", kNine);
  EXPECT_EQ(m_source.BeganAt(Use("org.kde.okular", kNine + kOneHour)), kNine * kNanosecondsPerSecond);
}

TEST_F(KdeActivitiesTest, AnotherDocumentOrAnotherProgramTellsOfNoUse) {
  m_kde.Add("okular", "/home/ana/b.txt", kNine, kNine + kOneHour);
  m_kde.Add("kate", "/home/ana/a.txt", kNine, kNine + kOneHour);
  EXPECT_EQ(m_source.BeganAt(Use("okular", kNine + kOneHour)), std::nullopt);
  m_kde.Add("", "/home/ana/a.txt", kNine, kNine + kOneHour);
  EXPECT_EQ(m_source.BeganAt(Use("", kNine + kOneHour)), std::nullopt) << "a program that nobody named";
}

TEST_F(KdeActivitiesTest, TheBeginningIsLookedForAmongTheLastRows) {
  KdeActivities source(m_path, {.rows = 100, .uses = 2});
  m_kde.Add("kate", "/home/ana/a.txt", kNine, kNine + kOneHour);
  m_kde.Add("kate", "/home/ana/b.txt", kNine, kNine + kOneHour);
  EXPECT_NE(source.BeganAt(Use("kate", kNine + kOneHour)), std::nullopt);
  m_kde.Add("kate", "/home/ana/c.txt", kNine, kNine + kOneHour);
  EXPECT_EQ(source.BeganAt(Use("kate", kNine + kOneHour)), std::nullopt);
}

TEST_F(KdeActivitiesTest, AnEmptyDatabaseKnowsNoBeginning) {
  EXPECT_EQ(m_source.BeganAt(Use("kate", kNine)), std::nullopt);
}

}  // namespace
}  // namespace dayvane::recent
