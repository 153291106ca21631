// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/PanePresenter.h"

namespace dayvane::widgets {
namespace {

class PanePresenterTest : public ::testing::Test {
 protected:
  PanePresenterTest() : m_pane(m_control, &m_window) {
    m_pane.resize(200, 100);
    m_pane.Add(m_child, m_widget);
  }

  controls::PictureBox m_control;
  controls::Image m_child;
  QWidget m_window;
  PanePresenter m_pane;
  QWidget m_widget;
};

TEST_F(PanePresenterTest, AChildLiesWhereItsControlSays) {
  MoveControl(m_child, {10, 20, 30, 40}, m_pane);

  EXPECT_EQ(m_widget.geometry(), QRect(10, 20, 30, 40));
}

TEST_F(PanePresenterTest, AChildThatReachesPastTheEdgeKeepsItsFrameInView) {
  MoveControl(m_child, {10, 20, 192, 82}, m_pane);

  EXPECT_EQ(m_widget.geometry(), QRect(10, 20, 190, 80));
}

TEST_F(PanePresenterTest, AChildGetsItsWholePlaceWhenThePaneGrows) {
  MoveControl(m_child, {10, 20, 300, 40}, m_pane);

  m_pane.resize(400, 100);
  m_window.show();

  EXPECT_EQ(m_widget.geometry(), QRect(10, 20, 300, 40));
}

TEST_F(PanePresenterTest, AHiddenPaneHidesItsChildren) {
  m_window.show();
  EXPECT_TRUE(m_widget.isVisible());

  m_control.SetVisible(false);

  EXPECT_FALSE(m_widget.isVisible());
}

}  // namespace
}  // namespace dayvane::widgets
