#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "repository/CRepository.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TestDesktop.h"
#include "views/CFavorites.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using favorites::Record;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;

const std::string kRecord =
    "3,#1998-05-12 14:03:27#,\"Z:\\d\\a.lnk\",\"a.odt\",\"z:\\home\",\"OpenDocument Text\",\"writer\",0\r\n";

class CFavoritesTest : public ::testing::Test {
 protected:
  CFavoritesTest() {
    favorites.AppPath = desktop.Folder();
    favorites.DailyFolder = "Daily";
    favorites.SetListControls(&list, &pane);
  }

  /// Files a shortcut in the repository and returns its path.
  std::string File(const std::string& day, const std::string& target, const std::string& time,
                   const std::string& workingFolder = "") {
    const PathParts parts = SplitPath(target);
    const std::string name = "program/Daily/" + day + "/" + parts.fileName + ".lnk";
    fs::create_directories(fs::path(desktop.folder / name).parent_path());
    platform::ShellLink link;
    link.target = target;
    link.workingDirectory = workingFolder.empty() ? parts.folder : workingFolder;
    testing::WriteShortcut(desktop.folder / name, link, time);
    std::string path = desktop.folder.Path() + "\\" + name;
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
  }

  void Count(const std::string& path) {
    CShortcut shortcut(application);
    shortcut.SetFile(path);
    favorites.ProcessShortcut(&shortcut);
  }

  void WriteData(const std::string& text) const { desktop.folder.Write("program/Favorites.dat", text); }
  std::string DataFile() const { return desktop.NativeFolder() + "/Favorites.dat"; }
  std::string Text(std::size_t record, favorites::Field field) const {
    return favorites::TextOf(favorites.GetFavorites().at(record)[field]);
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
  controls::ListView list;
  controls::PictureBox pane;
  CFavorites favorites{application};
};

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

TEST_F(CFavoritesTest, AMissingDataFileIsRebuiltFromTheRepositoryAndNotWrittenUntilSaved) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  EXPECT_FALSE(favorites.Read());
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_FALSE(fs::exists(DataFile()));
  favorites.Save();
  EXPECT_TRUE(fs::exists(DataFile()));
}

TEST_F(CFavoritesTest, SavingAnEmptyTableLeavesAnOldFileUntouched) {
  WriteData(kRecord);
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), kRecord);
}

TEST_F(CFavoritesTest, ATableThatIsReadAndSavedIsTheSameFile) {
  const std::string text = kRecord + "1,#1998-05-12#,\"\xC3\xA4\",\"b\",\"c\",\"\",,-5\r\n";
  WriteData(text);
  EXPECT_TRUE(favorites.Read());
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), text);
}

TEST_F(CFavoritesTest, ARecordSplitOverTwoLinesReadsTheSame) {
  std::string split = kRecord;
  split.replace(split.find(",\"a.odt\""), 1, "\r\n");
  WriteData(split);
  favorites.Read();
  ASSERT_EQ(favorites.Count(), 1);
  EXPECT_EQ(Text(0, favorites::kTargetFileName), "a.odt");
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(CFavoritesTest, AFileThatEndsInsideARecordIsReportedAndKeepsWhatWasRead) {
  WriteData(kRecord + "7,#1998-05-12#");
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 2);
  EXPECT_EQ(Text(0, favorites::kDaysAccessed), "3");
  EXPECT_EQ(Text(1, favorites::kDaysAccessed), "7");
  ASSERT_EQ(desktop.LogLines("ErrorLog.txt").size(), 1U);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt")[0], ::testing::StartsWith("CFavorites.Read\t62\t"));
}

TEST_F(CFavoritesTest, ADamagedFileIsKeptBeforeASaveWritesOverIt) {
  const std::string damaged = kRecord + "7,#1998-05-12#";
  WriteData(damaged);
  favorites.Read();
  favorites.Save();
  EXPECT_EQ(ReadFile(desktop.NativeFolder() + "/Favorites.damaged.dat"), damaged);
}

TEST_F(CFavoritesTest, AFileCutAtAnyByteIsReadUpToThereWithoutACrash) {
  const std::string whole = kRecord + kRecord;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    WriteData(whole.substr(0, length));
    favorites.Read();
    EXPECT_LE(favorites.Count(), 2) << length;
    EXPECT_GE(favorites.Count(), length >= kRecord.size() ? 1 : 0) << length;
  }
}

TEST_F(CFavoritesTest, ValuesOfTheWrongTypeAreTakenAsTheyStand) {
  WriteData("\"many\",7,8,9,10,#1998-05-12#,,\"x\"\r\n");
  favorites.Read();
  EXPECT_EQ(favorites.Count(), 1);
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
  favorites.Save();
  EXPECT_EQ(ReadFile(DataFile()), "\"many\",7,8,9,10,#1998-05-12#,,\"x\"\r\n");
}

TEST_F(CFavoritesTest, ACountThatIsNoNumberCannotBeCountedUp) {
  WriteData("\"many\",#1998-05-12#,\"l\",\"a.odt\",\"z:\\home\",\"\",\"\",0\r\n");
  favorites.Read();
  EXPECT_ANY_THROW(Count(File("2026/May/05", "Z:\\home\\a.odt", "2026-05-05 10:00:00")));
}

TEST_F(CFavoritesTest, AMillionRecordsAreReadAndFound) {
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

TEST_F(CFavoritesTest, ADiskThatFillsKeepsTheOldFileAndIsReported) {
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
  const testing::TemporaryFolder outside;
  platform::ShellLink link;
  link.target = "Z:\\secret.odt";
  testing::WriteShortcut(outside / "secret.odt.lnk", link, "2026-05-05 10:00:00");
  fs::create_directory_symlink(outside.Native(), desktop.NativeFolder() + "/Daily/2026");
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
