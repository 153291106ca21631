// SPDX-License-Identifier: MIT
#include <QHeaderView>
#include <QMenu>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <gmock/gmock.h>

#include "linux/forms/Appearance.h"
#include "linux/widgets/CalendarPresenter.h"
#include "linux/widgets/DayWords.h"

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

/// A calendar whose control stands on Wednesday, 20 May 2026, in a window of its own.
class CalendarPresenterTest : public ::testing::Test {
 protected:
  CalendarPresenterTest() {
    m_control.SetCurrentDate(Day(2026, 5, 20));
    m_control.DateChange.Connect([this](Calendar::Day, Calendar::Day to) { m_changes.push_back(to); });
  }

  /// A calendar that is shown, on a day long past today's, so that no ring is drawn.
  void Present(Qt::DayOfWeek firstDayOfWeek = Qt::Monday) {
    m_presenter.emplace(m_control, firstDayOfWeek, nullptr, [this] { return m_today; });
    m_presenter->resize(350, 250);
    m_presenter->show();
    (void)QTest::qWaitForWindowActive(&*m_presenter);
    Days().setFocus();
    m_changes.clear();
  }

  template <class Widget>
  Widget& Find(const char* spokenName) {
    for (Widget* widget : m_presenter->findChildren<Widget*>())
      if (widget->accessibleName() == QLatin1String(spokenName)) return *widget;
    throw std::runtime_error(spokenName);
  }

  QTableView& Days() { return Find<QTableView>("Days of the month"); }
  QSpinBox& Year() { return Find<QSpinBox>("Year"); }
  QString ShownDay() { return Days().currentIndex().data(Qt::AccessibleTextRole).toString(); }

  void Press(int key) { QTest::keyClick(&Days(), static_cast<Qt::Key>(key)); }
  void Click(const QModelIndex& cell) {
    QTest::mouseClick(Days().viewport(), Qt::LeftButton, {}, Days().visualRect(cell).center());
  }
  void ClickButton(const char* spokenName) { QTest::mouseClick(&Find<QToolButton>(spokenName), Qt::LeftButton); }

  void TurnWheel(int delta) {
    const QPointF centre = Days().viewport()->rect().center();
    QWheelEvent event(centre, Days().viewport()->mapToGlobal(centre), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(Days().viewport(), &event);
  }

  QRect Cell(int row, int column) {
    const QRect cell = Days().visualRect(Days().model()->index(row, column));
    return cell.translated(Days().viewport()->mapTo(&*m_presenter, QPoint()));
  }
  QImage Picture() { return m_presenter->grab().toImage(); }
  QColor At(QPoint point) { return Picture().pixelColor(point); }

  QDate m_today{1999, 12, 31};
  Calendar m_control;
  std::vector<Calendar::Day> m_changes{};
  std::optional<CalendarPresenter> m_presenter;
};

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

TEST_F(CalendarPresenterTest, TheMonthStandsAboveItsDays) {
  Present();
  EXPECT_EQ(Find<QToolButton>("May").text(), "May");
  EXPECT_TRUE(Find<QToolButton>("May").font().bold());
  EXPECT_EQ(Days().model()->index(0, 4).data(), "1") << "Friday";
  EXPECT_EQ(Days().model()->index(0, 0).data(), "27") << "Monday of the last week of April";
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

TEST_F(CalendarPresenterTest, AHighlightIsSeenWithoutColours) {
  Present();
  const QImage plain = Picture().convertToFormat(QImage::Format_Mono);

  m_control.SetHighlight(3, true);
  m_control.Redraw();
  EXPECT_NE(Picture().convertToFormat(QImage::Format_Mono), plain);

  m_control.SetHighlight(3, false);
  m_control.Redraw();
  EXPECT_EQ(Picture().convertToFormat(QImage::Format_Mono), plain);
}

TEST_F(CalendarPresenterTest, ADayOfAnotherMonthIsNotHighlighted) {
  Present();
  const QImage plain = Picture().copy(Cell(0, 0));  // 27 April

  m_control.SetHighlight(27, true);
  m_control.Redraw();

  EXPECT_EQ(Picture().copy(Cell(0, 0)), plain);
}

TEST_F(CalendarPresenterTest, TodayHasARingThatComesWithTheNewDay) {
  Present();
  const QImage plain = Picture().copy(Cell(1, 1));  // 5 May

  m_today = {2026, 5, 5};
  Days().viewport()->update();

  EXPECT_NE(Picture().copy(Cell(1, 1)), plain);

  m_today = {2026, 5, 6};
  Days().viewport()->update();

  EXPECT_EQ(Picture().copy(Cell(1, 1)), plain);
}

TEST_F(CalendarPresenterTest, TheWeekBeginsAsTheUserIsUsedTo) {
  Present(Qt::Saturday);
  EXPECT_EQ(Days().model()->headerData(0, Qt::Horizontal).toString(), "Sat");
  EXPECT_EQ(Days().model()->index(0, 6).data(), "1") << "Friday";
}

TEST_F(CalendarPresenterTest, CellsAreLargeEnoughToHit) {
  Present();
  m_presenter->resize(m_presenter->sizeHint());
  QCoreApplication::processEvents();
  EXPECT_GE(Cell(0, 0).width(), 24);
  EXPECT_GE(Cell(0, 0).height(), 24);
}

TEST_F(CalendarPresenterTest, EachDayIsSpokenWithTheNumberOfItsDocuments) {
  m_control.DocumentsWanted.Connect(
      [](Calendar::Day day, std::size_t& count) { count = day == Day(2026, 5, 21) ? 8 : day == Day(2026, 5, 22); });
  Present();

  QStringList spoken;
  for (int i = 0; i < 3; ++i) {
    spoken.push_back(ShownDay());
    Press(Qt::Key_Right);
  }

  EXPECT_THAT(spoken,
              ElementsAre(DayWords(Day(2026, 5, 20)) + ", no documents", DayWords(Day(2026, 5, 21)) + ", 8 documents",
                          DayWords(Day(2026, 5, 22)) + ", 1 document"));
}

TEST_F(CalendarPresenterTest, WeekdaysAreSpokenByTheirWholeNames) {
  Present();
  EXPECT_EQ(Days().model()->headerData(0, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Monday");
}

/// The colour in the corner of a day's cell: of its frame or of what fills it.
class ListedDayTest : public CalendarPresenterTest {
 protected:
  ListedDayTest() {
    Present();
    m_control.SetHighlight(18, true);
    m_control.SetListedDay(Day(2026, 5, 18));
  }

  QRect Listed() { return Cell(3, 0); }  ///< Monday, 18 May 2026
  QRect Chosen() { return Cell(3, 2); }  ///< Wednesday, 20 May
};

TEST_F(ListedDayTest, TheDayOfTheListIsFilledAndAChosenDayWithoutDocumentsOnlyFramed) {
  const QColor highlight = m_presenter->palette().color(QPalette::Highlight);
  const QColor base = m_presenter->palette().color(QPalette::Base);

  EXPECT_EQ(At(Listed().topLeft() + QPoint(4, 4)), highlight);
  EXPECT_EQ(At(Chosen().topLeft() + QPoint(4, 4)), base);
  EXPECT_EQ(At(Chosen().topLeft() + QPoint(1, 1)), highlight) << "the frame";
}

TEST_F(ListedDayTest, WithoutTheKeyboardTheDayOfTheListIsGrey) {
  Year().setFocus();
  EXPECT_EQ(At(Listed().topLeft() + QPoint(4, 4)), MutedSelection(m_presenter->palette()));
}

TEST_F(ListedDayTest, TheCalendarSaysThatTheChosenDayHasNoDocumentsAndWhichDayIsListed) {
  const QString text = QStringLiteral("No documents on %1. The list is of %2.")
                           .arg(DayWords(Day(2026, 5, 20)), DayWords(Day(2026, 5, 18)));
  EXPECT_EQ(m_presenter->toolTip(), text);
  EXPECT_EQ(Days().accessibleDescription(), text);
}

TEST_F(ListedDayTest, OnTheDayOfTheListThereIsNothingToExplain) {
  m_control.SetCurrentDate(Day(2026, 5, 18));
  EXPECT_EQ(m_presenter->toolTip(), "");
  EXPECT_EQ(At(Listed().topLeft() + QPoint(4, 4)), m_presenter->palette().color(QPalette::Highlight));
}

TEST_F(ListedDayTest, WhenNoDayIsListedTheCalendarSaysSo) {
  m_control.SetListedDay(std::nullopt);
  EXPECT_TRUE(m_presenter->toolTip().endsWith("No day is listed."));
}

}  // namespace
}  // namespace dayvane::widgets
