// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "shell/FSplash.h"
#include "tests/windows/MessageLoop.h"
#include "windows/WindowsWindowing.h"
#include "windows/forms/Questions.h"
#include "windows/forms/SplashWindow.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::Soon;

class WindowsSplashTest : public ::testing::Test {
 protected:
  WindowsSplashTest() {
    m_windowing.Register(m_window.Presenter());
    m_splash.Show();
  }
  ~WindowsSplashTest() override { m_windowing.Forget(m_window.Presenter()); }

  bool IsShown() const { return IsWindowVisible(m_window.Handle()) != 0; }

  WindowsWindowing m_windowing;
  FSplash m_splash{ThisProgram()};
  SplashWindow m_window{m_splash};
};

TEST_F(WindowsSplashTest, ItLiesInTheMiddleOfTheScreenInFrontOfAll) {
  RECT place{};
  GetWindowRect(m_window.Handle(), &place);
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);

  EXPECT_TRUE(IsShown());
  EXPECT_NEAR(place.left + place.right, screen.left + screen.right, 2);
  EXPECT_NEAR(place.top + place.bottom, screen.top + screen.bottom, 2);
  EXPECT_NE(GetWindowLongPtrW(m_window.Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(WindowsSplashTest, AClickAnywhereClosesIt) {
  PostMessageW(m_window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  PostMessageW(m_window.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));

  m_windowing.ProcessPendingMessages();  // the program is still starting

  EXPECT_FALSE(IsShown());
  EXPECT_TRUE(m_splash.form.IsUnloaded());
}

TEST_F(WindowsSplashTest, AClickOnATextIsAClickOnIt) {
  HWND text = GetWindow(m_window.Handle(), GW_CHILD);
  RECT place{};
  GetWindowRect(text, &place);

  EXPECT_EQ(SendMessageW(text, WM_NCHITTEST, 0, MAKELPARAM(place.left + 1, place.top + 1)), HTTRANSPARENT);
}

TEST_F(WindowsSplashTest, AKeyClosesItWhenItIsReleased) {
  PostMessageW(m_window.Handle(), WM_KEYDOWN, VK_SPACE, 1);
  m_windowing.ProcessPendingMessages();
  EXPECT_TRUE(IsShown());

  PressKey(m_window.Handle(), VK_SPACE);

  EXPECT_FALSE(IsShown());
}

TEST_F(WindowsSplashTest, ItHasTheKeyboardItself) {
  RunMessages();

  EXPECT_EQ(GetFocus(), m_window.Handle());
}

TEST_F(WindowsSplashTest, AQuestionOpensBelowIt) {
  RECT splash{};
  GetWindowRect(m_window.Handle(), &splash);
  RECT place{};
  const Soon close([&] {
    GetWindowRect(OpenQuestion(), &place);
    PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0);
  });

  m_windowing.ShowMessage({"Welcome", "Dayvane"});

  EXPECT_GT(place.top, splash.bottom);
}

TEST_F(WindowsSplashTest, ItGrowsWithTheDotsOfItsScreen) {
  RECT before{};
  GetWindowRect(m_window.Handle(), &before);
  const RECT suggested{0, 0, (before.right - before.left) * 3 / 2, (before.bottom - before.top) * 3 / 2};

  SendMessageW(m_window.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));

  RECT after{};
  GetWindowRect(m_window.Handle(), &after);
  EXPECT_NEAR(after.right - after.left, (before.right - before.left) * 1.5, 4);
}

}  // namespace
}  // namespace dayvane::widgets
