// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QSpinBox>
#include <QTest>
#include <QTextCharFormat>
#include <QWheelEvent>
#include <gmock/gmock.h>

#include "linux/widgets/CalendarPresenter.h"

namespace dayvane::widgets {
namespace {

using controls::Calendar;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Ge;
using ::testing::IsEmpty;
using ::testing::Le;

Calendar::Day Day(int year, unsigned month, unsigned day) {
  return std::chrono::local_days{std::chrono::year{year} / static_cast<int>(month) / static_cast<int>(day)};
}

class CalendarPresenterTest : public ::testing::Test {
 protected:
  CalendarPresenterTest() {
    m_control.SetCurrentDate(Day(2026, 5, 20));
    m_control.DateChange.Connect([this](Calendar::Day, Calendar::Day to) { m_changes.push_back(to); });
  }

  static void TurnWheel(QAbstractItemView& days, int delta) {
    const QPointF centre = days.viewport()->rect().center();
    QWheelEvent event(centre, days.viewport()->mapToGlobal(centre), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(days.viewport(), &event);
  }

  Calendar m_control;
  std::vector<Calendar::Day> m_changes{};
};

TEST_F(CalendarPresenterTest, ShowsTheCurrentDateWithoutChangingIt) {
  const CalendarPresenter presenter(m_control, Qt::Monday);

  m_control.SetCurrentDate(Day(2026, 6, 1));

  EXPECT_EQ(presenter.selectedDate(), QDate(2026, 6, 1));
  EXPECT_EQ(presenter.monthShown(), 6);
  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 1)));
}

TEST_F(CalendarPresenterTest, ACalendarWithoutADateShowsToday) {
  Calendar fresh;

  const CalendarPresenter presenter(fresh, Qt::Monday);

  EXPECT_EQ(presenter.selectedDate(), QDate::currentDate());
  EXPECT_EQ(fresh.CurrentDate(), Calendar::Day{});
}

TEST_F(CalendarPresenterTest, ADayThatTheUserChoosesIsTheCurrentDate) {
  CalendarPresenter presenter(m_control, Qt::Monday);

  presenter.setSelectedDate({2026, 5, 21});

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21)));
}

TEST_F(CalendarPresenterTest, TheCurrentDayCanBeChosenAgain) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* days = presenter.findChild<QAbstractItemView*>();

  QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(days->currentIndex()).center());

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 20)));
}

TEST_F(CalendarPresenterTest, AClickOnAnotherDayIsOneChange) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* days = presenter.findChild<QAbstractItemView*>();
  const QModelIndex next = days->currentIndex().siblingAtColumn(days->currentIndex().column() + 1);

  QTest::mouseClick(days->viewport(), Qt::LeftButton, {}, days->visualRect(next).center());

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21)));
}

TEST_F(CalendarPresenterTest, TheArrowKeysMoveByDays) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* days = presenter.findChild<QAbstractItemView*>();

  QTest::keyClick(days, Qt::Key_Right);
  QTest::keyClick(days, Qt::Key_Down);

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 5, 21), Day(2026, 5, 28)));
}

TEST_F(CalendarPresenterTest, GoingToAnotherMonthMovesTheDateThere) {
  CalendarPresenter presenter(m_control, Qt::Monday);

  presenter.showNextMonth();
  presenter.showPreviousYear();

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 20), Day(2025, 6, 20)));
}

TEST_F(CalendarPresenterTest, AYearBeforeTheFirstCannotBeTyped) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* year = presenter.findChild<QSpinBox*>();

  year->selectAll();
  QTest::keyClicks(year, "-4");
  QTest::keyClick(year, Qt::Key_Return);
  year->setValue(-4);

  EXPECT_GE(year->minimum(), 100);
  EXPECT_GE(presenter.selectedDate(), QDate(100, 1, 1));
  EXPECT_THAT(m_changes, Each(Ge(Day(100, 1, 1))));
}

TEST_F(CalendarPresenterTest, TheFirstDayIsTheLastThatOneCanGoBackTo) {
  m_control.SetCurrentDate(Day(100, 1, 20));
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* days = presenter.findChild<QAbstractItemView*>();
  m_changes.clear();

  presenter.showPreviousMonth();
  presenter.showPreviousYear();
  QTest::keyClick(days, Qt::Key_PageUp);
  TurnWheel(*days, 120);
  for (int i = 0; i < 25; ++i) QTest::keyClick(days, Qt::Key_Left);

  EXPECT_EQ(m_control.CurrentDate(), Day(100, 1, 1));
  EXPECT_EQ(presenter.selectedDate(), QDate(100, 1, 1));
  EXPECT_THAT(m_changes, Each(Ge(Day(100, 1, 1))));
}

TEST_F(CalendarPresenterTest, NoYearOfFiveDigitsCanBeGoneTo) {
  m_control.SetCurrentDate(Day(9999, 12, 20));
  CalendarPresenter presenter(m_control, Qt::Monday);
  presenter.show();
  auto* days = presenter.findChild<QAbstractItemView*>();
  m_changes.clear();

  presenter.showNextMonth();
  presenter.showNextYear();
  TurnWheel(*days, -120);
  for (int i = 0; i < 25; ++i) QTest::keyClick(days, Qt::Key_Right);

  EXPECT_EQ(presenter.maximumDate(), QDate(9999, 12, 31));
  EXPECT_EQ(m_control.CurrentDate(), Day(9999, 12, 31));
  EXPECT_THAT(m_changes, Each(Le(Day(9999, 12, 31))));
}

TEST_F(CalendarPresenterTest, AShorterMonthMovesTheDateToItsLastDay) {
  m_control.SetCurrentDate(Day(2026, 5, 31));
  CalendarPresenter presenter(m_control, Qt::Monday);
  m_changes.clear();

  presenter.showNextMonth();

  EXPECT_THAT(m_changes, ElementsAre(Day(2026, 6, 30)));
}

TEST_F(CalendarPresenterTest, ADateThatTheProgramRefusesIsNotShown) {
  m_control.WillChangeDate.Connect([](Calendar::Day, Calendar::Day, bool& cancel) { cancel = true; });
  CalendarPresenter presenter(m_control, Qt::Monday);

  presenter.setSelectedDate({2026, 5, 21});

  EXPECT_EQ(presenter.selectedDate(), QDate(2026, 5, 20));
  EXPECT_THAT(m_changes, IsEmpty());
}

TEST_F(CalendarPresenterTest, HighlightedDaysOfTheMonthStandOutWhenDrawnAgain) {
  const CalendarPresenter presenter(m_control, Qt::Monday);
  m_control.SetHighlight(3, true);
  m_control.SetHighlight(31, true);

  m_control.Redraw();

  EXPECT_TRUE(presenter.IsHighlighted({2026, 5, 3}));
  EXPECT_FALSE(presenter.IsHighlighted({2026, 5, 4}));
  EXPECT_FALSE(presenter.IsHighlighted({2026, 6, 3}));
  EXPECT_EQ(presenter.dateTextFormat({2026, 5, 3}).fontWeight(), QFont::Bold);
}

TEST_F(CalendarPresenterTest, DaysThatAreNoLongerHighlightedArePlain) {
  m_control.SetHighlight(3, true);
  const CalendarPresenter presenter(m_control, Qt::Monday);

  m_control.SetHighlight(3, false);
  m_control.Redraw();

  EXPECT_THAT(presenter.dateTextFormat(), IsEmpty());
}

TEST_F(CalendarPresenterTest, AHighlightIsSeenWithoutColours) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  const QImage plain = presenter.grab().toImage().convertToFormat(QImage::Format_Mono);

  m_control.SetHighlight(3, true);
  m_control.Redraw();

  EXPECT_NE(presenter.grab().toImage().convertToFormat(QImage::Format_Mono), plain);
}

TEST_F(CalendarPresenterTest, TheWeekBeginsAsTheUserIsUsedTo) {
  EXPECT_EQ(CalendarPresenter(m_control, Qt::Saturday).firstDayOfWeek(), Qt::Saturday);
}

TEST_F(CalendarPresenterTest, TheWeekendCanBeReadOnADarkBackground) {
  CalendarPresenter presenter(m_control, Qt::Monday);
  const QColor light = presenter.weekdayTextFormat(Qt::Sunday).foreground().color();

  presenter.setPalette(QPalette(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::darkGray, Qt::white, Qt::black));

  EXPECT_GT(presenter.weekdayTextFormat(Qt::Sunday).foreground().color().lightness(), light.lightness());
}

/// The colour in the corner of a day's cell: of its frame or of what fills it.
class ListedDayTest : public CalendarPresenterTest {
 protected:
  ListedDayTest() {
    m_presenter.resize(350, 250);
    m_presenter.show();
    m_control.SetHighlight(18, true);
    m_control.SetListedDay(Day(2026, 5, 18));
  }

  QRect Cell(int row, int column) {
    auto& days = *m_presenter.findChild<QAbstractItemView*>();
    const QRect cell = days.visualRect(days.model()->index(row, column));
    return cell.translated(days.viewport()->mapTo(&m_presenter, QPoint()));
  }
  QColor At(QPoint point) { return m_presenter.grab().toImage().pixelColor(point); }

  CalendarPresenter m_presenter{m_control, Qt::Monday};
};

TEST_F(ListedDayTest, TheDayOfTheListIsFilledAndAChosenDayWithoutDocumentsOnlyFramed) {
  const QColor highlight = m_presenter.palette().color(QPalette::Highlight);
  const QColor base = m_presenter.palette().color(QPalette::Base);
  const QRect listed = Cell(4, 0);  // Monday, 18 May 2026, below the names of the weekdays
  const QRect chosen = Cell(4, 2);  // Wednesday, 20 May

  EXPECT_EQ(At(listed.topLeft() + QPoint(4, 4)), highlight);
  EXPECT_EQ(At(chosen.topLeft() + QPoint(4, 4)), base);
  EXPECT_EQ(At(chosen.topLeft() + QPoint(1, 1)), highlight) << "the frame";
}

TEST_F(ListedDayTest, TheCalendarSaysThatTheChosenDayHasNoDocumentsAndWhichDayIsListed) {
  const QLocale locale;
  const QString text = QStringLiteral("No documents on %1. The list is of %2.")
                           .arg(locale.toString(QDate(2026, 5, 20), QLocale::LongFormat),
                                locale.toString(QDate(2026, 5, 18), QLocale::LongFormat));
  EXPECT_EQ(m_presenter.toolTip(), text);
  EXPECT_EQ(m_presenter.findChild<QWidget*>("qt_calendar_calendarview")->accessibleDescription(), text);
}

TEST_F(ListedDayTest, OnTheDayOfTheListThereIsNothingToExplain) {
  m_control.SetCurrentDate(Day(2026, 5, 18));
  EXPECT_EQ(m_presenter.toolTip(), "");
  EXPECT_EQ(At(Cell(4, 0).topLeft() + QPoint(4, 4)), m_presenter.palette().color(QPalette::Highlight));
}

TEST_F(ListedDayTest, WhenNoDayIsListedTheCalendarSaysSo) {
  m_control.SetListedDay(std::nullopt);
  EXPECT_TRUE(m_presenter.toolTip().endsWith("No day is listed."));
}

}  // namespace
}  // namespace dayvane::widgets
