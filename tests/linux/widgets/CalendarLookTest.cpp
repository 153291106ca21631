// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "linux/widgets/Colours.h"
#include "linux/widgets/DayWords.h"
#include "tests/linux/widgets/CalendarTest.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;

using CalendarLookTest = CalendarTest;

TEST_F(CalendarLookTest, TheMonthStandsAboveItsDays) {
  Present();
  EXPECT_EQ(Find<QToolButton>("May").text(), "May");
  EXPECT_TRUE(Find<QToolButton>("May").font().bold());
  EXPECT_EQ(Days().model()->index(0, 4).data(), "1") << "Friday";
  EXPECT_EQ(Days().model()->index(0, 0).data(), "27") << "Monday of the last week of April";
}

TEST_F(CalendarLookTest, AHighlightIsSeenWithoutColours) {
  Present();
  const QImage plain = Picture().convertToFormat(QImage::Format_Mono);

  m_control.SetHighlight(3, true);
  m_control.Redraw();
  EXPECT_NE(Picture().convertToFormat(QImage::Format_Mono), plain);

  m_control.SetHighlight(3, false);
  m_control.Redraw();
  EXPECT_EQ(Picture().convertToFormat(QImage::Format_Mono), plain);
}

TEST_F(CalendarLookTest, ADayOfAnotherMonthIsNotHighlighted) {
  Present();
  const QImage plain = Picture().copy(Cell(0, 0));  // 27 April

  m_control.SetHighlight(27, true);
  m_control.Redraw();

  EXPECT_EQ(Picture().copy(Cell(0, 0)), plain);
}

TEST_F(CalendarLookTest, TodayHasARingThatComesWithTheNewDay) {
  Present();
  const QImage plain = Picture().copy(Cell(1, 1));  // 5 May

  m_today = {2026, 5, 5};
  Days().viewport()->update();

  EXPECT_NE(Picture().copy(Cell(1, 1)), plain);

  m_today = {2026, 5, 6};
  Days().viewport()->update();

  EXPECT_EQ(Picture().copy(Cell(1, 1)), plain);
}

TEST_F(CalendarLookTest, TheWeekBeginsAsTheUserIsUsedTo) {
  Present(Qt::Saturday);
  EXPECT_EQ(Days().model()->headerData(0, Qt::Horizontal).toString(), "Sat");
  EXPECT_EQ(Days().model()->index(0, 6).data(), "1") << "Friday";
}

TEST_F(CalendarLookTest, CellsAreLargeEnoughToHit) {
  Present();
  m_presenter->resize(m_presenter->sizeHint());
  QCoreApplication::processEvents();
  EXPECT_GE(Cell(0, 0).width(), 24);
  EXPECT_GE(Cell(0, 0).height(), 24);
}

TEST_F(CalendarLookTest, EachDayIsSpokenWithTheNumberOfItsDocuments) {
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

TEST_F(CalendarLookTest, WeekdaysAreSpokenByTheirWholeNames) {
  Present();
  EXPECT_EQ(Days().model()->headerData(0, Qt::Horizontal, Qt::AccessibleTextRole).toString(), "Monday");
}

/// The colour in the corner of a day's cell: of its frame or of what fills it.
class ListedDayTest : public CalendarTest {
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
