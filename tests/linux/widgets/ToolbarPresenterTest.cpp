// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QTest>
#include <array>
#include <gtest/gtest.h>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/ToolbarPresenter.h"

namespace dayvane::widgets {
namespace {

class ToolbarPresenterTest : public ::testing::Test {
 protected:
  ToolbarPresenterTest() {
    m_buttons[kDailyButton].SetToolTipText("Daily View");
    m_buttons[kFindButton].SetToolTipText("Find Document");
    m_presenter = std::make_unique<ToolbarPresenter>(m_strip, m_buttons, m_rules, &m_window);
    m_window.show();
  }

  controls::PictureBox m_strip;
  std::array<controls::Button, kToolbarButtons> m_buttons;
  std::array<controls::Line, 2> m_rules;
  QWidget m_window;
  std::unique_ptr<ToolbarPresenter> m_presenter;
};

TEST_F(ToolbarPresenterTest, AButtonHasItsTipAndSpeaksIt) {
  EXPECT_EQ(m_presenter->ButtonAt(kDailyButton).toolTip(), "Daily View");
  EXPECT_EQ(m_presenter->ButtonAt(kDailyButton).accessibleName(), "Daily View");
}

TEST_F(ToolbarPresenterTest, APressIsToldAfterItsEventIsDone) {
  int presses = 0;
  m_buttons[kFindButton].Click.Connect([&] { ++presses; });

  m_presenter->ButtonAt(kFindButton).click();
  EXPECT_EQ(presses, 0);
  QCoreApplication::processEvents();

  EXPECT_EQ(presses, 1);
}

TEST_F(ToolbarPresenterTest, ButtonsAreReachedByTheKeyboard) {
  int presses = 0;
  m_buttons[kDailyButton].Click.Connect([&] { ++presses; });

  m_presenter->ButtonAt(kDailyButton).setFocus(Qt::TabFocusReason);
  QTest::keyClick(&m_presenter->ButtonAt(kDailyButton), Qt::Key_Space);
  QCoreApplication::processEvents();

  EXPECT_EQ(presses, 1);
}

TEST_F(ToolbarPresenterTest, ADisabledPictureIsWeakerThanAnEnabledOneOnADarkWindowToo) {
  const QIcon icon = m_presenter->ButtonAt(kFindButton).icon();
  const auto strength = [&](QIcon::Mode mode) {
    const QImage picture = icon.pixmap(m_presenter->ButtonAt(kFindButton).iconSize(), mode).toImage();
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) sum += picture.pixelColor(x, y).alphaF();
    return sum;
  };

  EXPECT_GT(strength(QIcon::Disabled), 0);
  EXPECT_LT(strength(QIcon::Disabled), strength(QIcon::Normal) / 2);
}

TEST_F(ToolbarPresenterTest, ADisabledButtonIsGreyed) {
  m_buttons[kDailyButton].SetEnabled(false);

  EXPECT_FALSE(m_presenter->ButtonAt(kDailyButton).isEnabled());
}

TEST_F(ToolbarPresenterTest, AButtonWithoutATipIsAGap) {
  EXPECT_FALSE(m_presenter->ButtonAt(kBlankButton).isVisible());
  EXPECT_TRUE(m_presenter->ButtonAt(kFindButton).isVisible());
}

TEST_F(ToolbarPresenterTest, TheRulesEndWhereTheirControlsSay) {
  m_rules[1].SetX2(ToTwips(77, m_window));

  const auto lines = m_presenter->findChildren<QFrame*>(Qt::FindDirectChildrenOnly);

  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(lines[1]->width(), 77);
}

}  // namespace
}  // namespace dayvane::widgets
