// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"
#include "views/CCalendar.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CCalendarTest : public ::testing::Test {
 protected:
  CCalendarTest() {
    calendar.DailyPath = desktop.Folder() + "\\Daily";
    calendar.SetCalendar(&control);
    calendar.DateChange.Connect([this](const Date& date) { changes.push_back(date); });
  }

  void MakeDay(const std::string& day) const { std::filesystem::create_directories(Native(day)); }
  std::string Native(const std::string& day) const { return desktop.NativeFolder() + "/Daily/" + day; }

  std::vector<int> Highlighted() const {
    std::vector<int> days;
    for (int day = 1; day <= 31; ++day)
      if (control.Highlight(day)) days.push_back(day);
    return days;
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  controls::Calendar control;
  CCalendar calendar{application};
  std::vector<Date> changes;
};

TEST_F(CCalendarTest, DaysWithAFolderStandOutEvenWhenItIsEmpty) {
  MakeDay("2026/May/01");
  MakeDay("2026/May/31");
  MakeDay("2026/June/07");
  MakeDay("2025/May/08");
  calendar.HighlightDays(Date::Of(2026, 5, 20));
  EXPECT_THAT(Highlighted(), ElementsAre(1, 31));
}

TEST_F(CCalendarTest, OnlyFoldersOfTwoDigitsStandOut) {
  MakeDay("2026/May/7");
  desktop.folder.Write("program/Daily/2026/May/08", "");
  calendar.HighlightDays(Date::Of(2026, 5, 20));
  EXPECT_THAT(Highlighted(), IsEmpty());
}

TEST_F(CCalendarTest, ADayTellsHowManyDocumentsItHasWithoutItsPrograms) {
  MakeDay("2026/May/01");
  MakeDay("2026/May/02");
  const auto file = [this](const std::string& name, const std::string& target, const std::string& workingFolder) {
    platform::ShellLink link;
    link.target = target;
    link.workingDirectory = workingFolder;
    testing::WriteShortcut(Native("2026/May/01") + "/" + name, link, "2026-05-01 09:00:00");
  };
  file("Report.odt.lnk", "Z:\\home\\ana\\Report.odt", "Z:\\home\\ana");
  file("Makefile.lnk", "Z:\\home\\ana\\Makefile", "Z:\\home\\ana");
  file("Writer.lnk", "Z:\\usr\\bin\\writer", "Z:\\usr\\bin\\writer");
  desktop.folder.Write("program/Daily/2026/May/01/note.txt", "");

  const auto documents = [this](unsigned day) { return control.Documents(Date::Of(2026, 5, day).LocalDay()); };

  EXPECT_EQ(documents(1), 2);
  EXPECT_EQ(documents(2), 0) << "an empty folder";
  EXPECT_EQ(documents(3), 0) << "no folder";
}

TEST_F(CCalendarTest, MonthFoldersAreLookedUpInTheUsersLanguage) {
  desktop.dates.monthNames[4] = "Mai";
  MakeDay("2026/Mai/03");
  calendar.HighlightDays(Date::Of(2026, 5, 20));
  EXPECT_THAT(Highlighted(), ElementsAre(3));
}

TEST_F(CCalendarTest, MovingWithinAMonthKeepsTheHighlights) {
  MakeDay("2026/May/03");
  calendar.SetValue(Date::Of(2026, 5, 3));
  MakeDay("2026/May/04");
  calendar.SetValue(Date::Of(2026, 5, 20));
  EXPECT_THAT(Highlighted(), ElementsAre(3));
}

TEST_F(CCalendarTest, MovingToAnotherMonthHighlightsThatMonthsDays) {
  MakeDay("2026/May/03");
  MakeDay("2026/June/07");
  calendar.SetValue(Date::Of(2026, 5, 3));
  calendar.SetValue(Date::Of(2026, 6, 1));
  EXPECT_THAT(Highlighted(), ElementsAre(7));
}

TEST_F(CCalendarTest, MovingToTheSameMonthOfAnotherYearHighlightsAnew) {
  MakeDay("2026/May/03");
  MakeDay("2025/May/08");
  calendar.SetValue(Date::Of(2026, 5, 3));
  calendar.SetValue(Date::Of(2025, 5, 3));
  EXPECT_THAT(Highlighted(), ElementsAre(8));
}

TEST_F(CCalendarTest, AThirtyFirstIsClearedInAMonthOfThirtyDays) {
  MakeDay("2026/May/31");
  MakeDay("2026/June/30");
  calendar.SetValue(Date::Of(2026, 5, 31));
  calendar.SetValue(Date::Of(2026, 6, 30));
  EXPECT_THAT(Highlighted(), ElementsAre(30));
}

TEST_F(CCalendarTest, AMonthWithoutItsYearFolderIsClearedAndRedrawn) {
  control.SetHighlight(12, true);
  int redrawn = 0;
  control.Changed.Connect([&] { ++redrawn; });
  calendar.HighlightDays(Date::Of(2026, 5, 20));
  EXPECT_THAT(Highlighted(), IsEmpty());
  EXPECT_EQ(redrawn, 1);
}

TEST_F(CCalendarTest, TheHighlightsAreRightBeforeTheChangeIsPassedOn) {
  MakeDay("2026/May/03");
  std::vector<int> seen;
  calendar.DateChange.Connect([&](const Date&) { seen = Highlighted(); });
  calendar.SetValue(Date::Of(2026, 5, 3));
  EXPECT_THAT(seen, ElementsAre(3));
}

TEST_F(CCalendarTest, EveryChangeIsPassedOnWithItsDate) {
  calendar.SetValue(Date::Of(2026, 5, 3));
  control.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 5 / 4});
  EXPECT_THAT(changes, ElementsAre(Date::Of(2026, 5, 3), Date::Of(2026, 5, 4)));
  EXPECT_EQ(calendar.Value(), Date::Of(2026, 5, 4));
}

TEST_F(CCalendarTest, AChangeIsNeverCancelled) {
  bool cancelled = false;
  control.WillChangeDate.Connect([&](auto, auto, bool& cancel) { cancelled = cancel; });
  calendar.SetValue(Date::Of(2026, 5, 3));
  EXPECT_FALSE(cancelled);
  EXPECT_EQ(calendar.Value(), Date::Of(2026, 5, 3));
}

TEST_F(CCalendarTest, AMonthIsTakenFromTheShortDateInTheUsersOrder) {
  desktop.dates.shortDate = "dd.mm.yyyy";
  MakeDay("2026/May/03");
  calendar.SetValue(Date::Of(2026, 3, 5));
  calendar.SetValue(Date::Of(2026, 5, 5));
  EXPECT_THAT(Highlighted(), ElementsAre(3));
}

TEST_F(CCalendarTest, RefreshingRedrawsTheControl) {
  int redrawn = 0;
  control.Changed.Connect([&] { ++redrawn; });
  calendar.Refresh();
  EXPECT_EQ(redrawn, 1);
}

TEST_F(CCalendarTest, TheZeroDateIsNoValue) {
  calendar.SetValue(Date());
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ::testing::Contains("2\tCCalendar.Value: Invalid date"));
}

TEST_F(CCalendarTest, TheZeroDateHasNoDaysToHighlight) {
  calendar.HighlightDays(Date());
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tCCalendar.Value: Invalid date"));
}

TEST_F(CCalendarTest, AMissingRepositoryPathIsLogged) {
  calendar.DailyPath = " ";
  calendar.HighlightDays(Date::Of(2026, 5, 3));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tCCalendar.HighlightDays: DailyPath is missing"));
}

TEST_F(CCalendarTest, AMissingControlIsLoggedByItsProcedure) {
  calendar.SetCalendar(nullptr);
  EXPECT_ANY_THROW((void)calendar.Value());
  EXPECT_ANY_THROW(calendar.SetValue(Date::Of(2026, 5, 3)));
  EXPECT_ANY_THROW(calendar.HighlightDays(Date::Of(2026, 5, 3)));
  EXPECT_ANY_THROW(calendar.Refresh());
  EXPECT_THAT(
      desktop.LogLines("EventLog.txt"),
      ElementsAre("2\tCCalendar.Value: Calendar is Nothing", "2\tCCalendar.Value: Calendar is Nothing",
                  "2\tCCalendar.HighlightDays: Calendar is Nothing", "2\tCCalendar.Refresh: Calendar is Nothing"));
}

}  // namespace
}  // namespace dayvane
