// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/support/MainWindow.h"
#include "tests/windows/widgets/TestWindow.h"
#include "windows/forms/MainWindow.h"
#include "windows/widgets/DayWords.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kRoom = 7;  ///< pixels at 96 dots per inch between the panes and the window's edge

/// Of everything that the window lays out itself.
struct Places {
  RECT calendar, days, list, status, inside;
};

/// The program's window over a temporary folder, filled with two days of documents.
class WindowsMainWindowTest : public ::testing::Test {
 protected:
  WindowsMainWindowTest() {
    m_program.desktop.OpenDocument("C:\\Users\\ana\\Old.odt", "2026-11-20 09:15:00");
    m_program.desktop.OpenDocument("C:\\Users\\ana\\New.odt", "2026-11-21 09:15:00");
    m_program.Load();
    m_main.form.SetVisible(true);
    HandleMessages();
  }

  /// The shown window of a class, or of several the one with this text in its name.
  HWND Find(const wchar_t* className, const std::string& name = "") const {
    struct Search {
      const wchar_t* className;
      const std::string& name;
      HWND found;
    } search{className, name, nullptr};
    const auto look = [](HWND window, LPARAM lParam) -> BOOL {
      auto& wanted = *reinterpret_cast<Search*>(lParam);
      wchar_t text[100]{};
      GetClassNameW(window, text, 100);
      if (lstrcmpiW(text, wanted.className) != 0 || TextOf(window).find(wanted.name) == std::string::npos) return TRUE;
      wanted.found = window;
      return FALSE;
    };
    EnumChildWindows(m_window.Handle(), look, reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  HWND Calendar() const { return Find(MONTHCAL_CLASSW); }
  HWND Days() const { return Find(WC_TREEVIEWW); }
  HWND List() const { return Find(WC_LISTVIEWW, "Documents of the day"); }
  HWND Favorites() const { return Find(WC_LISTVIEWW, "Favorites"); }
  HWND Status() const { return Find(STATUSCLASSNAMEW); }
  HWND Bar() const { return Find(TOOLBARCLASSNAMEW); }
  HWND Heading() const { return Find(WC_STATICW); }

  RECT PlaceOf(HWND window) const {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, m_window.Handle(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  Places PlacesNow() const {
    RECT inside{};
    GetClientRect(m_window.Handle(), &inside);
    return {PlaceOf(Calendar()), PlaceOf(Days()), PlaceOf(List()), PlaceOf(Status()), inside};
  }

  std::string FirstDocument() const {
    wchar_t text[100]{};
    LVITEMW item{};
    item.pszText = text;
    item.cchTextMax = 100;
    SendMessageW(List(), LVM_GETITEMTEXTW, 0, reinterpret_cast<LPARAM>(&item));
    return files::FromWide(text).value_or("");
  }

  /// A key as the event loop sees it.
  void PressKey(HWND window, int key, int held = 0) {
    if (held != 0) HoldKey(held, true);
    MSG message{window, WM_KEYDOWN, static_cast<WPARAM>(key), 1, 0, {}};
    if (!m_window.Presenter().Translate(message)) SendMessageW(window, message.message, message.wParam, message.lParam);
    if (held != 0) HoldKey(held, false);
    HandleMessages();
  }

  int HelpIdAt(HWND window, POINT at) {
    std::vector<int> topics;
    m_window.Presenter().SetTopicHelp([&](int id, POINT) { topics.push_back(id); });
    m_main.form.WhatsThisMode();
    HandleMessages();
    MapWindowPoints(window, m_window.Handle(), &at, 1);
    SendMessageW(m_window.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    HandleMessages();
    return topics.size() == 1 ? topics.front() : 0;
  }

  int HelpIdOfButton(std::size_t button) {
    RECT place{};
    SendMessageW(Bar(), TB_GETRECT, static_cast<WPARAM>(ToolbarPresenter::CommandOf(button)),
                 reinterpret_cast<LPARAM>(&place));
    return HelpIdAt(Bar(), {(place.left + place.right) / 2, (place.top + place.bottom) / 2});
  }

  testing::MainWindow m_program;
  FMain& m_main = m_program.window;
  Icons m_icons;
  MainWindow m_window{m_main, m_icons, m_program.desktop.dates};
};

TEST_F(WindowsMainWindowTest, TheCalendarIsAboveTheDaysAndTheListToTheirRight) {
  const Places places = PlacesNow();

  EXPECT_EQ(places.calendar.left, kRoom);
  EXPECT_EQ(places.days.left, kRoom);
  EXPECT_EQ(places.days.top - places.calendar.bottom, kRoom);
  EXPECT_EQ(places.list.left - places.days.right, kRoom);
  EXPECT_EQ(places.days.right, places.calendar.right);
}

TEST_F(WindowsMainWindowTest, NothingReachesPastTheEdgeOrOverTheStatusBar) {
  const Places places = PlacesNow();

  EXPECT_EQ(places.status.bottom, places.inside.bottom);
  EXPECT_EQ(places.inside.right - places.list.right, kRoom);
  EXPECT_LE(places.list.bottom, places.status.top);
  EXPECT_EQ(places.days.bottom, places.list.bottom);
}

TEST_F(WindowsMainWindowTest, ThePanesFollowTheWindow) {
  SetWindowPos(m_window.Handle(), nullptr, 0, 0, 700, 500, SWP_NOZORDER);
  HandleMessages();
  const Places places = PlacesNow();

  EXPECT_LT(places.inside.right, 700);
  EXPECT_EQ(places.inside.right - places.list.right, kRoom);
  EXPECT_EQ(places.status.right, places.inside.right);
  EXPECT_EQ(PlaceOf(GetParent(Bar())).right, places.inside.right);
}

TEST_F(WindowsMainWindowTest, TheSmallestWindowFitsASmallScreen) {
  MINMAXINFO limits{};
  SendMessageW(m_window.Handle(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));

  EXPECT_LE(limits.ptMinTrackSize.x, 640);
  EXPECT_LE(limits.ptMinTrackSize.y, 480);
  EXPECT_GT(limits.ptMinTrackSize.x, 300);
}

TEST_F(WindowsMainWindowTest, TheFavoritesTakeTheWholeWidth) {
  m_main.SetActiveView(FMain::kFavoritesView);
  HandleMessages();

  EXPECT_FALSE(IsWindowVisible(Calendar()));
  EXPECT_EQ(PlaceOf(Favorites()).left, kRoom);
  EXPECT_EQ(PlacesNow().inside.right - PlaceOf(Favorites()).right, kRoom);
}

TEST_F(WindowsMainWindowTest, OpensAtTheLatestDay) {
  SYSTEMTIME day{};
  SendMessageW(Calendar(), MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&day));

  EXPECT_EQ(day.wDay, 21);
  EXPECT_EQ(FirstDocument(), "New.odt");
  EXPECT_EQ(TextOf(m_window.Handle()), m_main.form.Caption());
}

TEST_F(WindowsMainWindowTest, ADayOfTheCalendarShowsItsDocumentsAndItsNode) {
  m_main.calMain.SetCurrentDate(std::chrono::local_days{std::chrono::year{2026} / 11 / 20});

  EXPECT_EQ(TextOf(Heading()), DayWords(std::chrono::local_days{std::chrono::year{2026} / 11 / 20}));
  EXPECT_EQ(FirstDocument(), "Old.odt");
  EXPECT_EQ(m_main.tvwMain.SelectedItem()->text, "20");
}

TEST_F(WindowsMainWindowTest, TheListSaysWhichDayItIsOf) {
  const std::string words = DayWords(std::chrono::local_days{std::chrono::year{2026} / 11 / 21});
  EXPECT_EQ(TextOf(Heading()), words);
  EXPECT_EQ(TextOf(List()), "Documents of the day, " + words);

  m_main.tvwMain.Click(m_program.Node("2026\\November"));
  EXPECT_EQ(TextOf(Heading()), "November 2026");
  m_main.tvwMain.Click(*m_main.tvwMain.Roots().front());
  EXPECT_EQ(TextOf(Heading()), "");
}

TEST_F(WindowsMainWindowTest, TheHeadingStandsAboveTheListAndBelowTheToolbar) {
  EXPECT_GT(PlaceOf(Heading()).top, PlaceOf(Bar()).bottom);
  EXPECT_LE(PlaceOf(Heading()).bottom, PlacesNow().list.top);
  EXPECT_GE(PlaceOf(Heading()).left, PlacesNow().list.left);
}

TEST_F(WindowsMainWindowTest, ControlAndADigitChooseTheView) {
  PressKey(List(), '2', VK_CONTROL);
  EXPECT_TRUE(m_main.picFavorites.Visible());

  PressKey(Favorites(), '1', VK_CONTROL);
  EXPECT_TRUE(m_main.picDaily.Visible());
}

TEST_F(WindowsMainWindowTest, ControlAndWHideTheWindow) {
  PressKey(List(), 'W', VK_CONTROL);

  EXPECT_FALSE(IsWindowVisible(m_window.Handle()));
  EXPECT_FALSE(m_main.form.IsUnloaded());
}

TEST_F(WindowsMainWindowTest, ControlAndQEndTheProgramAsExitDoes) {
  PressKey(List(), 'Q', VK_CONTROL);

  EXPECT_THAT(m_program.desktop.windowing.posted, ElementsAre(platform::kWmClose));
}

TEST_F(WindowsMainWindowTest, F1ShowsTheHelpOfTheWindow) {
  PressKey(List(), VK_F1);

  EXPECT_THAT(m_program.desktop.help.shown, ElementsAre(HasSubstr(std::to_string(kHelpMainWindow))));
}

TEST_F(WindowsMainWindowTest, AnEntryOfTheMenuBarIsChosen) {
  const HMENU view = GetSubMenu(GetMenu(m_window.Handle()), 1);

  SendMessageW(m_window.Handle(), WM_COMMAND, GetMenuItemID(view, kViewFavorites), 0);

  EXPECT_TRUE(m_main.picFavorites.Visible());
  EXPECT_EQ(GetMenuItemCount(GetMenu(m_window.Handle())), 4);
}

TEST_F(WindowsMainWindowTest, SuspendedIsSeenInTheStatusBarAndInTheWindowsIcon) {
  const auto icon = [&] { return SendMessageW(m_window.Handle(), WM_GETICON, ICON_BIG, 0); };
  const LRESULT usual = icon();
  EXPECT_EQ(SendMessageW(Status(), SB_GETPARTS, 0, 0), 1);

  m_main.SetActive(false);
  EXPECT_EQ(SendMessageW(Status(), SB_GETPARTS, 0, 0), 2);
  EXPECT_NE(icon(), usual);

  m_main.SetActive(true);
  EXPECT_EQ(SendMessageW(Status(), SB_GETPARTS, 0, 0), 1);
}

TEST_F(WindowsMainWindowTest, EverythingThatTakesTheKeyboardHasASpokenName) {
  for (const HWND window : {Calendar(), Days(), List(), Favorites(), Bar()}) EXPECT_NE(TextOf(window), "");
}

TEST_F(WindowsMainWindowTest, TheTabKeyGoesFromTheCalendarToTheDaysToTheDocumentsToTheToolbarAndRound) {
  SetFocus(Calendar());
  std::vector<HWND> visited;
  for (int press = 0; press < 4; ++press) {
    PressKey(GetFocus(), VK_TAB);
    visited.push_back(GetFocus());
  }

  EXPECT_THAT(visited, ElementsAre(Days(), List(), Bar(), Calendar()));
}

TEST_F(WindowsMainWindowTest, TheListOfTheViewThatIsShownHasTheKeyboard) {
  EXPECT_EQ(GetFocus(), List());

  m_main.SetActiveView(FMain::kFavoritesView);
  EXPECT_EQ(GetFocus(), Favorites());

  m_main.SetActiveView(FMain::kDailyView);
  EXPECT_EQ(GetFocus(), List());
}

TEST_F(WindowsMainWindowTest, TheListsKeepTheirRoomWhenTheScreenHasMoreDotsAndBack) {
  const Places before = PlacesNow();
  RECT frame{};
  GetWindowRect(m_window.Handle(), &frame);
  RECT large{0, 0, 1800, 1200};

  SendMessageW(m_window.Handle(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&large));
  HandleMessages();
  const Places enlarged = PlacesNow();
  EXPECT_GT(enlarged.calendar.bottom - enlarged.calendar.top, 3 * (before.calendar.bottom - before.calendar.top) / 2);
  EXPECT_GT(enlarged.days.top, enlarged.calendar.bottom);
  EXPECT_GE(enlarged.list.right - enlarged.list.left, 440);
  EXPECT_LE(enlarged.list.bottom, enlarged.status.top);
  EXPECT_NEAR(enlarged.inside.right - enlarged.list.right, 2 * kRoom, 2);

  SendMessageW(m_window.Handle(), WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&frame));
  HandleMessages();
  const Places again = PlacesNow();
  EXPECT_TRUE(EqualRect(&again.calendar, &before.calendar));
  EXPECT_TRUE(EqualRect(&again.days, &before.days));
  EXPECT_TRUE(EqualRect(&again.list, &before.list));
}

TEST_F(WindowsMainWindowTest, ASplitterThatTheUserDraggedStaysThere) {
  const LONG before = PlacesNow().days.right;
  const HWND splitter = Find(L"Dayvane.Splitter");
  SendMessageW(splitter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 10));
  SendMessageW(splitter, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(81, 10));
  SendMessageW(splitter, WM_LBUTTONUP, 0, MAKELPARAM(81, 10));
  EXPECT_EQ(PlacesNow().days.right, before + 80);

  SendMessageW(m_window.Handle(), WM_SETTINGCHANGE, 0, 0);
  HandleMessages();

  EXPECT_EQ(PlacesNow().days.right, before + 80);
  EXPECT_EQ(PlacesNow().list.left, before + 80 + kRoom);
  EXPECT_EQ(PlacesNow().inside.right - PlacesNow().list.right, kRoom);
}

TEST_F(WindowsMainWindowTest, EveryControlIsExplainedThatIsClickedInWhatsThisMode) {
  EXPECT_EQ(HelpIdAt(Calendar(), {20, 20}), 26);
  EXPECT_EQ(HelpIdAt(Days(), {20, 20}), 25);
  EXPECT_EQ(HelpIdAt(List(), {20, 60}), 24);
  std::vector<int> topics;
  for (const std::size_t button : {kDailyButton, kFavoritesButton, kExploreButton, kOpenFolderButton, kLargeIconsButton,
                                   kSmallIconsButton, kListButton, kDetailsButton, kHelpButton})
    topics.push_back(HelpIdOfButton(button));
  EXPECT_THAT(topics, ElementsAre(21, 18, 19, 20, 16, 17, 14, 15, 4));

  m_main.SetActiveView(FMain::kFavoritesView);
  EXPECT_EQ(HelpIdAt(Favorites(), {20, 60}), 23);
}

TEST_F(WindowsMainWindowTest, TheRulesOfTheToolbarSpanIt) {
  const double width = m_main.picMain[FMainControls::kToolbarStrip].Width();

  EXPECT_GT(width, 1000);
  EXPECT_EQ(m_main.linToolbar[1].X2(), width);
}

}  // namespace
}  // namespace dayvane::widgets
