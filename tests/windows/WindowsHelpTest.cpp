// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "resources/MHelpConstants.h"
#include "tests/windows/help/HelpSupport.h"
#include "windows/WindowsHelp.h"

namespace dayvane::help {
namespace {

std::wstring OpenWindowTitle() {
  const HWND window = FindWindowW(L"Dayvane.HelpViewer", nullptr);
  return window != nullptr && IsWindowVisible(window) != 0 ? testing::WindowText(window) : std::wstring();
}

const std::string kShipped = testing::ShippedHelpFile(DAYVANE_HELP_FILE);

TEST(WindowsHelp, TheContextCommandShowsTheTopic) {
  WindowsHelp help;
  help.ShowHelp(kShipped, platform::kHelpContext, kHelpOptions);
  EXPECT_EQ(OpenWindowTitle(), L"Options - Dayvane Help");
}

TEST(WindowsHelp, TheFinderCommandShowsTheContents) {
  WindowsHelp help;
  help.ShowHelp(kShipped, platform::kHelpFinder, 0);
  EXPECT_EQ(OpenWindowTitle(), L"Dayvane Help");
}

TEST(WindowsHelp, ThePopupCommandOpensNoHelpWindow) {
  WindowsHelp help;
  help.ShowHelp(kShipped, platform::kHelpContextPopup, kHelpCalendar);
  EXPECT_EQ(OpenWindowTitle(), L"");
  EXPECT_TRUE(IsWindowVisible(FindWindowW(L"Dayvane.HelpPopup", nullptr)));
}

TEST(WindowsHelp, TheOpenWindowIsBroughtToTheFront) {
  WindowsHelp help;
  help.BringToFront();
  EXPECT_EQ(OpenWindowTitle(), L"");
  help.ShowHelp(kShipped, platform::kHelpFinder, 0);
  const HWND other = CreateWindowExW(0, L"STATIC", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 200, nullptr,
                                     nullptr, nullptr, nullptr);
  SetActiveWindow(other);
  help.BringToFront();
  EXPECT_EQ(GetActiveWindow(), FindWindowW(L"Dayvane.HelpViewer", nullptr));
  DestroyWindow(other);
}

TEST(WindowsHelp, ItsWindowsGoWithIt) {
  {
    WindowsHelp help;
    help.ShowHelp(kShipped, platform::kHelpContext, kHelpOptions);
    help.ShowPopup(kShipped, kHelpCalendar, {50, 50});
  }
  EXPECT_EQ(FindWindowW(L"Dayvane.HelpViewer", nullptr), nullptr);
  EXPECT_EQ(FindWindowW(L"Dayvane.HelpPopup", nullptr), nullptr);
}

}  // namespace
}  // namespace dayvane::help
