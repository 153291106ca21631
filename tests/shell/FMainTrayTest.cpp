// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kLeft = 1;
constexpr int kRight = 2;
constexpr int kMiddle = 4;

class TrayTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  TrayTest() {
    Load();
    desktop.windowing.happenings.clear();
  }

  void Click(int button) { window.tryMain.MouseUp.Raise(button, 0); }
};

TEST_F(TrayTest, TheIconIsTheProgramsWithItsTitle) {
  EXPECT_EQ(window.tryMain.Picture(), 102);
  EXPECT_EQ(window.tryMain.TipText(), "Dayvane");
}

TEST_F(TrayTest, ALeftClickHidesTheWindowAndTheNextShowsItAgain) {
  Click(kLeft);
  EXPECT_FALSE(window.form.Visible());
  Click(kLeft);
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(TrayTest, ShowIsOfferedWhileTheWindowIsHiddenAndHideWhileItIsVisible) {
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayHide].Visible());
  Click(kLeft);
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(TrayTest, ALeftClickComesToTheForegroundFirstAndPostsItsMessageLast) {
  window.form.Changed.Connect([this] { desktop.windowing.happenings.emplace_back("hide"); });
  Click(kLeft);
  EXPECT_THAT(desktop.windowing.happenings, ElementsAre("foreground", "hide", "post"));
  EXPECT_THAT(desktop.windowing.posted, ElementsAre(1024));
  EXPECT_EQ(desktop.windowing.popupMenu, nullptr);
}

TEST_F(TrayTest, ARightClickPopsTheTraysMenuUpBetweenForegroundAndMessage) {
  Click(kRight);
  EXPECT_THAT(desktop.windowing.happenings, ElementsAre("foreground", "popup", "post"));
  EXPECT_THAT(desktop.windowing.posted, ElementsAre(1024));
  EXPECT_EQ(desktop.windowing.popupMenu, &window.mnuSysTrayPopup);
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(TrayTest, TheMenusDefaultIsWhatALeftClickWouldDo) {
  Click(kRight);
  EXPECT_EQ(desktop.windowing.popupDefault, 1);
  Click(kLeft);
  Click(kRight);
  EXPECT_EQ(desktop.windowing.popupDefault, 0);
}

TEST_F(TrayTest, TheMenuOfAHiddenSuspendedProgramOffersShowAndResume) {
  window.SetActive(false);
  window.SetVisible(false);
  Click(kRight);
  std::vector<std::string> offered;
  for (int i = 0; i < 4; ++i)
    if (window.mnuSysTrayPopup[i].Visible()) offered.push_back(window.mnuSysTrayPopup[i].Caption());
  EXPECT_THAT(offered, ElementsAre("&Show", "&Resume"));
  EXPECT_EQ(desktop.windowing.popupDefault, 0);
}

TEST_F(TrayTest, AnotherButtonOnlyComesToTheForeground) {
  Click(kMiddle);
  EXPECT_THAT(desktop.windowing.happenings, ElementsAre("foreground", "post"));
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(TrayTest, AClickThatFailsIsReported) {
  window.form.Changed.Connect([] { throw Error(kDeviceIoError, "The window is gone"); });
  Click(kLeft);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred hiding, showing, suspending, or resuming."));
}

TEST_F(TrayTest, ExitFromTheTrayWhileHiddenStartsHiddenTheNextTime) {
  window.SetVisible(false);
  window.mnuSysTrayPopup.Choose(kTrayExit);
  EXPECT_TRUE(window.form.IsUnloaded());
  FMain next(application, repository);
  next.Form_Load();
  EXPECT_FALSE(next.form.Visible());
  EXPECT_TRUE(next.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_FALSE(next.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(TrayTest, TheIconIsBusyWhileThePollRunsAndSuspendedWhileCaptureIs) {
  std::vector<int> pictures;
  window.tryMain.Changed.Connect([&] { pictures.push_back(window.tryMain.Picture()); });
  window.SetActive(false);
  window.SetActive(true);
  EXPECT_THAT(pictures, ElementsAre(104, 103, 102));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(TrayTest, AMenuOfTheTrayThatCannotBeShownIsReported) {
  desktop.windowing.noPopup = true;
  window.tryMain.MouseUp.Raise(2, 0);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred hiding, showing, suspending, or resuming."));
}

}  // namespace
}  // namespace dayvane
