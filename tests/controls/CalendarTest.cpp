// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Calendar.h"

namespace dayvane::controls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Calendar::Day DayOf(int year, int month, int day) {
  return Calendar::Day{std::chrono::year{year} / month / day};
}

class CalendarTest : public ::testing::Test {
 protected:
  CalendarTest() {
    calendar.WillChangeDate.Connect([this](auto, auto, bool& cancelled) {
      heard.emplace_back("will change");
      cancelled = cancel;
    });
    calendar.Changed.Connect([this] { heard.emplace_back("changed"); });
    calendar.DateChange.Connect([this](auto oldDay, auto newDay) {
      heard.emplace_back("date change");
      from = oldDay;
      to = newDay;
    });
  }

  Calendar calendar;
  bool cancel = false;
  std::vector<std::string> heard;
  Calendar::Day from;
  Calendar::Day to;
};

TEST_F(CalendarTest, OnlyDaysThatTheProgramCanSpellAreTaken) {
  calendar.SetCurrentDate(DayOf(100, 1, 1));
  calendar.SetCurrentDate(DayOf(99, 12, 31));
  EXPECT_EQ(calendar.CurrentDate(), DayOf(100, 1, 1));
  calendar.SetCurrentDate(DayOf(9999, 12, 31));
  calendar.SetCurrentDate(DayOf(10000, 1, 1));
  EXPECT_EQ(calendar.CurrentDate(), DayOf(9999, 12, 31));
}

TEST_F(CalendarTest, AChangeIsAnnouncedShownAndToldInThisOrder) {
  calendar.SetCurrentDate(DayOf(2026, 5, 3));
  EXPECT_THAT(heard, ElementsAre("will change", "changed", "date change"));
}

TEST_F(CalendarTest, AChangeTellsTheOldDateAndTheNewOne) {
  calendar.SetCurrentDate(DayOf(2026, 5, 3));
  calendar.SetCurrentDate(DayOf(2026, 6, 1));
  EXPECT_EQ(from, DayOf(2026, 5, 3));
  EXPECT_EQ(to, DayOf(2026, 6, 1));
  EXPECT_EQ(calendar.CurrentDate(), DayOf(2026, 6, 1));
}

TEST_F(CalendarTest, ACancelledChangeLeavesTheDate) {
  calendar.SetCurrentDate(DayOf(2026, 5, 3));
  heard.clear();
  cancel = true;
  calendar.SetCurrentDate(DayOf(2026, 6, 1));
  EXPECT_EQ(calendar.CurrentDate(), DayOf(2026, 5, 3));
  EXPECT_THAT(heard, ElementsAre("will change"));
}

TEST_F(CalendarTest, TheSameDateIsToldAgain) {
  calendar.SetCurrentDate(DayOf(2026, 5, 3));
  heard.clear();
  calendar.SetCurrentDate(DayOf(2026, 5, 3));
  EXPECT_THAT(heard, ElementsAre("will change", "changed", "date change"));
}

TEST_F(CalendarTest, HighlightsAreShownByARedraw) {
  calendar.SetHighlight(1, true);
  calendar.SetHighlight(31, true);
  EXPECT_THAT(heard, IsEmpty());
  calendar.Redraw();
  EXPECT_THAT(heard, ElementsAre("changed"));
  EXPECT_TRUE(calendar.Highlight(1));
  EXPECT_FALSE(calendar.Highlight(30));
  EXPECT_TRUE(calendar.Highlight(31));
}

TEST_F(CalendarTest, NoMonthHasAThirtySecondDay) {
  EXPECT_ANY_THROW(calendar.SetHighlight(32, true));
}

}  // namespace
}  // namespace dayvane::controls
