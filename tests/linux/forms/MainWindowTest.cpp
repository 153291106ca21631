// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QStatusBar>
#include <QStyle>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <QWhatsThis>
#include <gmock/gmock.h>

#include "linux/forms/Appearance.h"
#include "linux/forms/MainWindow.h"
#include "linux/widgets/DayWords.h"
#include "tests/support/MainWindow.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
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

  static constexpr int kRoom = 7;  ///< logical pixels between the panes and the window's edge
  int RoomAtTheRight(const QRect& place) const { return m_window.centralWidget()->width() - 1 - place.right(); }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&m_window, key, modifiers);
    QCoreApplication::processEvents();
  }

  QLabel& HeadingLabel() {
    for (QLabel* label : m_window.findChildren<QLabel*>())
      if (label->parentWidget() == Find<CalendarPresenter>("Calendar").parentWidget()) return *label;
    throw std::runtime_error("heading");
  }
  QString Heading() { return HeadingLabel().text(); }

  /// Of everything that the window lays out itself and that is visible, once what was posted has happened, and what
  /// that posted in turn.
  std::vector<QRect> Places() {
    constexpr int kRounds = 10;
    for (int round = 0; round < kRounds; ++round) QCoreApplication::processEvents();
    return {PlaceOf(Find<CalendarPresenter>("Calendar")), PlaceOf(Find<QTreeView>("Days")),
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
  const QRect calendar = PlaceOf(Find<CalendarPresenter>("Calendar"));
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

  EXPECT_EQ(RoomAtTheRight(list), kRoom);
  EXPECT_GT(PlaceOf(*m_window.findChild<QStatusBar*>()).width(), list.width());
}

TEST_F(MainWindowTest, TheSmallestWindowFitsASmallScreen) {
  EXPECT_LE(m_window.minimumSizeHint().width(), 640);
  EXPECT_LE(m_window.minimumSizeHint().height(), 480);
}

TEST_F(MainWindowTest, TheFavoritesTakeTheWholeWidth) {
  m_main.SetActiveView(FMain::kFavoritesView);
  QCoreApplication::processEvents();

  const QRect list = PlaceOf(Find<QTreeView>("Favorites"));

  EXPECT_FALSE(Find<CalendarPresenter>("Calendar").isVisible());
  EXPECT_EQ(list.left(), kRoom);
  EXPECT_EQ(RoomAtTheRight(list), kRoom);
}

TEST_F(MainWindowTest, OpensAtTheLatestDay) {
  EXPECT_EQ(Find<QTableView>("Days of the month").currentIndex().data(), "21");
  EXPECT_EQ(Find<QTreeView>("Documents of the day").model()->index(0, 0).data().toString(), "New.odt");
}

TEST_F(MainWindowTest, ADayOfTheCalendarShowsItsDocumentsAndItsNode) {
  QTest::keyClick(&Find<QTableView>("Days of the month"), Qt::Key_Left);

  EXPECT_EQ(Find<QTreeView>("Documents of the day").model()->index(0, 0).data().toString(), "Old.odt");
  EXPECT_EQ(Find<QTreeView>("Days").currentIndex().data().toString(), "20");
}

TEST_F(MainWindowTest, TheListSaysWhichDayItIsOf) {
  EXPECT_EQ(Heading(), DayWords(std::chrono::local_days{std::chrono::year{2026} / 11 / 21}));
  EXPECT_EQ(Find<QTreeView>("Documents of the day").accessibleDescription(), Heading());

  m_main.tvwMain.Click(m_program.Node("2026\\November"));
  EXPECT_EQ(Heading(), "November 2026");
  m_main.tvwMain.Click(m_program.Node("2026"));
  EXPECT_EQ(Heading(), "2026");
  m_main.tvwMain.Click(*m_main.tvwMain.Roots().front());
  EXPECT_EQ(Heading(), "");
}

TEST_F(MainWindowTest, ADayOfTheTreeIsSpokenInWords) {
  const QModelIndex day = Find<QTreeView>("Days").currentIndex();
  const QString words = DayWords(std::chrono::local_days{std::chrono::year{2026} / 11 / 21});

  EXPECT_EQ(day.data(Qt::AccessibleTextRole).toString(), words);
  EXPECT_EQ(day.data(Qt::ToolTipRole).toString(), words);
  EXPECT_EQ(day.parent().data(Qt::ToolTipRole).toString(), "");
}

TEST_F(MainWindowTest, TheHeadingStandsAboveTheListAndBelowTheToolbar) {
  const QRect heading = PlaceOf(HeadingLabel());
  const QRect list = PlaceOf(Find<QTreeView>("Documents of the day"));

  EXPECT_GE(heading.top(), kRoom - 1);
  EXPECT_LT(heading.bottom(), list.top());
  EXPECT_GE(heading.left(), list.left());
  EXPECT_TRUE(HeadingLabel().font().bold());
}

TEST_F(MainWindowTest, PanesHaveRoomAroundThem) {
  const QRect calendar = PlaceOf(Find<CalendarPresenter>("Calendar"));
  const QRect days = PlaceOf(Find<QTreeView>("Days"));
  const QRect list = PlaceOf(Find<QTreeView>("Documents of the day"));

  EXPECT_EQ(calendar.left(), kRoom);
  EXPECT_EQ(calendar.top(), kRoom);
  EXPECT_EQ(days.top() - calendar.bottom() - 1, kRoom);
  EXPECT_EQ(list.left() - days.right() - 1, kRoom);
  EXPECT_EQ(RoomAtTheRight(list), kRoom);
}

TEST_F(MainWindowTest, ControlAndADigitChooseTheView) {
  Press(Qt::Key_2, Qt::ControlModifier);
  EXPECT_TRUE(m_main.picFavorites.Visible());

  Press(Qt::Key_1, Qt::ControlModifier);
  EXPECT_TRUE(m_main.picDaily.Visible());
}

TEST_F(MainWindowTest, ControlAndWHideTheWindow) {
  Press(Qt::Key_W, Qt::ControlModifier);
  EXPECT_FALSE(m_main.form.Visible());
  EXPECT_FALSE(m_main.form.IsUnloaded());
}

TEST_F(MainWindowTest, ControlAndQEndTheProgramAsExitDoes) {
  Press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_THAT(m_program.desktop.windowing.posted, ElementsAre(platform::kWmClose));
}

TEST_F(MainWindowTest, F1ShowsTheHelpOfTheWindow) {
  Press(Qt::Key_F1);
  EXPECT_THAT(m_program.desktop.help.shown, ElementsAre(HasSubstr(std::to_string(kHelpMainWindow))));
}

TEST_F(MainWindowTest, SuspendedIsSeenInTheStatusBarAndInTheWindowsIcon) {
  auto& picture = Find<QLabel>("Suspended: nothing is recorded until you choose Resume.");
  const QImage usual = m_window.windowIcon().pixmap(32).toImage();
  EXPECT_FALSE(picture.isVisible());

  m_main.SetActive(false);
  EXPECT_TRUE(picture.isVisible());
  EXPECT_EQ(picture.toolTip(), "Suspended: nothing is recorded until you choose Resume.");
  EXPECT_NE(m_window.windowIcon().pixmap(32).toImage(), usual);

  m_main.SetActive(true);
  EXPECT_FALSE(picture.isVisible());
  EXPECT_EQ(m_window.windowIcon().pixmap(32).toImage(), usual);
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
  EXPECT_EQ(RoomAtTheRight(PlaceOf(list)), kRoom);
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

  EXPECT_FALSE(ask(Find<CalendarPresenter>("Calendar")));
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
