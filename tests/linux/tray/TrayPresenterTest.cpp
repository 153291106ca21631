// SPDX-License-Identifier: MIT
#include <QDialog>
#include <QTest>
#include <QToolButton>
#include <gmock/gmock.h>
#include <optional>

#include "controls/Deferred.h"
#include "linux/tray/TrayPresenter.h"
#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "tests/linux/tray/TestTray.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::TestLauncher;
using dayvane::testing::TestTray;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Counts how often a window's icon changes.
class IconChanges : public QObject {
 public:
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    if (event->type() == QEvent::WindowIconChange) ++changes;
    return false;
  }
  int changes = 0;
};

class TrayPresenterTest : public ::testing::Test {
 protected:
  TrayPresenterTest() {
    m_control.SetTipText("Dayvane");
    m_menu[0].SetVisible(false);
    m_control.MouseUp.Connect([this](int button, int) { m_buttons.push_back(button); });
  }

  bool StandInComes() {
    return QTest::qWaitFor([this] { return m_presenter.StandIn().isVisible(); });
  }

  QToolButton& Button(const char* text) {
    for (QToolButton* button : m_presenter.StandIn().findChildren<QToolButton*>())
      if (button->text() == QLatin1String(text)) return *button;
    throw std::runtime_error(text);
  }

  qint64 Shown() { return m_presenter.StandIn().windowIcon().cacheKey(); }

  IconChanges m_icons;
  controls::SystemTray m_control;
  controls::Menu m_menu{"Tray", {{"&Show"}, {"&Hide"}, {"-"}, {"E&xit"}}};
  controls::Form m_form;
  TestTray m_tray;
  TestLauncher m_launcher;
  TrayPresenter m_presenter{m_control, m_menu, m_form, m_tray, m_launcher, std::chrono::milliseconds(0)};
  std::vector<int> m_buttons;
};

TEST_F(TrayPresenterTest, OneClickIsOneReleaseOfItsButton) {
  m_presenter.Activate(QSystemTrayIcon::Trigger);
  m_presenter.Activate(QSystemTrayIcon::MiddleClick);
  m_presenter.Activate(QSystemTrayIcon::Context);

  EXPECT_THAT(m_buttons, ElementsAre(1, 4));
}

TEST_F(TrayPresenterTest, TwoQuickClicksAreTwo) {
  m_presenter.Activate(QSystemTrayIcon::Trigger);
  m_presenter.Activate(QSystemTrayIcon::DoubleClick);

  EXPECT_THAT(m_buttons, ElementsAre(1, 1));
}

TEST_F(TrayPresenterTest, AClickInTheMiddleOfWorkWaits) {
  std::optional<controls::WorkScope> work(std::in_place);
  m_presenter.Activate(QSystemTrayIcon::Trigger);
  EXPECT_THAT(m_buttons, IsEmpty());

  work.reset();
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_buttons.size() == 1; }));
}

TEST_F(TrayPresenterTest, AClickForAWindowThatComesMeanwhileDoesNotHideItAgain) {
  std::optional<controls::WorkScope> work(std::in_place);
  m_presenter.Activate(QSystemTrayIcon::Trigger);
  m_form.SetVisible(true);
  work.reset();
  QCoreApplication::processEvents();

  EXPECT_THAT(m_buttons, IsEmpty());
}

TEST_F(TrayPresenterTest, AClickBringsAnOpenBoxToTheFrontInsteadOfTheWindow) {
  m_form.SetVisible(true);
  QWidget owner;
  owner.show();
  QDialog box(&owner);
  box.setWindowModality(Qt::WindowModal);
  box.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
  QWidget help;
  help.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));

  m_presenter.Activate(QSystemTrayIcon::Trigger);

  EXPECT_THAT(m_buttons, IsEmpty());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
}

TEST_F(TrayPresenterTest, TheFirstVisibleItemIsTheDefault) {
  Q_EMIT m_presenter.Menu().aboutToShow();

  EXPECT_EQ(m_presenter.Menu().defaultAction(), m_presenter.Menu().actions().at(1));
}

TEST_F(TrayPresenterTest, AHiddenProgramWithoutATrayHasAStandIn) {
  EXPECT_TRUE(StandInComes());
  EXPECT_EQ(m_presenter.StandIn().windowTitle(), "Dayvane");
}

TEST_F(TrayPresenterTest, TheStandInGoesWhenATrayComes) {
  ASSERT_TRUE(StandInComes());

  m_tray.Set(true);

  EXPECT_FALSE(m_presenter.StandIn().isVisible());
}

TEST_F(TrayPresenterTest, TheStandInGoesWhenTheWindowShows) {
  ASSERT_TRUE(StandInComes());

  m_form.SetVisible(true);

  EXPECT_FALSE(m_presenter.StandIn().isVisible());
}

TEST_F(TrayPresenterTest, TheStandInCarriesTheMenusVisibleCommands) {
  ASSERT_TRUE(StandInComes());
  std::vector<int> chosen;
  m_menu.Click.Connect([&](int index) { chosen.push_back(index); });
  m_menu[3].SetVisible(false);
  EXPECT_FALSE(Button("Exit").isVisible());

  m_menu[3].SetVisible(true);
  Button("Exit").click();
  QCoreApplication::processEvents();

  EXPECT_THAT(chosen, ElementsAre(3));
}

TEST_F(TrayPresenterTest, TheStandInShowsAWindowThatWasHiddenPastTheMenu) {
  m_menu[0].SetVisible(false);
  m_menu[1].SetVisible(true);
  ASSERT_TRUE(StandInComes());
  EXPECT_FALSE(Button("Hide").isVisible());

  ASSERT_TRUE(Button("Show").isVisible());
  Button("Show").click();
  QCoreApplication::processEvents();

  EXPECT_THAT(m_buttons, ElementsAre(1));
}

TEST_F(TrayPresenterTest, ClosingTheStandInLeavesAWayToTheProgram) {
  ASSERT_TRUE(StandInComes());

  m_presenter.StandIn().close();

  EXPECT_TRUE(m_presenter.StandIn().isVisible());
}

TEST_F(TrayPresenterTest, APollThatIsOverInAMomentChangesNothingOnTheScreen) {
  m_form.SetVisible(true);  // so that the stand-in is not about to be shown
  m_control.SetPicture(kNormalIcon);
  m_presenter.StandIn().installEventFilter(&m_icons);
  {
    const controls::BackgroundScope poll;
    m_control.SetPicture(kBusyIcon);
    m_control.SetPicture(kNormalIcon);
  }
  QTest::qWait(200);
  EXPECT_EQ(m_icons.changes, 0);
  EXPECT_EQ(Shown(), PictureIcon(kNormalIcon).cacheKey());
}

TEST_F(TrayPresenterTest, APollThatLastsShowsThatTheProgramIsBusy) {
  m_control.SetPicture(kNormalIcon);
  const controls::BackgroundScope poll;
  m_control.SetPicture(kBusyIcon);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Shown() == PictureIcon(kBusyIcon).cacheKey(); }));
  m_control.SetPicture(kNormalIcon);
  EXPECT_EQ(Shown(), PictureIcon(kNormalIcon).cacheKey());
}

TEST_F(TrayPresenterTest, WorkThatTheUserAskedForShowsAtOnce) {
  m_control.SetPicture(kNormalIcon);
  m_control.SetPicture(kBusyIcon);
  EXPECT_EQ(Shown(), PictureIcon(kBusyIcon).cacheKey());
}

}  // namespace
}  // namespace dayvane::widgets
