#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/MDayvaneMain.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;

class MainTest : public ::testing::Test {
 protected:
  Program Start(bool alreadyRunning = false) {
    return Main(desktop.desktop, desktop.Folder(), alreadyRunning, [this](FMain&, Application&) { ++presented; });
  }

  testing::TestDesktop desktop;
  int presented = 0;
};

TEST_F(MainTest, ASecondInstanceIsToldAndEndsAtOnce) {
  const Program program = Start(true);
  ASSERT_EQ(desktop.windowing.messages.size(), 1U);
  EXPECT_EQ(desktop.windowing.messages[0].text, "Dayvane is already loaded.");
  EXPECT_EQ(desktop.windowing.messages[0].title, "Dayvane");
  EXPECT_EQ(desktop.windowing.messages[0].icon, platform::MessageIcon::Information);
  EXPECT_EQ(desktop.windowing.messages[0].buttons, platform::MessageButtons::Ok);
  EXPECT_EQ(program.mainWindow, nullptr);
  EXPECT_TRUE(std::filesystem::is_empty(desktop.NativeFolder()));
}

TEST_F(MainTest, AStartPresentsTheWindowAndLeavesTheTimerRunning) {
  const Program program = Start();
  EXPECT_EQ(presented, 1);
  ASSERT_NE(program.mainWindow, nullptr);
  EXPECT_TRUE(program.mainWindow->tmrMain.Enabled());
  EXPECT_EQ(program.mainWindow->tryMain.Picture(), 102);
  EXPECT_EQ(program.mainWindow->tryMain.TipText(), "Dayvane");
  EXPECT_EQ(program.mainWindow->form.Caption(), "Dayvane - Daily");
}

TEST_F(MainTest, AFailureToStartIsReportedWithItsSource) {
  desktop.folder.Write("program/blocked", "");
  const Program program = Main(desktop.desktop, desktop.Folder() + "\\blocked", false, [](FMain&, Application&) {});
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred starting the program."));
  EXPECT_EQ(program.mainWindow, nullptr);
}

}  // namespace
}  // namespace dayvane
