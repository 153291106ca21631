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
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TextsOf;

class DailyViewTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  DailyViewTest() { desktop.registry.Settings("Options")["Purge Age"] = "3650"; }
};

TEST_F(DailyViewTest, TheTreeShowsYearsMonthsAndDaysWithAPicturePerLevel) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  May", "   05"));
  EXPECT_EQ(window.tvwMain.Roots()[0]->key, "K" + desktop.Folder() + "\\Daily");
  EXPECT_EQ(window.tvwMain.Roots()[0]->image, 1);
  EXPECT_EQ(Node("2026").image, 2);
  EXPECT_EQ(Node("2026\\May").image, 3);
  EXPECT_EQ(Node("2026\\May\\05").image, 4);
}

TEST_F(DailyViewTest, YearsStandInTheirOrder) {
  Load();
  for (const char* year : {"2026", "1999", "2024", "2025"}) fs::create_directories(Daily(year));
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 1999", " 2024", " 2025", " 2026"));
}

TEST_F(DailyViewTest, MonthsStandInTheOrderOfTheCalendar) {
  Load();
  for (const char* month : {"March", "January", "December", "April"})
    fs::create_directories(Daily("2026") + "/" + month);
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  January", "  March", "  April", "  December"));
}

TEST_F(DailyViewTest, MonthsInTheUsersLanguageStandInTheOrderOfTheCalendarToo) {
  desktop.dates.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                              "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  Load();
  for (const char* month : {"April", "Mai", "März", "Dezember"})
    fs::create_directories(testing::PathOf(Daily("2026") + "/" + month));
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  März", "  April", "  Mai", "  Dezember"));
}

TEST_F(DailyViewTest, DaysStandInNumericalOrder) {
  Load();
  for (const char* day : {"21", "03", "10"}) fs::create_directories(Daily("2026/May") + "/" + day);
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  May", "   03", "   10", "   21"));
}

TEST_F(DailyViewTest, AFileWithACapitalExtensionInAMonthFolderShowsAsANode) {
  Load();
  desktop.folder.Write("program/Daily/2026/May/X.LNK", "");
  desktop.folder.Write("program/Daily/2026/May/y.lnk", "");
  window.RefreshDaily();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  May", "   X.LNK"));
}

TEST_F(DailyViewTest, LinksInTheRepositoryAreNotShown) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const testing::TemporaryFolder outside;
  outside.Write("May/05/secret.lnk", "");
  testing::MakeFolderLink(outside.Native(), Daily("2026"));
  Load();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily"));
}

TEST_F(DailyViewTest, SelectingADateSelectsItsNodeAndListsItsDocuments) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text");
  File("2026/May/05", "Z:\\home\\ana\\Report.odt", "2026-05-05 10:07:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  ASSERT_NE(window.tvwMain.SelectedItem(), nullptr);
  EXPECT_EQ(window.tvwMain.SelectedItem()->key, Key("2026\\May\\05"));
  ASSERT_EQ(window.lvwDaily.Count(), 1U);
  const controls::ListItem& row = window.lvwDaily.Row(0);
  EXPECT_EQ(row.key, Key("2026\\May\\05\\Report.odt.lnk"));
  EXPECT_EQ(row.text, "Report.odt");
  EXPECT_THAT(row.subItems, ElementsAre("OpenDocument Text", "Z:\\home\\ana", "10:07"));
}

TEST_F(DailyViewTest, PathsAreShownAsAPersonOfTheDesktopReadsThem) {
  desktop.shell.displayPath = [](const std::string& path) { return "shown " + path; };
  File("2026/May/05", "Z:\\home\\ana\\Report.odt", "2026-05-05 10:07:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 2), ElementsAre("shown Z:\\home\\ana"));
}

TEST_F(DailyViewTest, SelectingADateWithoutAFolderIsReportedAndLeavesTheList) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  window.SelectDate(Date::Of(2026, 5, 6));
  EXPECT_EQ(window.lvwDaily.Count(), 1U);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred selecting a date."));
}

TEST_F(DailyViewTest, WalkingOverDaysWithoutDocumentsInTheCalendarLeavesTheListAndTellsOfNoError) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::May / 5 / 2026});
  window.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::May / 6 / 2026});
  EXPECT_EQ(window.lvwDaily.Count(), 1U);
  EXPECT_EQ(window.tvwMain.SelectedItem(), &Node("2026\\May\\05"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(DailyViewTest, TheCalendarShowsTodayUntilThereAreDocuments) {
  Load();
  window.form.Activate.Raise();
  EXPECT_EQ(window.calMain.CurrentDate(), std::chrono::local_days{std::chrono::November / 21 / 2026});
}

TEST_F(DailyViewTest, ADayThatComesWhileItsMonthIsShownStandsOutAtOnce) {
  Load();
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 11:00:00");
  Tick();
  EXPECT_TRUE(window.calMain.Highlight(21));
}

TEST_F(DailyViewTest, ADayThatIsPurgedStandsOutNoLonger) {
  File("2026/November/20", "Z:\\a.odt", "2026-11-20 10:00:00");
  Load();
  window.form.Activate.Raise();
  ASSERT_TRUE(window.calMain.Highlight(20));
  window.PurgeDay(&Node("2026\\November\\20"));
  EXPECT_FALSE(window.calMain.Highlight(20));
}

TEST_F(DailyViewTest, SelectingTheZeroDateIsLogged) {
  Load();
  window.SelectDate(Date());
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), Contains("2\tFMain.SelectDate: Selected date is missing"));
}

TEST_F(DailyViewTest, AFreshInstallationListsADaySortedByType) {
  desktop.registry.AddClass(".PDF", "A document");
  desktop.registry.AddClass(".ODT", "Z document");
  for (const char* name : {"Z:\\a.odt", "Z:\\b.pdf"}) File("2026/May/05", name, "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.pdf", "a.odt"));
}

TEST_F(DailyViewTest, ARefreshKeepsTheSelectedDayAndDocument) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  window.lvwDaily.Click(window.lvwDaily.Item(Key("2026\\May\\05\\a.odt.lnk")));
  File("2026/May/05", "Z:\\b.odt", "2026-05-05 11:00:00");
  window.RefreshDaily();
  EXPECT_EQ(window.tvwMain.SelectedItem(), &Node("2026\\May\\05"));
  EXPECT_EQ(window.lvwDaily.Count(), 2U);
  ASSERT_NE(window.lvwDaily.SelectedItem(), nullptr);
  EXPECT_EQ(window.lvwDaily.SelectedItem()->text, "a.odt");
}

TEST_F(DailyViewTest, ARefreshWhoseDayIsGoneSelectsNothingAndEmptiesTheListWithoutAMessage) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  fs::remove_all(Daily("2026/May/05"));
  window.RefreshDaily();
  EXPECT_EQ(window.tvwMain.SelectedItem(), nullptr);
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(DailyViewTest, ARefreshWhoseSelectedDocumentIsGoneIsAnErrorForTheCaller) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  window.lvwDaily.Click(window.lvwDaily.Item(Key("2026\\May\\05\\a.odt.lnk")));
  fs::remove(Daily("2026/May/05/a.odt.lnk"));
  EXPECT_ANY_THROW(window.RefreshDaily());
}

TEST_F(DailyViewTest, ARefreshKeepsTheSortOfTheList) {
  for (const char* name : {"Z:\\a.odt", "Z:\\b.odt"}) File("2026/May/05", name, "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  window.lvwDaily.ColumnClick.Raise(1);
  window.lvwDaily.ColumnClick.Raise(1);
  window.RefreshDaily();
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("b.odt", "a.odt"));
}

TEST_F(DailyViewTest, ActivatingTheWindowSelectsTheLatestDayOnce) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  File("2026/May/06", "Z:\\b.odt", "2026-05-06 10:00:00");
  Load();
  window.form.Activate.Raise();
  EXPECT_EQ(window.tvwMain.SelectedItem(), &Node("2026\\May\\06"));
  window.SelectDate(Date::Of(2026, 5, 5));
  window.form.Activate.Raise();
  EXPECT_EQ(window.tvwMain.SelectedItem(), &Node("2026\\May\\05"));
}

TEST_F(DailyViewTest, ClickingADayListsItAndMovesTheCalendarThere) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.tvwMain.Click(Node("2026\\May\\05"));
  EXPECT_THAT(ColumnOf(window.lvwDaily, 0), ElementsAre("a.odt"));
  EXPECT_EQ(Date(std::chrono::local_seconds(window.calMain.CurrentDate())), Date::Of(2026, 5, 5));
  EXPECT_EQ(window.sbrMain.Text(), "1 objects");
}

TEST_F(DailyViewTest, ClickingAMonthEmptiesTheListAndLeavesTheCalendar) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.tvwMain.Click(Node("2026\\May\\05"));
  const auto date = window.calMain.CurrentDate();
  window.tvwMain.Click(Node("2026\\May"));
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_EQ(window.calMain.CurrentDate(), date);
  EXPECT_EQ(window.sbrMain.Text(), "0 objects");
}

TEST_F(DailyViewTest, MissingArgumentsOfTheTreesLoaderAreLogged) {
  Load();
  EXPECT_NO_THROW(window.LoadDailyTreeViewFolder("", 0));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.LoadDailyTreeViewFolder: Folder is missing",
                                                            "2\tFMain.LoadDailyTreeViewFolder: Level is 0"));
}

TEST_F(DailyViewTest, TheCalendarKnowsWhichDayIsListed) {
  const auto may = [](int day) { return std::chrono::local_days{std::chrono::year{2026} / 5 / day}; };
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  File("2026/May/06", "Z:\\a.odt", "2026-05-06 10:00:00");
  Load();
  EXPECT_EQ(window.calMain.ListedDay(), std::nullopt);
  window.SelectDate(Date::Of(2026, 5, 5));
  EXPECT_EQ(window.calMain.ListedDay(), may(5));
  window.calMain.SetCurrentDate(may(9));
  EXPECT_EQ(window.calMain.ListedDay(), may(5)) << "a day without documents leaves the list";
  window.tvwMain.Click(Node("2026\\May\\06"));
  EXPECT_EQ(window.calMain.ListedDay(), may(6));
  window.tvwMain.Click(Node("2026\\May"));
  EXPECT_EQ(window.calMain.ListedDay(), std::nullopt);
}

TEST_F(DailyViewTest, WhenTheListedDayIsPurgedTheCalendarKnowsThatNoneIsListed) {
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  window.SelectDate(Date::Of(2026, 5, 5));
  window.PurgeDay(&Node("2026\\May\\05"));
  EXPECT_EQ(window.calMain.ListedDay(), std::nullopt);
}

}  // namespace
}  // namespace dayvane
