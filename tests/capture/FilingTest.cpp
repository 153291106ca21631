// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::ColumnOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::ReadFile;
using ::testing::UnorderedElementsAre;

/// What the main window files and counts, with every document a favorite from its first day on.
class FilingTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  FilingTest() { desktop.registry.Settings("Options")["Favorites Threshold"] = "1"; }

  void Open(const std::string& time, const std::string& name = "Report.odt") {
    desktop.OpenDocument("Z:\\home\\ana\\" + name, time);
  }
  std::vector<std::string> Counts() const { return ColumnOf(window.lvwFavorites, 3); }
};

TEST_F(FilingTest, ADocumentOpenedAgainOnItsDayStillHasOneDay) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  Open("2026-11-21 11:30:00");
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("    1"));
}

TEST_F(FilingTest, ADocumentOpenedOnTwoDaysHasTwo) {
  Load();
  Open("2026-11-20 09:15:00");
  Tick();
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("    2"));
}

TEST_F(FilingTest, DocumentsOfTwoDaysInOnePollAreFiledUnderTheirOwnDays) {
  Load();
  Open("2026-11-20 09:15:00", "a.odt");
  Open("2026-11-21 09:15:00", "b.odt");
  Open("2026-11-20 10:15:00", "c.odt");
  Tick();
  for (const char* filed : {"20/a.odt.lnk", "21/b.odt.lnk", "20/c.odt.lnk"})
    EXPECT_TRUE(fs::exists(Daily("2026/November/") + filed)) << filed;
}

TEST_F(FilingTest, TheSameDayOfTwoMonthsIsTwoFolders) {
  Load();
  desktop.clock.Set(2026, 12, 10);
  Open("2026-11-20 09:15:00", "a.odt");
  Open("2026-12-09 09:15:00", "b.odt");
  Open("2026-12-09 09:16:00", "c.odt");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/20/a.odt.lnk")));
  EXPECT_TRUE(fs::exists(Daily("2026/December/09/b.odt.lnk")));
  EXPECT_TRUE(fs::exists(Daily("2026/December/09/c.odt.lnk")));
}

TEST_F(FilingTest, APollThatFindsNothingNewAfterOneThatFiledFillsNoViewAnew) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  int filled = 0;
  window.tvwMain.ContentsChanged.Connect([&] { ++filled; });
  window.lvwDaily.ContentsChanged.Connect([&] { ++filled; });
  window.lvwFavorites.ContentsChanged.Connect([&] { ++filled; });
  Tick();
  EXPECT_EQ(filled, 0);
}

TEST_F(FilingTest, ADocumentOpenedAgainOnItsDayFillsTheViewsAnew) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  window.SelectDate(Date::Of(2026, 11, 21));
  Open("2026-11-21 11:30:00");
  Tick();
  EXPECT_THAT(ColumnOf(window.lvwDaily, 3), ElementsAre("11:30"));
}

TEST_F(FilingTest, ADocumentOpenedAgainOnItsDayBringsItsProgramsShortcutBack) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\" \"%1\"");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  ASSERT_TRUE(fs::remove(Daily("2026/November/21/Writer.lnk")));
  Open("2026-11-21 11:30:00");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Writer.lnk")));
}

TEST_F(FilingTest, AProgramsShortcutIsWrittenOnceForAllDocumentsOfAPollAndDay) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\" \"%1\"");
  Load();
  Open("2026-11-21 09:15:00", "a.odt");
  Open("2026-11-21 09:16:00", "b.odt");
  Open("2026-11-20 09:17:00", "c.odt");
  std::vector<std::string> written;
  desktop.files.beforeChange = [&](const std::string& path) {
    if (path.ends_with("\\Writer.lnk")) written.push_back(path);
  };
  Tick();
  const std::string november = desktop.Folder() + "\\Daily\\2026\\November\\";
  EXPECT_THAT(written, UnorderedElementsAre(november + "20\\Writer.lnk", november + "21\\Writer.lnk"));
}

TEST_F(FilingTest, AFiledShortcutIsNotReadASecondTime) {
  Load();
  Open("2026-11-21 09:15:00");
  int reads = 0;
  desktop.files.beforeRead = [&](const std::string& path) { reads += path.ends_with("Report.odt.lnk") ? 1 : 0; };
  Tick();
  EXPECT_EQ(reads, 1);
}

TEST_F(FilingTest, AShortcutThatIsRewrittenWhileItIsFiledCountsAsItWasFiled) {
  Load();
  Open("2026-11-21 09:15:00");
  bool isRewritten = false;
  desktop.files.beforeChange = [&](const std::string& path) {
    if (!path.ends_with("Report.odt.lnk") || std::exchange(isRewritten, true)) return;
    Open("2026-11-21 11:30:00");
  };
  Tick();
  EXPECT_THAT(ReadFile(FavoritesFile()), HasSubstr("11:30:00"));
  EXPECT_THAT(Counts(), ElementsAre("    1"));
}

TEST_F(FilingTest, AFavoriteIsKnownByItsFiledShortcutNotByTheRecentFolders) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  ASSERT_EQ(window.lvwFavorites.Count(), 1U);
  EXPECT_EQ(window.lvwFavorites.Row(0).key, Key("2026\\November\\21\\Report.odt.lnk"));
  EXPECT_THAT(ReadFile(FavoritesFile()),
              HasSubstr(",\"" + desktop.Folder() + "\\Daily\\2026\\November\\21\\Report.odt.lnk\","));
}

TEST_F(FilingTest, AFavoriteThatWasJustCapturedOpensAfterTheRecentFolderForgotIt) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  fs::remove(desktop.NativeRecent() + "/Report.odt.lnk");
  window.OpenDocument(&window.lvwFavorites.Row(0));
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\Report.odt|z:\\home\\ana|1"));
}

}  // namespace
}  // namespace dayvane
