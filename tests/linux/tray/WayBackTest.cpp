// SPDX-License-Identifier: MIT
#include <QAction>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

#include "linux/tray/WayBack.h"
#include "linux/widgets/Lengths.h"
#include "tests/linux/tray/TestTray.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::TestLauncher;
using dayvane::testing::TestTray;

constexpr std::chrono::milliseconds kNoPatience{0};
constexpr std::chrono::hours kEndlessPatience{1};

/// A window that is shown on a desktop without a tray.
class WayBackTest : public ::testing::Test {
 protected:
  WayBackTest() { m_form.SetVisible(true); }

  void Begin(std::chrono::milliseconds patience) {
    m_wayBack.emplace(m_form, m_tray, m_launcher, QList<QAction*>{&m_command}, patience);
    m_wayBack->Follow();
  }
  bool HasStandIn() { return m_wayBack->StandIn().isVisible(); }

  QAction m_command{QStringLiteral("Show")};
  controls::Form m_form;
  TestTray m_tray;
  TestLauncher m_launcher;
  std::optional<WayBack> m_wayBack;
};

TEST_F(WayBackTest, WhoHidesTheWindowOnADesktopWithoutATrayHasTheStandInAtOnce) {
  Begin(kEndlessPatience);

  m_form.SetVisible(false);

  EXPECT_TRUE(HasStandIn());
}

TEST_F(WayBackTest, TheStandInIsInNobodysWay) {
  Begin(kEndlessPatience);

  m_form.SetVisible(false);

  EXPECT_TRUE(QTest::qWaitFor([this] { return m_wayBack->StandIn().isMinimized(); }));
}

TEST_F(WayBackTest, TheStandInThatIsShownAgainIsInNobodysWayEither) {
  Begin(kEndlessPatience);
  m_form.SetVisible(false);
  ASSERT_TRUE(QTest::qWaitFor([this] { return m_wayBack->StandIn().isMinimized(); }));
  m_form.SetVisible(true);
  m_form.SetVisible(false);
  EXPECT_FALSE(m_wayBack->StandIn().isMinimized());

  EXPECT_TRUE(QTest::qWaitFor([this] { return m_wayBack->StandIn().isMinimized(); }));
}

TEST_F(WayBackTest, TheStandInThatGoesBeforeItWasOnTheScreenDoesNotComeBack) {
  Begin(kEndlessPatience);
  m_form.SetVisible(false);
  m_form.SetVisible(true);
  QTest::qWait(0);

  EXPECT_FALSE(HasStandIn());
}

TEST_F(WayBackTest, TheStandInIsWhereTheWindowWas) {
  Begin(kEndlessPatience);
  MoveControl(m_form, {200, 150, 400, 300}, m_wayBack->StandIn());

  m_form.SetVisible(false);

  EXPECT_EQ(m_wayBack->StandIn().pos(), QPoint(200, 150));
}

TEST_F(WayBackTest, TheStandInOfAWindowThatLayOutsideTheScreensIsOnOneOfThem) {
  Begin(kEndlessPatience);
  MoveControl(m_form, {-9000, -9000, 400, 300}, m_wayBack->StandIn());

  m_form.SetVisible(false);

  EXPECT_TRUE(QGuiApplication::primaryScreen()->geometry().contains(m_wayBack->StandIn().pos()));
}

TEST_F(WayBackTest, APanelThatOnlyStartsAnewIsWaitedFor) {
  m_tray.Set(true);
  Begin(kEndlessPatience);
  m_form.SetVisible(false);

  m_tray.Set(false);
  EXPECT_FALSE(HasStandIn());
}

TEST_F(WayBackTest, APanelThatStartsAfterTheProgramIsWaitedFor) {
  m_form.SetVisible(false);

  Begin(kEndlessPatience);

  EXPECT_FALSE(HasStandIn());
}

TEST_F(WayBackTest, APanelThatDoesNotComeBackIsStoodInFor) {
  m_tray.Set(true);
  Begin(kNoPatience);
  m_form.SetVisible(false);

  m_tray.Set(false);

  EXPECT_TRUE(QTest::qWaitFor([this] { return HasStandIn(); }));
}

TEST_F(WayBackTest, WhereALauncherServesTheUserIsToldAndNothingStandsIn) {
  m_launcher.Set(true);
  Begin(kEndlessPatience);

  m_form.SetVisible(false);

  EXPECT_FALSE(HasStandIn());
  EXPECT_EQ(m_launcher.told, 1);
}

TEST_F(WayBackTest, NobodyIsToldOfTheLauncherWhileTheWindowShowsOrATrayIsThere) {
  m_launcher.Set(true);
  Begin(kNoPatience);
  m_tray.Set(true);
  m_form.SetVisible(false);
  QCoreApplication::processEvents();

  EXPECT_EQ(m_launcher.told, 0);
}

TEST_F(WayBackTest, NobodyIsToldBeforeAPanelHadItsTimeToCome) {
  m_launcher.Set(true);
  m_form.SetVisible(false);

  Begin(kEndlessPatience);

  EXPECT_EQ(m_launcher.told, 0);
}

TEST_F(WayBackTest, TheStandInGoesWhenALauncherComes) {
  Begin(kEndlessPatience);
  m_form.SetVisible(false);
  ASSERT_TRUE(HasStandIn());

  m_launcher.Set(true);

  EXPECT_FALSE(HasStandIn());
  EXPECT_EQ(m_launcher.told, 1);
}

TEST_F(WayBackTest, TheStandInComesWhenTheLauncherGoes) {
  m_launcher.Set(true);
  Begin(kNoPatience);
  m_form.SetVisible(false);

  m_launcher.Set(false);

  EXPECT_TRUE(QTest::qWaitFor([this] { return HasStandIn(); }));
}

TEST_F(WayBackTest, ALauncherThatOnlyStartsAnewIsWaitedFor) {
  m_launcher.Set(true);
  Begin(kEndlessPatience);
  m_form.SetVisible(false);

  m_launcher.Set(false);
  EXPECT_FALSE(HasStandIn());
  m_launcher.Set(true);

  EXPECT_FALSE(HasStandIn());
}

TEST_F(WayBackTest, AProgramThatEndsLeavesNothingBehind) {
  Begin(kEndlessPatience);

  m_form.RequestUnload(controls::UnloadMode::SystemSession);

  EXPECT_FALSE(HasStandIn());
}

}  // namespace
}  // namespace dayvane::widgets
