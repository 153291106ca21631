// SPDX-License-Identifier: MIT
#include <QCalendarWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QWhatsThis>
#include <gmock/gmock.h>

#include "linux/forms/Appearance.h"
#include "linux/forms/MainWindow.h"
#include "tests/support/MainWindow.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;
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

  /// Of everything that the window lays out itself and that is visible, once what was posted has happened, and what
  /// that posted in turn.
  std::vector<QRect> Places() {
    constexpr int kRounds = 10;
    for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
    return {PlaceOf(Find<QCalendarWidget>("Calendar")), PlaceOf(Find<QTreeView>("Days")),
            PlaceOf(Find<QTreeView>("Documents of the day")), PlaceOf(*m_window.findChild<QStatusBar*>())};
  }

  /// Whether the widget shows nothing but one colour in the window's picture.
  bool IsBlank(const QWidget& widget) {
    const QImage picture = m_window.grab({widget.mapTo(&m_window, QPoint()), widget.size()})
                               .toImage()
                               .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixel(x, y) != picture.pixel(0, 0)) return false;
    return true;
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
    if (takesKeyboard && widget->focusProxy() == nullptr && widget->accessibleName().isEmpty())
      nameless << QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
  }

  EXPECT_TRUE(nameless.isEmpty()) << nameless.join(u'\n').toStdString();
}

TEST_F(MainWindowTest, TheTabKeyGoesFromTheCalendarToTheDaysToTheDocuments) {
  Find<QTreeView>("Days").setFocus();

  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);

  EXPECT_EQ(QApplication::focusWidget(), &Find<QTreeView>("Documents of the day"));
}

/// Gives the program its style, palette and font back.
class UsualLook {
 public:
  UsualLook() = default;
  UsualLook(const UsualLook&) = delete;
  UsualLook& operator=(const UsualLook&) = delete;
  ~UsualLook() {
    QApplication::setStyle(m_style);
    QApplication::setPalette(m_palette);
    QApplication::setFont(m_font);
  }

 private:
  QString m_style = QApplication::style()->name();
  QPalette m_palette = QApplication::palette();
  QFont m_font = QApplication::font();
};

TEST_F(MainWindowTest, NothingGoesBlankWhenTheDesktopTurnsDarkOrOfHighContrastAndBack) {
  const UsualLook usual;
  Appearance appearance;
  const std::vector<QRect> places = Places();
  const auto isUnharmed = [&] {
    return Places() == places && !IsBlank(Find<QTreeView>("Days")) && !IsBlank(Find<QTreeView>("Documents of the day"));
  };
  ASSERT_TRUE(isUnharmed());

  for (const bool isSo : {true, false}) {
    appearance.SetDark(isSo);
    EXPECT_TRUE(isUnharmed()) << "dark: " << isSo;
    appearance.SetHighContrast(isSo);
    EXPECT_TRUE(isUnharmed()) << "high contrast: " << isSo;
  }
}

TEST_F(MainWindowTest, TheFavoritesFillTheirPaneAlsoWhenTheDesktopTurnedDarkMeanwhile) {
  const UsualLook usual;
  Appearance appearance;
  m_main.SetActiveView(FMain::kFavoritesView);
  Places();

  appearance.SetDark(true);
  Places();

  const QWidget& list = Find<QTreeView>("Favorites");
  EXPECT_EQ(PlaceOf(list).right(), m_window.centralWidget()->width() - 2);
  EXPECT_FALSE(IsBlank(list));
}

TEST_F(MainWindowTest, TheListsKeepTheirRoomWhenTheFontGrowsAndShrinksAgain) {
  const UsualLook usual;
  const std::vector<QRect> places = Places();
  const QFont usualFont = QApplication::font();
  QFont large = usualFont;
  large.setPointSizeF(large.pointSizeF() * 2);

  QApplication::setFont(large);
  const std::vector<QRect> enlarged = Places();
  EXPECT_GT(enlarged.at(0).height(), places.at(0).height());
  EXPECT_GT(enlarged.at(1).top(), enlarged.at(0).bottom());
  EXPECT_GE(enlarged.at(1).height(), 80);
  EXPECT_GE(enlarged.at(2).width(), 220);
  EXPECT_LT(enlarged.at(2).bottom(), enlarged.at(3).top());

  QApplication::setFont(usualFont);
  EXPECT_EQ(Places(), places);
}

TEST_F(MainWindowTest, TheListsKeepTheirRoomInEveryStyle) {
  const UsualLook usual;

  for (const QString& style : {QStringLiteral("Windows"), QStringLiteral("Fusion")}) {
    QApplication::setStyle(style);
    const std::vector<QRect> places = Places();
    EXPECT_GT(places.at(1).top(), places.at(0).bottom()) << style.toStdString();
    EXPECT_GE(places.at(1).height(), 80) << style.toStdString();
    EXPECT_GE(places.at(2).width(), 220) << style.toStdString();
  }
}

TEST_F(MainWindowTest, ASplitterThatTheUserDraggedStaysThereInAnotherStyle) {
  const UsualLook usual;
  const QPoint gap(PlaceOf(Find<QTreeView>("Days")).right() + 3, 100);
  QWidget& splitter = *m_window.centralWidget()->childAt(gap);
  QTest::mousePress(&splitter, Qt::LeftButton, {}, {1, 10});
  const QPointF to(splitter.mapToGlobal(QPoint(81, 10)));
  QMouseEvent drag(QEvent::MouseMove, {81, 10}, to, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&splitter, &drag);
  const std::vector<QRect> places = Places();
  ASSERT_EQ(places.at(1).right() + 3, gap.x() + 80);

  Appearance().SetDark(true);

  EXPECT_EQ(Places(), places);
}

TEST_F(MainWindowTest, EveryControlIsExplainedThatIsClickedInWhatsThisMode) {
  std::vector<int> topics;
  m_window.Presenter().SetTopicHelp([&](int id, QPoint) { topics.push_back(id); });
  const auto ask = [this](QWidget& widget) {
    m_main.form.WhatsThisMode();
    QTest::mouseClick(&widget, Qt::LeftButton);
    return QWhatsThis::inWhatsThisMode();
  };

  EXPECT_FALSE(ask(Find<QCalendarWidget>("Calendar")));
  EXPECT_FALSE(ask(*Find<QTreeView>("Days").viewport()));
  EXPECT_FALSE(ask(*Find<QTreeView>("Documents of the day").viewport()));
  for (const char* button : {"Daily View", "Favorites View", "Explore Folder", "Open Folder", "Large Icon View",
                             "Small Icon View", "List View", "Detail View", "Main Window Help"})
    EXPECT_FALSE(ask(Find<QToolButton>(button))) << button;
  m_main.SetActiveView(FMain::kFavoritesView);
  EXPECT_FALSE(ask(*Find<QTreeView>("Favorites").viewport()));

  EXPECT_THAT(topics, ElementsAre(26, 25, 24, 21, 18, 19, 20, 16, 17, 14, 15, 4, 23));
}

TEST_F(MainWindowTest, AClickThatAsksDoesNothingElse) {
  m_window.Presenter().SetTopicHelp([](int, QPoint) {});

  m_main.form.WhatsThisMode();
  QTest::mouseClick(&Find<QToolButton>("Favorites View"), Qt::LeftButton);
  QCoreApplication::processEvents();

  EXPECT_FALSE(m_main.picFavorites.Visible());
}

}  // namespace
}  // namespace dayvane::widgets
