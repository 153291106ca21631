// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// One run of the program on the same disk and with the same settings.
struct ProgramRun {
  explicit ProgramRun(testing::TestDesktop& desktop) : application(desktop.desktop, desktop.Folder()) {
    window.Form_Load();
  }

  Application application;
  CRepository repository{application};
  FMain window{application, repository};
};

/// A user whose desktop was German once and is English now.
class LanguageChangeTest : public ::testing::Test {
 protected:
  LanguageChangeTest() {
    desktop.registry.Settings("Options") = {
        {"Favorites Threshold", "2"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
    desktop.dates.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                                "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
    ProgramRun german(desktop);
    desktop.dates = {};
  }

  void File(const std::string& day, const std::string& localTime) const {
    fs::create_directories(testing::PathOf(Daily(day)));
    platform::ShellLink link;
    link.target = "Z:\\home\\ana\\a.odt";
    testing::WriteShortcut(Daily(day) + "/a.odt.lnk", link, localTime);
  }
  std::string Daily(const std::string& path) const { return desktop.NativeFolder() + "/Daily/" + path; }
  std::string Key(const std::string& path) const { return "K" + desktop.Folder() + "\\Daily\\" + path; }

  testing::TestDesktop desktop;
};

TEST_F(LanguageChangeTest, OldDaysOfBothLanguagesAreAskedAboutOnceAndRemoved) {
  File("2025/Mai/05", "2025-05-05 10:00:00");
  File("2026/März/05", "2026-03-05 10:00:00");
  File("2026/May/05", "2026-05-05 10:00:00");
  File("2026/Oktober/30", "2026-10-30 10:00:00");
  ProgramRun english(desktop);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(StartsWith("There are shortcuts to programs and documents")));
  EXPECT_THAT(testing::TextsOf(english.window.tvwMain), ElementsAre("Daily", " 2026", "  Oktober", "   30"));
}

TEST_F(LanguageChangeTest, MonthsOfBothLanguagesStandInTheOrderOfTheCalendar) {
  for (const char* month : {"Dezember", "März", "May", "Oktober", "August", "Januar"})
    File(std::string("2026/") + month + "/05", "2026-11-05 10:00:00");
  desktop.windowing.answer = platform::MessageAnswer::No;
  ProgramRun english(desktop);
  std::vector<std::string> months;
  for (const auto& node : english.window.tvwMain.Node(Key("2026")).children) months.push_back(node->text);
  EXPECT_THAT(months, ElementsAre("Januar", "März", "May", "August", "Oktober", "Dezember"));
}

TEST_F(LanguageChangeTest, ADayOfTheOldLanguageIsShownWhenItIsClicked) {
  File("2026/Oktober/30", "2026-10-30 10:00:00");
  ProgramRun english(desktop);
  controls::TreeNode& day = english.window.tvwMain.Node(Key("2026\\Oktober\\30"));
  english.window.tvwMain.SetSelectedItem(&day);
  english.window.tvwMain.NodeClick.Raise(day);
  EXPECT_THAT(testing::ColumnOf(english.window.lvwDaily, 0), ElementsAre("a.odt"));
  EXPECT_EQ(Date(std::chrono::local_seconds(english.window.calMain.CurrentDate())), Date::Of(2026, 10, 30));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(LanguageChangeTest, BeforeAnythingIsFiledInTheNewLanguageAStartIsQuietAndShowsTheLatestDaysMonth) {
  File("2026/Oktober/30", "2026-10-30 10:00:00");
  ProgramRun english(desktop);
  english.window.form.Activate.Raise();
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_EQ(Date(std::chrono::local_seconds(english.window.calMain.CurrentDate())), Date::Of(2026, 10, 30));
}

TEST_F(LanguageChangeTest, TheLatestDayIsLookedForInTheUsersLanguage) {
  File("2026/Oktober/30", "2026-10-30 10:00:00");
  const ProgramRun english(desktop);
  EXPECT_THROW(english.repository.FindLatestDay(), Error);
  fs::create_directories(Daily("2026/May/05"));
  EXPECT_EQ(english.repository.FindLatestDay(), Date::Of(2026, 5, 5));
}

TEST_F(LanguageChangeTest, NewDaysAreFiledUnderTheNewLanguage) {
  File("2026/Oktober/30", "2026-10-30 10:00:00");
  desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-10-31 09:00:00");
  const ProgramRun english(desktop);
  EXPECT_TRUE(fs::exists(Daily("2026/October/31/b.odt.lnk")));
  EXPECT_TRUE(fs::exists(Daily("2026/Oktober/30/a.odt.lnk")));
}

TEST_F(LanguageChangeTest, AMonthThatNoLanguageKnowsIsToldToTheEventLogAndNobodyElse) {
  File("2026/Toukokuu/05", "2026-05-05 10:00:00");
  File("2026/Zzz/07", "2026-05-07 10:00:00");
  File("2026/November/20", "2026-11-20 10:00:00");
  ProgramRun english(desktop);
  english.window.form.Activate.Raise();
  english.window.tmrMain.Fire();
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre(HasSubstr("Toukokuu")));
}

TEST_F(LanguageChangeTest, ALinkCanBeRemovedWithFoldersOfTheUsersOwnAround) {
  desktop.folder.Write("program/Daily/2026/Photos/12/letter.odt", "x");
  File("2026/November/20", "2026-11-20 10:00:00");
  ProgramRun english(desktop);
  english.window.form.Activate.Raise();
  ASSERT_EQ(english.window.lvwDaily.Count(), 1U);
  english.window.RemoveLink(&english.window.lvwDaily.Row(0));
  EXPECT_FALSE(fs::exists(Daily("2026/November")));
  EXPECT_TRUE(fs::exists(Daily("2026/Photos/12/letter.odt")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

}  // namespace
}  // namespace dayvane
