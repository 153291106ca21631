#include <QCalendarWidget>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>
#include <gmock/gmock.h>

#include "linux/widgets/MainWindow.h"
#include "tests/support/MainWindow.h"

namespace dayvane::widgets {
namespace {

using ::testing::IsEmpty;

/// The program's window over a temporary folder, filled with two days of documents.
class MainWindowTest : public ::testing::Test {
 protected:
  MainWindowTest() {
    m_program.desktop.OpenDocument("Z:\\home\\ana\\Old.odt", "2026-11-20 09:15:00");
    m_program.desktop.OpenDocument("Z:\\home\\ana\\New.odt", "2026-11-21 09:15:00");
    m_program.Load();
    m_main.form.SetVisible(true);
    (void)QTest::qWaitForWindowActive(&m_window);
  }

  template <class Widget>
  Widget& Find(const char* spokenName) {
    for (Widget* widget : m_window.findChildren<Widget*>())
      if (widget->accessibleName() == QLatin1String(spokenName)) return *widget;
    throw std::runtime_error(spokenName);
  }

  QRect PlaceOf(const QWidget& widget) const {
    return {widget.mapTo(m_window.centralWidget(), QPoint()), widget.size()};
  }

  testing::MainWindow m_program;
  FMain& m_main = m_program.window;
  Icons m_icons;
  MainWindow m_window{m_main, m_icons, m_program.desktop.dates};
};

TEST_F(MainWindowTest, TheCalendarIsAboveTheDaysAndTheListToTheirRight) {
  const QRect calendar = PlaceOf(Find<QCalendarWidget>("Calendar"));
  const QRect days = PlaceOf(Find<QTreeView>("Days"));
  const QRect list = PlaceOf(Find<QTreeView>("Documents of the day"));

  EXPECT_GT(days.top(), calendar.bottom());
  EXPECT_GT(list.left(), calendar.right());
  EXPECT_GT(list.left(), days.right());
}

TEST_F(MainWindowTest, TheListOfTheShownViewHasTheKeyboard) {
  EXPECT_TRUE(Find<QTreeView>("Documents of the day").hasFocus());

  m_main.SetActiveView(FMain::kFavoritesView);
  EXPECT_TRUE(Find<QTreeView>("Favorites").hasFocus());

  m_main.SetActiveView(FMain::kDailyView);
  EXPECT_TRUE(Find<QTreeView>("Documents of the day").hasFocus());
}

TEST_F(MainWindowTest, NothingReachesPastTheEdgeOrOverTheStatusBar) {
  const QRect client = m_window.centralWidget()->rect();
  const QRect status = PlaceOf(*m_window.findChild<QStatusBar*>());
  const QRect days = PlaceOf(Find<QTreeView>("Days"));
  const QRect list = PlaceOf(Find<QTreeView>("Documents of the day"));

  EXPECT_EQ(status.bottom(), client.bottom());
  EXPECT_LT(list.right(), client.right());
  EXPECT_LT(list.bottom(), status.top());
  EXPECT_EQ(days.bottom(), list.bottom());
}

TEST_F(MainWindowTest, ThePanesFollowTheWindow) {
  m_window.resize(700, 500);
  QCoreApplication::processEvents();

  const QRect list = PlaceOf(Find<QTreeView>("Documents of the day"));

  EXPECT_EQ(list.right(), m_window.centralWidget()->width() - 2);
  EXPECT_EQ(PlaceOf(*m_window.findChild<QStatusBar*>()).width(), m_window.centralWidget()->width());
}

TEST_F(MainWindowTest, TheSmallestWindowFitsASmallScreen) {
  EXPECT_LE(m_window.minimumSizeHint().width(), 640);
  EXPECT_LE(m_window.minimumSizeHint().height(), 480);
}

TEST_F(MainWindowTest, TheFavoritesTakeTheWholeWidth) {
  m_main.SetActiveView(FMain::kFavoritesView);
  QCoreApplication::processEvents();

  const QRect list = PlaceOf(Find<QTreeView>("Favorites"));

  EXPECT_FALSE(Find<QCalendarWidget>("Calendar").isVisible());
  EXPECT_EQ(list.left(), 1);
  EXPECT_EQ(list.right(), m_window.centralWidget()->width() - 2);
}

TEST_F(MainWindowTest, OpensAtTheLatestDay) {
  EXPECT_EQ(Find<QCalendarWidget>("Calendar").selectedDate(), QDate(2026, 11, 21));
  EXPECT_EQ(Find<QTreeView>("Documents of the day").model()->index(0, 0).data().toString(), "New.odt");
}

TEST_F(MainWindowTest, ADayOfTheCalendarShowsItsDocumentsAndItsNode) {
  Find<QCalendarWidget>("Calendar").setSelectedDate({2026, 11, 20});

  EXPECT_EQ(Find<QTreeView>("Documents of the day").model()->index(0, 0).data().toString(), "Old.odt");
  EXPECT_EQ(Find<QTreeView>("Days").currentIndex().data().toString(), "20");
}

TEST_F(MainWindowTest, EverythingThatTakesTheKeyboardHasASpokenName) {
  QStringList nameless;
  for (const QWidget* widget : m_window.findChildren<QWidget*>()) {
    const bool takesKeyboard = widget->isVisible() && widget->focusPolicy() != Qt::NoFocus;
    const bool ofTheCalendar = widget->parent() != nullptr && widget->parent()->inherits("QCalendarWidget");
    const bool ofTheCalendarsBar = widget->inherits("QToolButton") || widget->inherits("QSpinBox");
    if (takesKeyboard && widget->focusProxy() == nullptr && !ofTheCalendar && !ofTheCalendarsBar &&
        widget->accessibleName().isEmpty())
      nameless << QString::fromLatin1(widget->metaObject()->className());
  }

  EXPECT_THAT(nameless, IsEmpty());
}

TEST_F(MainWindowTest, TheTabKeyGoesFromTheCalendarToTheDaysToTheDocuments) {
  Find<QTreeView>("Days").setFocus();

  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);

  EXPECT_EQ(QApplication::focusWidget(), &Find<QTreeView>("Documents of the day"));
}

}  // namespace
}  // namespace dayvane::widgets
