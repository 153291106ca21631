// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "shell/MDayvaneMain.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class MainTest : public ::testing::Test {
 protected:
  Program Start(bool alreadyRunning = false) {
    return Main(desktop.desktop, desktop.Folder(), alreadyRunning, presentation);
  }

  testing::TestDesktop desktop;
  int presented = 0;
  Presentation presentation{[](FSplash&) {}, [this](FMainControls&, Application&) { ++presented; }};
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

TEST_F(MainTest, TheSplashIsShownBeforeAnythingElseIsThere) {
  bool isEmpty = false;
  presentation.splash = [&](FSplash& splash) {
    splash.form.Changed.Connect([&] {
      if (splash.form.Visible()) isEmpty = std::filesystem::is_empty(desktop.NativeFolder());
    });
  };
  int paints = 0;
  desktop.windowing.pending = [&] { ++paints; };
  const Program program = Start();
  EXPECT_TRUE(isEmpty);
  EXPECT_GE(paints, 2);
}

TEST_F(MainTest, TheSplashDisappearsOnlyAfterTheMainWindowHasBeenBuilt) {
  FMainControls* window = nullptr;
  bool wasBuilt = false;
  presentation.splash = [&](FSplash& splash) {
    splash.form.Unload.Connect([&] { wasBuilt = window != nullptr && window->tmrMain.Enabled(); });
  };
  presentation.mainWindow = [&](FMainControls& mainWindow, Application&) { window = &mainWindow; };
  const Program program = Start();
  EXPECT_TRUE(wasBuilt);
  EXPECT_TRUE(program.splash->form.IsUnloaded());
  EXPECT_FALSE(program.splash->form.Visible());
}

TEST_F(MainTest, TheSplashIsGoneBeforeTheMainWindowShows) {
  presentation.mainWindow = [this](FMainControls& mainWindow, Application&) {
    mainWindow.form.Changed.Connect([&] {
      if (mainWindow.form.Visible()) desktop.windowing.happenings.emplace_back("main window");
    });
  };
  presentation.splash = [this](FSplash& splash) {
    splash.form.Unload.Connect([this] { desktop.windowing.happenings.emplace_back("splash gone"); });
  };
  const Program program = Start();
  EXPECT_THAT(desktop.windowing.happenings, ElementsAre("splash gone", "main window"));
}

TEST_F(MainTest, ASplashThatCannotBeShownDoesNotKeepTheProgramFromStarting) {
  presentation.splash = [](FSplash&) { throw Error(kObjectNotSet, "No picture"); };
  const Program program = Start();
  ASSERT_NE(program.mainWindow, nullptr);
  EXPECT_THAT(desktop.windowing.Texts(), Not(Contains(HasSubstr("An error occurred"))));
}

TEST_F(MainTest, AFailureToStartIsReportedWithItsSource) {
  desktop.folder.Write("program/blocked", "");
  const Program program = Main(desktop.desktop, desktop.Folder() + "\\blocked", false, {});
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred starting the program."));
  EXPECT_EQ(program.mainWindow, nullptr);
}

TEST_F(MainTest, AFailureToStartIsLoggedAsMains) {
  presentation.mainWindow = [](FMainControls&, Application&) { throw Error(kDeviceIoError, "No window"); };
  const Program program = Start();
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("MDayvane.Main\t57\tNo window\tAn error occurred starting the program."));
}

TEST_F(MainTest, TheSplashOfAStartThatFailedIsGone) {
  presentation.mainWindow = [](FMainControls&, Application&) { throw Error(kDeviceIoError, "No window"); };
  const Program program = Start();
  EXPECT_TRUE(program.splash->form.IsUnloaded());
  EXPECT_FALSE(program.splash->form.Visible());
}

TEST_F(MainTest, TheSplashOfALoadThatFailedIsGoneToo) {
  desktop.shell.hasRecentFolder = false;
  const Program program = Start();
  EXPECT_THAT(desktop.windowing.Texts(), Contains("An error occurred starting the program."));
  EXPECT_TRUE(program.splash->form.IsUnloaded());
}

}  // namespace
}  // namespace dayvane
