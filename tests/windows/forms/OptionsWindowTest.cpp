// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "settings/FOptions.h"
#include "tests/support/TestDesktop.h"
#include "tests/windows/MessageLoop.h"
#include "windows/forms/OptionsWindow.h"
#include "windows/forms/Questions.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::HeldKey;
using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::TestDesktop;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The options dialog with 3 days, 30 days and 60 seconds in it, on the screen.
class WindowsOptionsTest : public ::testing::Test {
 protected:
  WindowsOptionsTest() {
    m_options.SetFavoritesThreshold(3);
    m_options.SetPurgeAge(30);
    m_options.SetTimerInterval(60);
    m_options.form.SetVisible(true);
    RunMessages();
  }

  HWND Field(int number) const {
    HWND field = nullptr;
    for (int i = 0; i <= number; ++i) field = FindWindowExW(m_window.Handle(), field, L"Edit", nullptr);
    return field;
  }
  HWND Button(int id) const { return GetDlgItem(m_window.Handle(), id); }

  static std::wstring Text(HWND window) {
    wchar_t text[64]{};
    GetWindowTextW(window, text, 64);
    return text;
  }

  static std::wstring Selected(HWND field) {
    DWORD first = 0;
    DWORD last = 0;
    SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
    return Text(field).substr(first, last - first);
  }

  void Type(wchar_t character) {
    PostMessageW(GetFocus(), WM_CHAR, character, 1);
    RunMessages();
  }
  void Click(int id) {
    SendMessageW(Button(id), BM_CLICK, 0, 0);
    RunMessages();
  }

  TestDesktop m_desktop;
  Application m_application{m_desktop.desktop, m_desktop.Folder()};
  DeferredWaker m_waker;
  FOptions m_options{m_application};
  OptionsWindow m_window{m_options, nullptr};
};

TEST_F(WindowsOptionsTest, TheFieldsShowTheValues) {
  EXPECT_EQ(Text(Field(0)), L"3");
  EXPECT_EQ(Text(Field(1)), L"30");
  EXPECT_EQ(Text(Field(2)), L"60");
  EXPECT_EQ(Text(m_window.Handle()), L"Dayvane Options");
}

TEST_F(WindowsOptionsTest, TheFirstFieldHasTheKeyboardWithItsTextSelected) {
  EXPECT_EQ(GetFocus(), Field(0));
  EXPECT_EQ(Selected(Field(0)), L"3");
}

TEST_F(WindowsOptionsTest, TypingReplacesTheValue) {
  Type(L'1');
  Type(L'2');

  EXPECT_EQ(m_options.FavoritesThreshold(), 12);
}

TEST_F(WindowsOptionsTest, TabGoesThroughFieldsAndButtonsAndAround) {
  std::vector<HWND> order;
  for (int i = 0; i < 6; ++i) {
    PressKey(GetFocus(), VK_TAB);
    order.push_back(GetFocus());
  }

  EXPECT_THAT(order, ElementsAre(Field(1), Field(2), Button(IDOK), Button(IDCANCEL), Button(IDHELP), Field(0)));
}

TEST_F(WindowsOptionsTest, AccessKeysGoToTheFields) {
  PostMessageW(GetFocus(), WM_SYSCHAR, L't', 1 << 29);
  RunMessages();
  EXPECT_EQ(GetFocus(), Field(2));
  EXPECT_EQ(Selected(Field(2)), L"60");

  PostMessageW(GetFocus(), WM_SYSCHAR, L'p', 1 << 29);
  RunMessages();
  EXPECT_EQ(GetFocus(), Field(1));
}

TEST_F(WindowsOptionsTest, ALetterIsRefusedWithTheFieldsMessage) {
  Type(L'x');

  EXPECT_EQ(Text(Field(0)), L"3");
  EXPECT_THAT(m_desktop.windowing.Texts(), ElementsAre("The Favorites Threshhold must be 1 or more."));
}

TEST_F(WindowsOptionsTest, EnterAcceptsAndEscapeCancels) {
  PressKey(Field(0), VK_RETURN);
  EXPECT_FALSE(m_options.form.Visible());
  EXPECT_FALSE(IsWindowVisible(m_window.Handle()));

  m_options.form.SetVisible(true);
  RunMessages();
  PressKey(Field(0), VK_ESCAPE);
  EXPECT_FALSE(m_options.form.Visible());
  EXPECT_FALSE(m_options.form.IsUnloaded());
}

TEST_F(WindowsOptionsTest, EnterOnAButtonPressesThatButton) {
  SetFocus(Button(IDHELP));

  PressKey(Button(IDHELP), VK_RETURN);

  EXPECT_TRUE(m_options.form.Visible());
  EXPECT_EQ(m_desktop.help.shown.size(), 1U);
}

TEST_F(WindowsOptionsTest, OkWithAValueOutOfRangeStaysAndGoesToItsField) {
  SetFocus(Field(2));
  Type(L'6');
  Type(L'1');

  Click(IDOK);

  EXPECT_TRUE(m_options.form.Visible());
  EXPECT_EQ(GetFocus(), Field(2));
  EXPECT_THAT(m_desktop.windowing.Texts(), ElementsAre("The Timer Interval must be between 1 and 60."));
}

TEST_F(WindowsOptionsTest, F1ShowsTheDialogsHelpOnce) {
  PressKey(Field(0), VK_F1);

  EXPECT_EQ(m_desktop.help.shown.size(), 1U);
}

TEST_F(WindowsOptionsTest, EveryPartOfAFieldExplainsIt) {
  std::vector<int> topics;
  m_window.Presenter().SetTopicHelp([&](int id, POINT) { topics.push_back(id); });
  const HWND label = GetWindow(m_window.Handle(), GW_CHILD);
  const HWND arrows = FindWindowExW(m_window.Handle(), nullptr, UPDOWN_CLASSW, nullptr);
  for (const HWND part : {label, Field(0), arrows}) {
    RECT place{};
    GetWindowRect(part, &place);
    SendMessageW(m_window.Handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(part),
                 MAKELPARAM(place.left + 3, place.top + 3));
  }

  EXPECT_THAT(topics, ElementsAre(2, 2, 2));
}

TEST_F(WindowsOptionsTest, NothingIsCutOff) {
  RECT inside{};
  GetClientRect(m_window.Handle(), &inside);
  for (HWND child = GetWindow(m_window.Handle(), GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT)) {
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, m_window.Handle(), reinterpret_cast<POINT*>(&place), 2);
    RECT common{};
    IntersectRect(&common, &place, &inside);
    EXPECT_TRUE(EqualRect(&common, &place)) << place.left << ' ' << place.top;
    EXPECT_GT(place.bottom, place.top);
  }
}

TEST_F(WindowsOptionsTest, ItGrowsWithTheDotsOfItsScreen) {
  RECT before{};
  GetClientRect(m_window.Handle(), &before);
  const RECT suggested{0, 0, 800, 500};

  SendMessageW(m_window.Handle(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&suggested));

  RECT after{};
  GetClientRect(m_window.Handle(), &after);
  EXPECT_NEAR(after.right, before.right * 1.5, before.right * 0.1);
}

}  // namespace
}  // namespace dayvane::widgets
