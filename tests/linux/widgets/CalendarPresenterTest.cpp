// SPDX-License-Identifier: MIT
#include <QMenu>
#include <gmock/gmock.h>

#include "linux/widgets/DayWords.h"
#include "tests/linux/widgets/CalendarTest.h"

namespace dayvane::widgets {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::IsEmpty;
using ::testing::Le;

using CalendarPresenterTest = CalendarTest;

TEST_F(CalendarPresenterTest, ShowsTheCurrentDateWithoutChangingIt) {
  Present();

  m_control.SetCurrentDate(Day(2026, 6, 1));

  EXPECT_EQ(ShownDay(), DayWords(Day(2026, 6, 1)) + ", no documents");
  EXPECT_EQ(Year().value(), 2026);
  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 1)));
}

TEST_F(CalendarPresenterTest, ACalendarWithoutADateShowsToday) {
  Calendar fresh;

  const CalendarPresenter presenter(fresh, Qt::Monday);

  const auto* days = presenter.findChild<QTableView*>();
  EXPECT_EQ(days->currentIndex().data().toInt(), QDate::currentDate().day());
  EXPECT_EQ(presenter.findChild<QSpinBox*>()->value(), QDate::currentDate().year());
  EXPECT_EQ(fresh.CurrentDate(), Calendar::Day{});
}

TEST_F(CalendarPresenterTest, TheCurrentDayCanBeChosenAgain) {
  Present();

  Click(Days().currentIndex());
  Press(Qt::Key_Return);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 20), Day(2026, 5, 20)));
}

TEST_F(CalendarPresenterTest, AClickOnAnotherDayIsOneChange) {
  Present();

  Click(Days().currentIndex().siblingAtColumn(3));

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21)));
}

TEST_F(CalendarPresenterTest, AClickOnADayOfTheMonthBeforeGoesThere) {
  Present();

  Click(Days().model()->index(0, 0));

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 4, 27)));
  EXPECT_EQ(Days().currentIndex(), Days().model()->index(4, 0));
}

TEST_F(CalendarPresenterTest, TheArrowKeysMoveByDays) {
  Present();

  for (const int key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) Press(key);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21), Day(2026, 5, 28), Day(2026, 5, 27), Day(2026, 5, 20)));
}

TEST_F(CalendarPresenterTest, WhereOneReadsFromTheRightTheArrowKeysGoTheOtherWay) {
  Present();
  m_presenter->setLayoutDirection(Qt::RightToLeft);

  Press(Qt::Key_Left);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21)));
}

TEST_F(CalendarPresenterTest, TheArrowKeysGoOnIntoTheNextMonth) {
  m_control.SetCurrentDate(Day(2026, 5, 31));
  Present();

  Press(Qt::Key_Right);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 1)));
  EXPECT_EQ(Find<QToolButton>("June").text(), "June");
}

TEST_F(CalendarPresenterTest, HomeAndEndAreTheFirstAndTheLastDayOfTheMonth) {
  Present();

  Press(Qt::Key_Home);
  Press(Qt::Key_End);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 1), Day(2026, 5, 31)));
}

TEST_F(CalendarPresenterTest, PageUpAndPageDownGoByMonths) {
  Present();

  Press(Qt::Key_PageDown);
  Press(Qt::Key_PageUp);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 20), Day(2026, 5, 20)));
}

TEST_F(CalendarPresenterTest, GoingToAnotherMonthMovesTheDateThere) {
  Present();

  ClickButton("Next month");
  Year().setValue(2025);
  ClickButton("Previous month");

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 20), Day(2025, 6, 20), Day(2025, 5, 20)));
}

TEST_F(CalendarPresenterTest, AMonthCanBeChosenByItsName) {
  Present();

  m_presenter->findChildren<QMenu*>().first()->actions().at(11)->trigger();

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 12, 20)));
}

TEST_F(CalendarPresenterTest, TheWheelGoesByMonths) {
  Present();

  TurnWheel(-60);
  EXPECT_THAT(m_changes, IsEmpty()) << "half a notch";
  TurnWheel(-60);
  TurnWheel(120);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 20), Day(2026, 5, 20)));
}

TEST_F(CalendarPresenterTest, AYearBeforeTheFirstCannotBeTyped) {
  Present();

  Year().selectAll();
  QTest::keyClicks(&Year(), "-4");
  QTest::keyClick(&Year(), Qt::Key_Return);
  Year().setValue(-4);

  EXPECT_GE(Year().minimum(), 100);
  EXPECT_LE(Year().maximum(), 9999);
  EXPECT_THAT(m_changes, Each(Ge(Day(100, 1, 1))));
}

TEST_F(CalendarPresenterTest, AYearIsGoneToOnlyWhenItIsTypedWhole) {
  Present();

  Year().selectAll();
  QTest::keyClicks(&Year(), "2024");
  EXPECT_THAT(m_changes, IsEmpty());
  QTest::keyClick(&Year(), Qt::Key_Return);

  EXPECT_THAT(m_changes, ElementsAre(Day(2024, 5, 20)));
}

TEST_F(CalendarPresenterTest, TheFirstDayIsTheLastThatOneCanGoBackTo) {
  m_control.SetCurrentDate(Day(100, 1, 20));
  Present();

  ClickButton("Previous month");
  Press(Qt::Key_PageUp);
  TurnWheel(120);
  for (int i = 0; i < 25; ++i) Press(Qt::Key_Left);

  EXPECT_EQ(m_control.CurrentDate(), Day(100, 1, 1));
  EXPECT_EQ(ShownDay(), DayWords(Day(100, 1, 1)) + ", no documents");
  EXPECT_THAT(m_changes, Each(Ge(Day(100, 1, 1))));
}

TEST_F(CalendarPresenterTest, NoYearOfFiveDigitsCanBeGoneTo) {
  m_control.SetCurrentDate(Day(9999, 12, 20));
  Present();

  ClickButton("Next month");
  TurnWheel(-120);
  for (int i = 0; i < 25; ++i) Press(Qt::Key_Right);
  Press(Qt::Key_Down);

  EXPECT_EQ(m_control.CurrentDate(), Day(9999, 12, 31));
  EXPECT_THAT(m_changes, Each(Le(Day(9999, 12, 31))));
}

TEST_F(CalendarPresenterTest, AShorterMonthMovesTheDateToItsLastDay) {
  m_control.SetCurrentDate(Day(2026, 5, 31));
  Present();

  ClickButton("Next month");

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 30)));
}

TEST_F(CalendarPresenterTest, ADateThatTheProgramRefusesIsNotShown) {
  m_control.WillChangeDate.Connect([](Calendar::Day, Calendar::Day, bool& cancel) { cancel = true; });
  Present();

  Press(Qt::Key_Right);
  ClickButton("Next month");

  EXPECT_EQ(Days().currentIndex().data(), "20");
  EXPECT_EQ(Find<QToolButton>("May").text(), "May");
  EXPECT_THAT(m_changes, IsEmpty());
}

}  // namespace
}  // namespace dayvane::widgets
