// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::ColumnOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::ReadFile;

/// What the main window files and counts, with every document a favorite from its first day on.
class FilingTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  FilingTest() {
    desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options"]["Favorites Threshold"] = "1";
  }

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
