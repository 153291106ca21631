// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::ColumnOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;

/// A favorite that was opened every day for so long that the day of its first filing, 1 October, has been purged.
class OldFavoriteTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  OldFavoriteTest() {
    desktop.folder.Write("program/Favorites.dat", "40,#2026-11-20 10:00:00#,\"" + desktop.Folder() +
                                                      "\\Daily\\2026\\October\\01\\Report.odt.lnk\",\"Report.odt\","
                                                      "\"z:\\home\\ana\",\"Text\",\"\",0\r\n");
  }

  void FileReport(const std::string& day, const std::string& localTime) const {
    File(day, "Z:\\home\\ana\\Report.odt", localTime);
  }
  void Open() {
    Load();
    window.OpenDocument(&window.lvwFavorites.Row(0));
  }
  std::string Filed(const std::string& day) const { return Daily(day) + "/Report.odt.lnk"; }
  std::string Recent() const { return desktop.NativeRecent() + "/Report.odt.lnk"; }
  platform::ShellLink RecentLink() {
    return desktop.shell.ReadShellLink(desktop.shell.recentFolder + "\\Report.odt.lnk").link;
  }
};

TEST_F(OldFavoriteTest, OpensByItsNewestLinkWhichIsPutBackWhole) {
  FileReport("2026/November/19", "2026-11-19 10:00:00");
  platform::ShellLink newest;
  newest.target = "Z:\\home\\ana\\Report.odt";
  newest.showCommand = 3;
  fs::create_directories(Daily("2026/November/20"));
  testing::WriteShortcut(Filed("2026/November/20"), newest, "2026-11-20 10:00:00");
  Open();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\Report.odt|Z:\\home\\ana|3"));
  EXPECT_EQ(ReadFile(Recent()), ReadFile(Filed("2026/November/20")));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(OldFavoriteTest, OpensWhenTheStartPurgesItsFirstDay) {
  FileReport("2026/October/01", "2026-10-01 10:00:00");
  FileReport("2026/November/20", "2026-11-20 10:00:00");
  Open();
  EXPECT_FALSE(fs::exists(Filed("2026/October/01")));
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\Report.odt|Z:\\home\\ana|1"));
}

TEST_F(OldFavoriteTest, TheNewestLinkIsTheCalendarsWhateverTheNamesOfTheMonths) {
  desktop.clock.Set(2026, 4, 20);
  desktop.registry.Settings("Options")["Purge Age"] = "3650";
  FileReport("2025/December/31", "2025-12-31 10:00:00");
  FileReport("2026/March/30", "2026-03-30 10:00:00");
  platform::ShellLink newest;
  newest.target = "Z:\\home\\ana\\Report.odt";
  newest.showCommand = 3;
  fs::create_directories(Daily("2026/April/02"));
  testing::WriteShortcut(Filed("2026/April/02"), newest, "2026-04-02 10:00:00");
  Open();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\Report.odt|Z:\\home\\ana|3"));
}

TEST_F(OldFavoriteTest, ALinkOfItsNameToAnotherDocumentIsPassedOver) {
  File("2026/November/20", "Z:\\home\\bob\\Report.odt", "2026-11-20 10:00:00");
  FileReport("2026/November/19", "2026-11-19 10:00:00");
  Open();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\Report.odt|Z:\\home\\ana|1"));
}

TEST_F(OldFavoriteTest, LettersOfAnotherCaseNameTheSameDocument) {
  File("2026/November/20", "Z:\\Home\\Ana\\REPORT.ODT", "2026-11-20 10:00:00");
  Open();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\Home\\Ana\\REPORT.ODT|Z:\\Home\\Ana|1"));
}

TEST_F(OldFavoriteTest, ALinkThatIsDamagedIsPassedOver) {
  desktop.folder.Write("program/Daily/2026/October/01/Report.odt.lnk", "no link");
  desktop.folder.Write("program/Daily/2026/November/20/Report.odt.lnk", "no link");
  desktop.windowing.answer = platform::MessageAnswer::No;
  FileReport("2026/November/19", "2026-11-19 10:00:00");
  Open();
  EXPECT_EQ(ReadFile(Recent()), ReadFile(Filed("2026/November/19")));
}

TEST_F(OldFavoriteTest, WithNoLinkLeftTheDocumentItselfIsOpenedAndAWholeLinkIsPutBack) {
  Open();
  EXPECT_THAT(desktop.shell.opened, ElementsAre("z:\\home\\ana\\Report.odt|z:\\home\\ana|1"));
  EXPECT_EQ(RecentLink().target, "z:\\home\\ana\\Report.odt");
  EXPECT_EQ(RecentLink().workingDirectory, "z:\\home\\ana");
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(OldFavoriteTest, TheLinkPutBackIsCapturedAndCountsTheDocumentOnceMore) {
  Open();
  testing::SetWritten(Recent(), "2026-11-21 12:00:00");
  Tick();
  EXPECT_TRUE(fs::exists(Filed("2026/November/21")));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("   41"));
}

TEST_F(OldFavoriteTest, WhoseDocumentIsGoneTooIsAskedAboutAndGoesWithItsRecord) {
  desktop.shell.openResult = 2;
  Open();
  EXPECT_THAT(desktop.windowing.Texts(),
              ElementsAre("The document z:\\home\\ana\\Report.odt\r\nwas not found. Remove this link?"));
  EXPECT_FALSE(fs::exists(Recent()));
  EXPECT_EQ(window.lvwFavorites.Count(), 0U);
  EXPECT_EQ(window.Favorites()->Count(), 0);
}

TEST_F(OldFavoriteTest, RemovedItGoesFromTheRecentFolderAndIsCountedAnewByTheLinksThatAreLeft) {
  FileReport("2026/November/18", "2026-11-18 10:00:00");
  FileReport("2026/November/19", "2026-11-19 10:00:00");
  Load();
  desktop.folder.Write("recent/Report.odt.lnk", "x");
  window.RemoveLink(&window.lvwFavorites.Row(0));
  EXPECT_FALSE(fs::exists(Recent()));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

}  // namespace
}  // namespace dayvane
