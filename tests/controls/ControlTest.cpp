// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Control.h"
#include "controls/SimpleControls.h"

namespace dayvane::controls {
namespace {

class ControlTest : public ::testing::Test {
 protected:
  ControlTest() {
    pane.Changed.Connect([this] { ++changes; });
    pane.Resize.Connect([this] { ++resizes; });
  }

  PictureBox pane;
  int changes = 0;
  int resizes = 0;
};

TEST_F(ControlTest, AMoveThatSizesIsOneChangeAndOneResize) {
  pane.Move(1, 2, 3, 4);
  EXPECT_THAT((std::vector{pane.Left(), pane.Top(), pane.Width(), pane.Height()}), ::testing::ElementsAre(1, 2, 3, 4));
  EXPECT_EQ(pane.ScaleWidth(), 3);
  EXPECT_EQ(pane.ScaleHeight(), 4);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(resizes, 1);
}

TEST_F(ControlTest, AMoveAloneIsNoResize) {
  pane.Move(1, 2, 3, 4);
  pane.Move(5, 6, 3, 4);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(resizes, 1);
}

TEST_F(ControlTest, AMoveToWhereItIsChangesNothing) {
  pane.Move(1, 2, 3, 4);
  pane.Move(1, 2, 3, 4);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(resizes, 1);
}

TEST_F(ControlTest, ASizeBelowNothingIsNothing) {
  pane.Move(0, 0, 3, 4);
  pane.Move(-1, -2, -3, -4);
  EXPECT_THAT((std::vector{pane.Left(), pane.Top(), pane.Width(), pane.Height()}),
              ::testing::ElementsAre(-1, -2, 0, 0));
}

TEST_F(ControlTest, AValueThatStaysTheSameIsNoChange) {
  pane.SetVisible(true);
  pane.SetEnabled(true);
  EXPECT_EQ(changes, 0);
  pane.SetVisible(false);
  pane.SetEnabled(false);
  EXPECT_EQ(changes, 2);
}

TEST(Timer, ItTicksOnlyWhileItIsEnabledAndHasAnInterval) {
  Timer timer;
  int ticks = 0;
  timer.Tick.Connect([&] { ++ticks; });
  timer.SetInterval(1000);
  timer.Fire();
  EXPECT_EQ(ticks, 0);
  timer.SetEnabled(true);
  timer.Fire();
  EXPECT_EQ(ticks, 1);
  timer.SetInterval(0);
  timer.Fire();
  EXPECT_EQ(ticks, 1);
}

TEST(Button, APressOfADisabledButtonDoesNothing) {
  Button button;
  int clicks = 0;
  button.Click.Connect([&] { ++clicks; });
  button.Press();
  button.SetEnabled(false);
  button.Press();
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace dayvane::controls
