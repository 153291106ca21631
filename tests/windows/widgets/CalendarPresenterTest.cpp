// SPDX-License-Identifier: MIT
#include <array>
#include <gmock/gmock.h>
#include <optional>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/CalendarPresenter.h"
#include "windows/widgets/SystemDay.h"

namespace dayvane::widgets {
namespace {

using controls::Calendar;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::chrono_literals;

Calendar::Day DayOf(std::chrono::year_month_day date) {
  return Calendar::Day{date};
}

/// A calendar of November 2026 in a window of its own.
class WindowsCalendarTest : public ::testing::Test {
 protected:
  WindowsCalendarTest() {
    m_control.SetCurrentDate(DayOf(2026y / 11 / 20));
    m_control.DateChange.Connect([this](Calendar::Day, Calendar::Day day) { m_changes.emplace_back(day); });
    const SIZE size = m_presenter.IdealSize();
    MoveWindow(m_presenter.Handle(), 0, 0, size.cx, size.cy, TRUE);
    SetFocus(m_presenter.Handle());
    HandleMessages();
  }

  std::chrono::year_month_day Shown() const {
    SYSTEMTIME day{};
    SendMessageW(m_presenter.Handle(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&day));
    return std::chrono::year_month_day(FromSystemDay(day));
  }

  /// The middle of the place that a part of the calendar has.
  POINT PlaceOf(DWORD part) const {
    RECT room{};
    GetClientRect(m_presenter.Handle(), &room);
    for (LONG y = 0; y < room.bottom; ++y) {
      for (LONG x = 0; x < room.right; ++x) {
        MCHITTESTINFO hit{};
        hit.cbSize = sizeof hit;
        hit.pt = {x, y};
        SendMessageW(m_presenter.Handle(), MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.uHit == part) return {x + 2, y + 2};
      }
    }
    return {};
  }

  POINT PlaceOfDay(std::chrono::year_month_day day) const {
    RECT room{};
    GetClientRect(m_presenter.Handle(), &room);
    for (LONG y = 0; y < room.bottom; y += 2) {
      for (LONG x = 0; x < room.right; x += 2) {
        MCHITTESTINFO hit{};
        hit.cbSize = sizeof hit;
        hit.pt = {x, y};
        SendMessageW(m_presenter.Handle(), MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.uHit == MCHT_CALENDARDATE && std::chrono::year_month_day(FromSystemDay(hit.st)) == day)
          return {x + 2, y + 2};
      }
    }
    return {};
  }

  TestWindow m_window;
  Calendar m_control;
  CalendarPresenter m_presenter{m_control, 1, m_window.Handle(), m_window.CurrentLook()};
  std::vector<std::chrono::year_month_day> m_changes;
};

TEST_F(WindowsCalendarTest, TheCurrentDateIsShown) {
  EXPECT_EQ(Shown(), 2026y / 11 / 20);

  m_control.SetCurrentDate(DayOf(2024y / 2 / 29));

  EXPECT_EQ(Shown(), 2024y / 2 / 29);
  EXPECT_EQ(m_changes.size(), 1U);
}

TEST_F(WindowsCalendarTest, TheWeekBeginsAsTheUserIsUsedTo) {
  EXPECT_EQ(LOWORD(SendMessageW(m_presenter.Handle(), MCM_GETFIRSTDAYOFWEEK, 0, 0)), 0);
  const CalendarPresenter sunday(m_control, 7, m_window.Handle(), m_window.CurrentLook());

  EXPECT_EQ(LOWORD(SendMessageW(sunday.Handle(), MCM_GETFIRSTDAYOFWEEK, 0, 0)), 6);
}

TEST_F(WindowsCalendarTest, AClickOnADayGoesThereOnce) {
  MouseClick(m_presenter.Handle(), PlaceOfDay(2026y / 11 / 12));

  EXPECT_THAT(m_changes, ElementsAre(2026y / 11 / 12));
}

TEST_F(WindowsCalendarTest, AClickOnTheDayThatIsChosenAlreadyChoosesItAgain) {
  MouseClick(m_presenter.Handle(), PlaceOfDay(2026y / 11 / 20));

  EXPECT_THAT(m_changes, ElementsAre(2026y / 11 / 20));
}

TEST_F(WindowsCalendarTest, TheArrowOfTheNextMonthMovesTheDateThere) {
  MouseClick(m_presenter.Handle(), PlaceOf(MCHT_TITLEBTNNEXT));

  ASSERT_FALSE(m_changes.empty());
  EXPECT_EQ(m_changes.front().month(), std::chrono::December);
  EXPECT_EQ(Shown().month(), std::chrono::December);
}

TEST_F(WindowsCalendarTest, TheProgramMayRefuseADay) {
  m_control.WillChangeDate.Connect([](Calendar::Day, Calendar::Day, bool& cancel) { cancel = true; });

  MouseClick(m_presenter.Handle(), PlaceOfDay(2026y / 11 / 12));

  EXPECT_EQ(Shown(), 2026y / 11 / 20);
  EXPECT_THAT(m_changes, IsEmpty());
}

TEST_F(WindowsCalendarTest, ADayThatIsChosenInTheMiddleOfWorkWaits) {
  std::optional<controls::WorkScope> work(std::in_place);
  MouseClick(m_presenter.Handle(), PlaceOfDay(2026y / 11 / 12));
  EXPECT_THAT(m_changes, IsEmpty());

  work.reset();
  controls::ActOnDeferred();

  EXPECT_THAT(m_changes, ElementsAre(2026y / 11 / 12));
}

/// What the calendar asks when it goes to another month.
TEST_F(WindowsCalendarTest, TheBoldDaysOfAMonthAreTheHighlightedOnes) {
  m_control.SetHighlight(3, true);
  m_control.SetHighlight(30, true);
  NMDAYSTATE asked{};
  asked.nmhdr = {m_presenter.Handle(), 0, 0U - 747U};
  asked.stStart = ToSystemDay(DayOf(2026y / 10 / 1));
  asked.cDayState = 3;

  SendMessageW(m_window.Handle(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&asked));

  ASSERT_NE(asked.prgDayState, nullptr);
  EXPECT_EQ(asked.prgDayState[0], 0U);
  EXPECT_EQ(asked.prgDayState[1], 1U << 2 | 1U << 29);
  EXPECT_EQ(asked.prgDayState[2], 0U);
}

TEST_F(WindowsCalendarTest, InMoreRoomThereIsStillOneMonth) {
  const SIZE size = m_presenter.IdealSize();

  MoveWindow(m_presenter.Handle(), 0, 0, 3 * size.cx, 2 * size.cy, TRUE);

  std::array<SYSTEMTIME, 2> range{};
  EXPECT_EQ(SendMessageW(m_presenter.Handle(), MCM_GETMONTHRANGE, GMR_VISIBLE, reinterpret_cast<LPARAM>(range.data())),
            1);
  RECT place{};
  GetWindowRect(m_presenter.Handle(), &place);
  MapWindowPoints(nullptr, m_window.Handle(), reinterpret_cast<POINT*>(&place), 2);
  EXPECT_EQ(place.left, size.cx);
}

TEST_F(WindowsCalendarTest, DaysAtTheEndsOfTimeDoNoHarm) {
  m_control.SetCurrentDate(Calendar::kFirstDay);
  m_control.SetCurrentDate(Calendar::kLastDay);

  EXPECT_EQ(Shown(), 9999y / 12 / 31);
}

TEST_F(WindowsCalendarTest, AScreenReaderHearsTheDayAndWhichOneIsListed) {
  m_control.SetListedDay(DayOf(2026y / 11 / 20));
  EXPECT_THAT(TextOf(m_presenter.Handle()), ::testing::MatchesRegex("Calendar, .*2026.*"));

  m_control.SetCurrentDate(DayOf(2026y / 11 / 21));

  EXPECT_THAT(TextOf(m_presenter.Handle()), ::testing::HasSubstr("No documents on "));
  EXPECT_THAT(TextOf(m_presenter.Handle()), ::testing::HasSubstr("The list is of "));
}

}  // namespace
}  // namespace dayvane::widgets
