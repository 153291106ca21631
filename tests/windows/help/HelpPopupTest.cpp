// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "resources/MHelpConstants.h"
#include "tests/windows/help/HelpSupport.h"
#include "windows/help/HelpViewer.h"

namespace dayvane::help {
namespace {

using testing::HelpWindow;

class HelpPopupTest : public ::testing::Test {
 protected:
  static HWND Popup() { return FindWindowW(L"Dayvane.HelpPopup", nullptr); }
  static HWND PopupPage() { return HelpWindow{Popup()}.Page(); }
  static bool IsOpen() { return IsWindowVisible(Popup()) != 0; }

  HelpViewer viewer{testing::ShippedHelpFile(DAYVANE_HELP_FILE)};
  HelpWindow help{viewer.Handle()};
};

TEST_F(HelpPopupTest, ExplainsOneControlWithoutTheHelpWindow) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(testing::WindowText(Popup()), L"Purge Age");
  EXPECT_TRUE(testing::PageText(PopupPage()).starts_with(L"Purge Age\n"));
  EXPECT_FALSE(viewer.IsOpen());
}

TEST_F(HelpPopupTest, ShowsAllOfItsText) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  RECT room;
  GetClientRect(Popup(), &room);
  RECT page;
  GetWindowRect(PopupPage(), &page);
  EXPECT_EQ(page.bottom - page.top, room.bottom);
  EXPECT_EQ(SendMessageW(PopupPage(), EM_GETFIRSTVISIBLELINE, 0, 0), 0);
  POINT last{};
  const auto end = static_cast<LPARAM>(testing::PageText(PopupPage()).size()) - 1;
  SendMessageW(PopupPage(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&last), end);
  EXPECT_GT(last.y, 20);
  EXPECT_LT(last.y, room.bottom - 8);
}

TEST_F(HelpPopupTest, GoesAtAnyKey) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  testing::Press(Popup(), VK_SPACE);
  EXPECT_FALSE(IsOpen());
}

TEST_F(HelpPopupTest, GoesAtAClickOnItsText) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  SendMessageW(PopupPage(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 12));
  SendMessageW(PopupPage(), WM_LBUTTONUP, 0, MAKELPARAM(30, 12));
  EXPECT_FALSE(IsOpen());
}

TEST_F(HelpPopupTest, GoesWhenAnotherWindowGetsTheKeyboard) {
  viewer.ShowContents();
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  SetActiveWindow(viewer.Handle());
  EXPECT_FALSE(IsOpen());
}

TEST_F(HelpPopupTest, StaysOnTheScreen) {
  for (const POINT at : {POINT{100'000, 100'000}, POINT{-100'000, -100'000}}) {
    viewer.ShowPopup(kHelpPurgeAge, at);
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromPoint(at, MONITOR_DEFAULTTONEAREST), &screen);
    RECT place;
    GetWindowRect(Popup(), &place);
    RECT inside;
    IntersectRect(&inside, &place, &screen.rcWork);
    EXPECT_TRUE(EqualRect(&inside, &place));
  }
}

TEST_F(HelpPopupTest, LiesBelowThePlaceAskedAbout) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  RECT place;
  GetWindowRect(Popup(), &place);
  EXPECT_EQ(place.left, 100);
  EXPECT_GT(place.top, 100);
}

TEST_F(HelpPopupTest, ALinkOpensTheHelpWindow) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  testing::ClickLink(PopupPage(), L"Removing old days");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(viewer.IsOpen());
  EXPECT_TRUE(testing::PageText(help.Page()).starts_with(L"Removing old days\n"));
}

TEST_F(HelpPopupTest, WithoutATopicTheFriendlyPageOpens) {
  viewer.ShowPopup(9999, {100, 100});
  EXPECT_EQ(Popup(), nullptr);
  EXPECT_TRUE(testing::PageText(help.Page()).starts_with(L"No help on this yet\n"));
}

TEST_F(HelpPopupTest, TheNextOneTakesThePlaceOfTheLast) {
  viewer.ShowPopup(kHelpPurgeAge, {100, 100});
  viewer.ShowPopup(kHelpCalendar, {200, 200});
  EXPECT_EQ(testing::WindowText(Popup()), L"Calendar");
  EXPECT_EQ(FindWindowExW(nullptr, Popup(), L"Dayvane.HelpPopup", nullptr), nullptr);
}

}  // namespace
}  // namespace dayvane::help
