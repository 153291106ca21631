// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/CWaitCursor.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using controls::MousePointer;

class CWaitCursorTest : public ::testing::Test {
 protected:
  CWaitCursorTest() { application.activeForm = &form; }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  controls::Form form;
  controls::StatusBar statusBar;
};

TEST_F(CWaitCursorTest, ThePointerIsAnHourglassWhileTheGuardLives) {
  {
    const CWaitCursor guard(application);
    EXPECT_EQ(form.Pointer(), MousePointer::Hourglass);
  }
  EXPECT_EQ(form.Pointer(), MousePointer::Default);
}

TEST_F(CWaitCursorTest, TheStatusTextComesBackWhenTheGuardEnds) {
  statusBar.SetText("12 objects");
  {
    CWaitCursor guard(application);
    guard.SetMessage(statusBar, "Please wait...");
    EXPECT_EQ(statusBar.Text(), "Please wait...");
  }
  EXPECT_EQ(statusBar.Text(), "12 objects");
}

TEST_F(CWaitCursorTest, AGuardWithoutAMessageLeavesTheStatusBarAlone) {
  statusBar.SetText("12 objects");
  {
    const CWaitCursor guard(application);
    statusBar.SetText("3 objects");
  }
  EXPECT_EQ(statusBar.Text(), "3 objects");
}

TEST_F(CWaitCursorTest, NestedGuardsGiveThePointerBackInReverseOrder) {
  auto outer = std::make_unique<CWaitCursor>(application);
  auto inner = std::make_unique<CWaitCursor>(application);
  inner.reset();
  EXPECT_EQ(form.Pointer(), MousePointer::Hourglass);
  outer.reset();
  EXPECT_EQ(form.Pointer(), MousePointer::Default);
}

TEST_F(CWaitCursorTest, TheWindowIsPaintedAtOnce) {
  int painted = 0;
  form.RefreshWanted.Connect([&] { ++painted; });
  const CWaitCursor guard(application);
  EXPECT_EQ(painted, 1);
}

TEST_F(CWaitCursorTest, WithoutAWindowTheStatusTextAloneChanges) {
  application.activeForm = nullptr;
  {
    CWaitCursor guard(application);
    guard.SetMessage(statusBar, "Please wait...");
    EXPECT_EQ(statusBar.Text(), "Please wait...");
  }
  EXPECT_EQ(statusBar.Text(), "");
}

TEST_F(CWaitCursorTest, TheStatusBarIsPaintedAtOnce) {
  int painted = 0;
  statusBar.RefreshWanted.Connect([&] { ++painted; });
  {
    CWaitCursor guard(application);
    guard.SetMessage(statusBar, "Please wait...");
    EXPECT_EQ(painted, 1);
  }
  EXPECT_EQ(painted, 2);
}

}  // namespace
}  // namespace dayvane
