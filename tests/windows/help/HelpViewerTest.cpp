// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <optional>

#include "resources/MHelpConstants.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/windows/help/HelpSupport.h"
#include "windows/help/HelpViewer.h"

// clang-format off: it needs the system's header
#include <richedit.h>
// clang-format on

namespace dayvane::help {
namespace {

using dayvane::testing::TemporaryFolder;
using testing::HelpWindow;

class HelpViewerTest : public ::testing::Test {
 protected:
  std::wstring Page() const { return testing::PageText(help.Page()); }
  std::wstring Title() const { return testing::WindowText(viewer.Handle()); }
  bool IsEnabled(HelpCommand command) const {
    return SendMessageW(help.Toolbar(), TB_ISBUTTONENABLED, static_cast<WPARAM>(command), 0) != 0;
  }
  void PressButton(HelpCommand command) const {
    SendMessageW(viewer.Handle(), WM_COMMAND, static_cast<WPARAM>(command), reinterpret_cast<LPARAM>(help.Toolbar()));
  }

  HelpViewer viewer{testing::ShippedHelpFile(DAYVANE_HELP_FILE)};
  HelpWindow help{viewer.Handle()};
};

TEST_F(HelpViewerTest, ContentsOpenOnTheFirstPage) {
  viewer.ShowContents();
  EXPECT_TRUE(viewer.IsOpen());
  EXPECT_TRUE(Page().starts_with(L"Dayvane Help\n"));
  EXPECT_EQ(Title(), L"Dayvane Help");
}

TEST_F(HelpViewerTest, TheTopicAskedForIsShownAndMarkedInTheContents) {
  viewer.ShowTopic(kHelpMainWindow);
  EXPECT_TRUE(Page().starts_with(L"The main window\n"));
  EXPECT_EQ(Title(), L"The main window - Dayvane Help");
  EXPECT_EQ(testing::MarkedEntry(help.Tree()), L"The main window");
}

TEST_F(HelpViewerTest, AnUnknownContextGetsAFriendlyPage) {
  viewer.ShowTopic(9999);
  EXPECT_TRUE(viewer.IsOpen());
  EXPECT_TRUE(Page().starts_with(L"No help on this yet\n"));
  testing::ClickLink(help.Page(), L"Go to the first page");
  EXPECT_TRUE(Page().starts_with(L"Dayvane Help\n"));
}

TEST_F(HelpViewerTest, ALinkIsFollowedAndTheWayBackIsKept) {
  viewer.ShowTopic(kHelpDayTree);
  testing::ClickLink(help.Page(), L"calendar");
  EXPECT_TRUE(Page().starts_with(L"Calendar\n"));
  EXPECT_EQ(testing::MarkedEntry(help.Tree()), L"Calendar");
  testing::Press(help.Page(), VK_LEFT, VK_MENU);
  EXPECT_TRUE(Page().starts_with(L"Day tree\n"));
  EXPECT_EQ(testing::MarkedEntry(help.Tree()), L"Day tree");
  testing::Press(help.Page(), VK_RIGHT, VK_MENU);
  EXPECT_TRUE(Page().starts_with(L"Calendar\n"));
}

TEST_F(HelpViewerTest, ALinkInATableIsFollowed) {
  viewer.ShowTopic(kHelpMainWindow);
  testing::ClickLink(help.Page(), L"Toolbar");
  EXPECT_TRUE(Page().starts_with(L"Toolbar\n"));
}

TEST_F(HelpViewerTest, LinksAreReachedAndFollowedByTheKeyboard) {
  viewer.ShowTopic(kHelpMainWindow);
  testing::Press(help.Page(), VK_TAB);
  EXPECT_EQ(testing::SelectedText(help.Page()), L"Menus");
  testing::Press(help.Page(), VK_TAB);
  EXPECT_EQ(testing::SelectedText(help.Page()), L"Toolbar");
  testing::Press(help.Page(), VK_TAB, VK_SHIFT);
  EXPECT_EQ(testing::SelectedText(help.Page()), L"Menus");
  testing::Press(help.Page(), VK_RETURN);
  EXPECT_TRUE(Page().starts_with(L"Menus\n"));
}

TEST_F(HelpViewerTest, PastTheLastLinkTheKeyboardLeavesThePage) {
  viewer.ShowTopic(kHelpPurgeAge);
  for (int press = 0; press < 100 && GetFocus() == help.Page(); press++) testing::Press(help.Page(), VK_TAB);
  EXPECT_NE(GetFocus(), help.Page());
  EXPECT_TRUE(IsChild(viewer.Handle(), GetFocus()));
}

TEST_F(HelpViewerTest, BackAndForwardCanBePressedWhereThereIsAWay) {
  viewer.ShowTopic(kHelpDayTree);
  EXPECT_FALSE(IsEnabled(HelpCommand::Back));
  viewer.ShowTopic(kHelpCalendar);
  EXPECT_TRUE(IsEnabled(HelpCommand::Back));
  PressButton(HelpCommand::Back);
  EXPECT_TRUE(Page().starts_with(L"Day tree\n"));
  EXPECT_FALSE(IsEnabled(HelpCommand::Back));
  EXPECT_TRUE(IsEnabled(HelpCommand::Forward));
}

TEST_F(HelpViewerTest, APageIsFoundAgainWhereItWasLeft) {
  viewer.ShowTopic(kHelpMainWindow);
  POINT down{0, 200};
  SendMessageW(help.Page(), EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&down));
  viewer.ShowTopic(kHelpCalendar);
  PressButton(HelpCommand::Back);
  POINT scrolled{};
  SendMessageW(help.Page(), EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&scrolled));
  EXPECT_EQ(scrolled.y, 200);
}

TEST_F(HelpViewerTest, ChoosingInTheContentsShowsTheTopic) {
  viewer.ShowContents();
  const HTREEITEM options = testing::EntryOf(help.Tree(), L"Options");
  SendMessageW(help.Tree(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(options));
  EXPECT_TRUE(Page().starts_with(L"Options\n"));
}

TEST_F(HelpViewerTest, SearchListsTheTopicsAndEnterShowsTheFirst) {
  viewer.ShowContents();
  testing::Press(help.Page(), 'K', VK_CONTROL);
  EXPECT_EQ(GetFocus(), help.Search());
  testing::Type(help.Search(), L"purge age");
  ASSERT_TRUE(IsWindowVisible(help.Found()));
  ASSERT_GE(SendMessageW(help.Found(), LB_GETCOUNT, 0, 0), 2);
  testing::Press(help.Search(), VK_RETURN);
  EXPECT_TRUE(Page().starts_with(L"Purge Age\n"));
}

TEST_F(HelpViewerTest, ASearchWithoutAFindSaysSo) {
  viewer.ShowContents();
  SetFocus(help.Search());
  testing::Type(help.Search(), L"xylophone");
  testing::Press(help.Search(), VK_RETURN);
  wchar_t text[100]{};
  SendMessageW(help.Found(), LB_GETTEXT, 0, reinterpret_cast<LPARAM>(text));
  EXPECT_STREQ(text, L"No topic holds these words.");
  EXPECT_TRUE(Page().starts_with(L"Dayvane Help\n"));
}

TEST_F(HelpViewerTest, ClearingTheSearchBringsTheContentsBack) {
  viewer.ShowContents();
  testing::Type(help.Search(), L"purge");
  EXPECT_FALSE(IsWindowVisible(help.Tree()));
  SetWindowTextW(help.Search(), L"");
  EXPECT_TRUE(IsWindowVisible(help.Tree()));
  EXPECT_FALSE(IsWindowVisible(help.Found()));
}

TEST_F(HelpViewerTest, FindInPageSelectsTheWordsAndWrapsAround) {
  viewer.ShowTopic(kHelpFirstRun);
  testing::Press(help.Page(), 'F', VK_CONTROL);
  EXPECT_EQ(GetFocus(), help.Words());
  testing::Type(help.Words(), L"double-click");
  EXPECT_EQ(testing::SelectedText(help.Page()), L"Double-click");
  CHARRANGE first{};
  SendMessageW(help.Page(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&first));
  testing::Press(help.Words(), VK_RETURN);
  CHARRANGE again{};
  SendMessageW(help.Page(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&again));
  EXPECT_EQ(again.cpMin, first.cpMin);
}

TEST_F(HelpViewerTest, FindGoesToTheNextPlaceAndBack) {
  viewer.ShowTopic(kHelpMainWindow);
  testing::Press(help.Page(), 'F', VK_CONTROL);
  testing::Type(help.Words(), L"view");
  const auto place = [&] {
    CHARRANGE selected{};
    SendMessageW(help.Page(), EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&selected));
    return selected.cpMin;
  };
  const LONG first = place();
  testing::Press(help.Words(), VK_F3);
  EXPECT_GT(place(), first);
  testing::Press(help.Words(), VK_F3, VK_SHIFT);
  EXPECT_EQ(place(), first);
}

TEST_F(HelpViewerTest, WordsThatAreNotOnThePageAreReported) {
  viewer.ShowTopic(kHelpFirstRun);
  testing::Press(help.Page(), 'F', VK_CONTROL);
  const HWND notFound = FindWindowExW(help.FindBar(), nullptr, L"STATIC", L"Not found");
  testing::Type(help.Words(), L"d");
  EXPECT_FALSE(IsWindowVisible(notFound));
  testing::Type(help.Words(), L"xylophone");
  EXPECT_TRUE(IsWindowVisible(notFound));
}

TEST_F(HelpViewerTest, EscapeClosesTheFindBarAndThenTheWindow) {
  viewer.ShowContents();
  testing::Press(help.Page(), 'F', VK_CONTROL);
  EXPECT_TRUE(IsWindowVisible(help.FindBar()));
  testing::Press(help.Words(), VK_ESCAPE);
  EXPECT_FALSE(IsWindowVisible(help.FindBar()));
  EXPECT_EQ(GetFocus(), help.Page());
  EXPECT_TRUE(viewer.IsOpen());
  testing::Press(help.Page(), VK_ESCAPE);
  EXPECT_FALSE(viewer.IsOpen());
}

TEST_F(HelpViewerTest, ClosingOnlyHidesTheWindow) {
  viewer.ShowContents();
  SendMessageW(viewer.Handle(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(viewer.IsOpen());
  viewer.ShowTopic(kHelpOptions);
  EXPECT_TRUE(viewer.IsOpen());
}

TEST_F(HelpViewerTest, TextIsMadeLargerAndNormalAgain) {
  viewer.ShowTopic(kHelpPurgeAge);
  const auto height = [&] {
    CHARRANGE body{20, 21};
    SendMessageW(help.Page(), EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&body));
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(help.Page(), EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    return format.yHeight;
  };
  const LONG normal = height();
  testing::Press(help.Page(), VK_OEM_PLUS, VK_CONTROL);
  EXPECT_EQ(height(), normal + 20);
  testing::Press(help.Page(), '0', VK_CONTROL);
  EXPECT_EQ(height(), normal);
  for (int press = 0; press < 50; press++) testing::Press(help.Page(), VK_OEM_MINUS, VK_CONTROL);
  EXPECT_GE(height(), 80);
}

TEST_F(HelpViewerTest, ANewWidthLaysThePageOutAgainWithoutLosingItsPlace) {
  viewer.ShowTopic(kHelpMainWindow);
  POINT down{0, 100};
  SendMessageW(help.Page(), EM_SETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&down));
  SetWindowPos(viewer.Handle(), nullptr, 0, 0, 700, 500, SWP_NOMOVE | SWP_NOZORDER);
  POINT scrolled{};
  SendMessageW(help.Page(), EM_GETSCROLLPOS, 0, reinterpret_cast<LPARAM>(&scrolled));
  EXPECT_EQ(scrolled.y, 100);
  EXPECT_TRUE(Page().starts_with(L"The main window\n"));
}

TEST_F(HelpViewerTest, TheSplitterMakesRoomForTheContents) {
  viewer.ShowTopic(kHelpMainWindow);
  RECT before;
  GetWindowRect(help.Page(), &before);
  RECT inside = before;
  MapWindowPoints(nullptr, viewer.Handle(), reinterpret_cast<POINT*>(&inside), 2);
  SendMessageW(viewer.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(inside.left - 2, 200));
  SendMessageW(viewer.Handle(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(inside.left + 48, 200));
  SendMessageW(viewer.Handle(), WM_LBUTTONUP, 0, MAKELPARAM(inside.left + 48, 200));
  RECT after;
  GetWindowRect(help.Page(), &after);
  EXPECT_GT(after.left, before.left + 30);
  EXPECT_EQ(after.right, before.right);
  EXPECT_NE(GetCapture(), viewer.Handle());
}

TEST_F(HelpViewerTest, AScreenOfOtherDotsPerInchGetsAPageOfItsOwn) {
  viewer.ShowTopic(kHelpMainWindow);
  RECT place;
  GetWindowRect(viewer.Handle(), &place);
  SendMessageW(viewer.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
  EXPECT_TRUE(Page().starts_with(L"The main window\n"));
  EXPECT_EQ(testing::MarkedEntry(help.Tree()), L"The main window");
}

TEST_F(HelpViewerTest, EveryButtonHasANameAndCanBeReachedByKeyboard) {
  const LRESULT count = SendMessageW(help.Toolbar(), TB_BUTTONCOUNT, 0, 0);
  EXPECT_EQ(count, 10);
  for (int command = 1; command <= static_cast<int>(HelpCommand::Find); command++) {
    wchar_t text[100]{};
    EXPECT_GT(SendMessageW(help.Toolbar(), TB_GETBUTTONTEXTW, command, reinterpret_cast<LPARAM>(text)), 4);
  }
  EXPECT_TRUE(GetWindowLongPtrW(help.Toolbar(), GWL_STYLE) & WS_TABSTOP);
}

TEST(HelpViewerWithoutFile, AMissingHelpFileIsReportedInTheWindow) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "\\Dayvane.hlp";
  HelpViewer viewer(path);
  viewer.ShowTopic(kHelpMainWindow);
  EXPECT_TRUE(viewer.IsOpen());
  const std::wstring page = testing::PageText(HelpWindow{viewer.Handle()}.Page());
  EXPECT_TRUE(page.starts_with(L"Help cannot be shown\nThe help file was not found. It should be here: "));
  EXPECT_NE(page.find(L"\\Dayvane.hlp. Installing Dayvane again brings it back."), std::wstring::npos);
}

TEST(HelpViewerWithoutFile, ADamagedHelpFileIsReportedInTheWindow) {
  const TemporaryFolder folder;
  folder.Write("Dayvane.hlp", "Dayvane help 1\ntopic 5");
  HelpViewer viewer(folder.Path() + "\\Dayvane.hlp");
  viewer.ShowContents();
  EXPECT_NE(testing::PageText(HelpWindow{viewer.Handle()}.Page()).find(L"incomplete"), std::wstring::npos);
  viewer.ShowPopup(kHelpPurgeAge, {10, 10});
  EXPECT_TRUE(viewer.IsOpen());
}

TEST(HelpViewerWithoutFile, AFileThatAppearsLaterIsRead) {
  const TemporaryFolder folder;
  HelpViewer viewer(folder.Path() + "\\Dayvane.hlp");
  viewer.ShowContents();
  folder.Write("Dayvane.hlp", "Dayvane help 1\ntopic 9 home\nHome\nText\ncontents 4\nhome\nend\n");
  viewer.ShowContents();
  EXPECT_EQ(testing::PageText(HelpWindow{viewer.Handle()}.Page()), L"Home\nText");
}

/// A help file of one topic.
class HelpViewerOneTopicTest : public ::testing::Test {
 protected:
  std::wstring Show(const std::string& title, const std::string& body) {
    const std::string topic = title + "\n" + body;
    folder.Write("Dayvane.hlp", "Dayvane help 1\ntopic " + std::to_string(topic.size()) + " home 1\n" + topic +
                                    "\ncontents 4\nhome\nend\n");
    viewer.emplace(folder.Path() + "\\Dayvane.hlp");
    viewer->ShowTopic(1);
    return testing::PageText(HelpWindow{viewer->Handle()}.Page());
  }

  TemporaryFolder folder;
  std::optional<HelpViewer> viewer;
};

TEST_F(HelpViewerOneTopicTest, GreekAndChineseAreShown) {
  EXPECT_EQ(Show("Ημερολόγιο 日历", "<p>Τα έγγραφα &#8220;文档&#8221; της ημέρας</p>"),
            L"Ημερολόγιο 日历\nΤα έγγραφα “文档” της ημέρας");
  EXPECT_EQ(testing::WindowText(viewer->Handle()), L"Ημερολόγιο 日历 - Dayvane Help");
  EXPECT_EQ(testing::MarkedEntry(HelpWindow{viewer->Handle()}.Tree()), L"Ημερολόγιο 日历");
}

TEST_F(HelpViewerOneTopicTest, BracesAndBackslashesAreText) {
  EXPECT_EQ(Show("{\\b}", "<p>C:\\par {x} \\'41</p>"), L"{\\b}\nC:\\par {x} \\'41");
}

TEST_F(HelpViewerOneTopicTest, AHugeTopicIsShownFromItsBeginning) {
  std::string body;
  for (int line = 0; line < 20'000; line++) body += "<p>Line " + std::to_string(line) + " of a long topic</p>";
  const std::wstring page = Show("Huge", body);
  EXPECT_TRUE(page.starts_with(L"Huge\nLine 0 of a long topic\n"));
  EXPECT_GT(page.size(), 50'000U);
}

TEST_F(HelpViewerOneTopicTest, ALinkOutOfTheHelpIsNotFollowed) {
  const std::wstring page = Show("Home", "<p><a href=\"https://dayvane.example/\">Away</a></p>");
  testing::ClickLink(HelpWindow{viewer->Handle()}.Page(), L"Away");
  EXPECT_EQ(testing::PageText(HelpWindow{viewer->Handle()}.Page()), page);
}

TEST_F(HelpViewerOneTopicTest, WordsBeforeALinkOfTheSameWordsAreNoLink) {
  Show("Home", "<p>Day tree, see <a href=\"home\">Day tree</a></p>");
  const HWND page = HelpWindow{viewer->Handle()}.Page();
  EXPECT_FALSE(testing::IsLink(page, testing::PlaceOf(page, L"Day tree")));
  EXPECT_TRUE(testing::IsLink(page, testing::PlaceOf(page, L"Day tree", 10)));
}

}  // namespace
}  // namespace dayvane::help
