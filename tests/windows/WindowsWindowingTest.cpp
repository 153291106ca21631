// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <optional>

#include "controls/Deferred.h"
#include "tests/windows/MessageLoop.h"
#include "tests/windows/forms/TestForm.h"
#include "windows/WindowsWindowing.h"
#include "windows/forms/Questions.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::TestFormWindow;
using dayvane::testing::WaitUntil;
using platform::Message;
using platform::MessageAnswer;
using platform::MessageButtons;
using platform::MessageIcon;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::wstring TitleOf(HWND window) {
  wchar_t text[512]{};
  GetWindowTextW(window, text, 512);
  return text;
}

/// The words of all the children of a box.
std::wstring WordsIn(HWND box) {
  std::wstring words;
  const auto add = [](HWND child, LPARAM all) -> BOOL {
    *reinterpret_cast<std::wstring*>(all) += TitleOf(child) + L'|';
    return TRUE;
  };
  EnumChildWindows(box, add, reinterpret_cast<LPARAM>(&words));
  return words;
}

void Answer(HWND box, int command) {
  PostMessageW(box, WM_COMMAND, MAKEWPARAM(command, BN_CLICKED), reinterpret_cast<LPARAM>(GetDlgItem(box, command)));
}

class WindowsWindowingTest : public ::testing::Test {
 protected:
  WindowsWindowingTest() { m_windowing.Register(m_window.Presenter()); }
  ~WindowsWindowingTest() override { m_windowing.Forget(m_window.Presenter()); }

  void Open() {
    m_form.SetVisible(true);
    RunMessages();
  }

  WindowsWindowing m_windowing;
  controls::Form m_form;
  TestFormWindow m_window{m_form};
};

TEST_F(WindowsWindowingTest, AMessageShowsItsLinesAndTitleOverTheWindow) {
  Open();
  std::wstring words;
  std::wstring title;
  HWND owner = nullptr;
  const Soon close([&] {
    const HWND box = OpenQuestion();
    words = WordsIn(box);
    title = TitleOf(box);
    owner = GetWindow(box, GW_OWNER);
    PostMessageW(box, WM_CLOSE, 0, 0);
  });

  const auto answer =
      m_windowing.ShowMessage({"One\r\nTwo Ω", "Dayvane", MessageButtons::Ok, MessageIcon::Information});

  EXPECT_EQ(answer, MessageAnswer::Ok);
  EXPECT_NE(words.find(L"One\r\nTwo Ω|"), std::wstring::npos);
  EXPECT_EQ(title, L"Dayvane");
  EXPECT_EQ(owner, m_window.Handle());
}

TEST_F(WindowsWindowingTest, AQuestionIsAnsweredByItsButtons) {
  const Message question{"Remove?", "Dayvane", MessageButtons::YesNo, MessageIcon::Question};
  for (const int button : {IDYES, IDNO}) {
    const Soon answer([&] { Answer(OpenQuestion(), button); });
    EXPECT_EQ(static_cast<int>(m_windowing.ShowMessage(question)), button);
  }
}

TEST_F(WindowsWindowingTest, NoWindowTakesInputWhileABoxIsOpen) {
  Open();
  controls::Form otherForm;
  TestFormWindow other(otherForm);
  m_windowing.Register(other.Presenter());
  otherForm.SetVisible(true);
  RunMessages();
  bool wasEnabled = true;
  const Soon close([&] {
    wasEnabled = IsWindowEnabled(m_window.Handle()) != 0 || IsWindowEnabled(other.Handle()) != 0;
    PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0);
  });

  m_windowing.ShowMessage({"One", "Dayvane"});

  EXPECT_FALSE(wasEnabled);
  EXPECT_TRUE(IsWindowEnabled(m_window.Handle()));
  EXPECT_TRUE(IsWindowEnabled(other.Handle()));
  m_windowing.Forget(other.Presenter());
}

TEST_F(WindowsWindowingTest, NobodyIsAskedOrToldOnceTheSessionEnds) {
  m_windowing.EndSession();

  EXPECT_EQ(m_windowing.ShowMessage({"Remove?", "Dayvane", MessageButtons::YesNo}), MessageAnswer::No);
  EXPECT_EQ(m_windowing.ShowMessage({"One", "Dayvane"}), MessageAnswer::Ok);
  m_windowing.ShowAbout({});
  m_windowing.ShowModal(m_form);
  EXPECT_FALSE(m_form.Visible());
}

TEST_F(WindowsWindowingTest, ASessionThatGoesOnIsAskedAgain) {
  m_windowing.EndSession();
  m_windowing.SessionGoesOn();
  const Soon answer([] { Answer(OpenQuestion(), IDYES); });

  EXPECT_EQ(m_windowing.ShowMessage({"Remove?", "Dayvane", MessageButtons::YesNo}), MessageAnswer::Yes);
}

TEST_F(WindowsWindowingTest, ABoxThatIsOpenAtTheSessionsEndIsClosed) {
  const Soon end([this] { m_windowing.EndSession(); });

  EXPECT_EQ(m_windowing.ShowMessage({"Remove?", "Dayvane", MessageButtons::YesNo}), MessageAnswer::No);
}

TEST_F(WindowsWindowingTest, ThePointerIsAnArrowWhileAMessageWaits) {
  Open();
  m_form.SetPointer(controls::MousePointer::Hourglass);
  SetCursor(LoadCursorW(nullptr, IDC_WAIT));
  HCURSOR shown = nullptr;
  const Soon close([&] {
    shown = GetCursor();
    PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0);
  });

  m_windowing.ShowMessage({"One", "Dayvane"});

  EXPECT_EQ(shown, LoadCursorW(nullptr, IDC_ARROW));
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
}

TEST_F(WindowsWindowingTest, CaptureGoesOnWhileAMessageWaitsButCommandsDoNot) {
  bool wasAsking = false;
  const Soon close([&] {
    wasAsking = controls::IsAsking();
    PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0);
  });

  m_windowing.ShowMessage({"One", "Dayvane"});

  EXPECT_TRUE(wasAsking);
  EXPECT_FALSE(controls::IsAsking());
}

/// Counts what is told to a window.
class Listener : public TestFormWindow {
 public:
  using TestFormWindow::TestFormWindow;
  int paintings = 0;
  int clicks = 0;
  int ticks = 0;
  bool wasAtWork = false;

 protected:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_PAINT) ++paintings;
    if (message == WM_PAINT) wasAtWork = controls::IsAtWork();
    if (message == WM_LBUTTONDOWN) ++clicks;
    if (message == WM_TIMER) ++ticks;
    return TestFormWindow::OnMessage(message, wParam, lParam);
  }
};

class WindowsPendingMessagesTest : public WindowsWindowingTest {
 protected:
  WindowsPendingMessagesTest() {
    m_windowing.Register(m_listener.Presenter());
    m_shown.Move(0, 0, 3000, 3000);
    m_shown.SetVisible(true);
    RunMessages();
    m_listener.paintings = 0;
    InvalidateRect(m_listener.Handle(), nullptr, TRUE);
  }
  ~WindowsPendingMessagesTest() override { m_windowing.Forget(m_listener.Presenter()); }

  controls::Form m_shown;
  Listener m_listener{m_shown};
};

TEST_F(WindowsPendingMessagesTest, WindowsArePaintedInTheMiddleOfWork) {
  m_windowing.ProcessPendingMessages();

  EXPECT_EQ(m_listener.paintings, 1);
  EXPECT_TRUE(m_listener.wasAtWork);
  EXPECT_FALSE(controls::IsAtWork());
}

TEST_F(WindowsPendingMessagesTest, WhatTheUserDoesWaitsAndNoTimerTicks) {
  PostMessageW(m_listener.Handle(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SetTimer(m_listener.Handle(), 77, 1, nullptr);
  Sleep(20);  // the timer's time, which only shows when it would tick wrongly

  m_windowing.ProcessPendingMessages();
  EXPECT_EQ(m_listener.clicks, 0);
  EXPECT_EQ(m_listener.ticks, 0);

  RunMessages();
  EXPECT_EQ(m_listener.clicks, 1);
  EXPECT_GE(m_listener.ticks, 1);
  KillTimer(m_listener.Handle(), 77);
}

TEST_F(WindowsPendingMessagesTest, TheyAreNotRunForEveryItemOfLongWork) {
  m_windowing.ProcessPendingMessages();
  InvalidateRect(m_listener.Handle(), nullptr, TRUE);
  const ULONGLONG start = GetTickCount64();
  m_windowing.ProcessPendingMessages();
  const bool wasQuick = GetTickCount64() - start < 40;
  EXPECT_TRUE(!wasQuick || m_listener.paintings == 1);

  EXPECT_TRUE(WaitUntil([this] { return m_listener.paintings == 2; }));
}

TEST_F(WindowsPendingMessagesTest, TheProgramsEndIsNotLostInTheMiddleOfWork) {
  PostQuitMessage(4);

  m_windowing.ProcessPendingMessages();

  EXPECT_EQ(RunEventLoop([] {}), 4);
}

TEST_F(WindowsWindowingTest, APostedCloseArrivesLaterAsTheProgramsOwn) {
  std::vector<UnloadMode> modes;
  m_form.QueryUnload.Connect([&](bool&, UnloadMode mode) { modes.push_back(mode); });

  m_windowing.PostMessage(m_form, platform::kWmClose);
  m_windowing.PostMessage(m_form, platform::kWmUser);
  EXPECT_FALSE(m_form.IsUnloaded());
  RunMessages();

  EXPECT_THAT(modes, ElementsAre(UnloadMode::Code));
}

TEST_F(WindowsWindowingTest, AModalFormIsShownUntilItHides) {
  bool wasVisible = false;
  bool wasAsking = false;
  const Soon hide([&] {
    wasVisible = IsWindowVisible(m_window.Handle()) != 0;
    wasAsking = controls::IsAsking();
    m_form.SetVisible(false);
  });

  m_windowing.ShowModal(m_form);

  EXPECT_TRUE(wasVisible);
  EXPECT_TRUE(wasAsking);
}

TEST_F(WindowsWindowingTest, ThingsAskedOfAFormWithoutAWindowAreNothing) {
  controls::Form unknown;
  controls::Menu menu("", {{"&Open"}});

  m_windowing.ShowModal(unknown);
  m_windowing.PostMessage(unknown, platform::kWmClose);
  m_windowing.SetForegroundWindow(unknown);
  m_windowing.PopupMenu(unknown, menu, 0, 0);
  m_windowing.PopupMenuAtMouse(unknown, menu, 0);

  EXPECT_FALSE(unknown.Visible());
}

/// A popup menu of the system's, of this thread.
HWND OpenMenu() {
  return FindWindowW(L"#32768", nullptr);
}

TEST_F(WindowsWindowingTest, AnItemOfAPopupMenuIsChosenWithTheKeyboard) {
  Open();
  controls::Menu menu("", {{"&Show"}, {"&Hide"}});
  std::vector<int> chosen;
  menu.Click.Connect([&](int index) { chosen.push_back(index); });
  const Soon choose([this] {
    PostMessageW(m_window.Handle(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(m_window.Handle(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(m_window.Handle(), WM_KEYDOWN, VK_RETURN, 1);
  });

  m_windowing.PopupMenuAtMouse(m_form, menu, -1);

  EXPECT_THAT(chosen, ElementsAre(1));
}

TEST_F(WindowsWindowingTest, APopupMenuOpensAtAPointOfTheForm) {
  m_form.Move(1500, 1500, 6000, 6000);
  Open();
  controls::Menu menu("", {{"&Open"}});
  POINT expected{50, 20};
  ClientToScreen(m_window.Handle(), &expected);
  RECT place{};
  const Soon close([&] {
    GetWindowRect(OpenMenu(), &place);
    EndMenu();
  });

  m_windowing.PopupMenu(m_form, menu, 750, 300);

  EXPECT_EQ(place.left, expected.x);
  EXPECT_EQ(place.top, expected.y);
}

TEST_F(WindowsWindowingTest, ThereIsOnePopupMenuAtATime) {
  Open();
  controls::Menu menu("", {{"&Open"}});
  bool isOpenStill = false;
  const Soon close([&] {
    m_windowing.PopupMenuAtMouse(m_form, menu, -1);
    isOpenStill = OpenMenu() != nullptr;
    EndMenu();
  });

  m_windowing.PopupMenuAtMouse(m_form, menu, -1);

  EXPECT_TRUE(isOpenStill);
}

TEST_F(WindowsWindowingTest, TheAboutBoxSaysWhatTheProgramIsAndEscapeClosesIt) {
  Open();
  std::wstring words;
  const Soon close([&] {
    const HWND box = OpenQuestion();
    words = WordsIn(box);
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
  });

  m_windowing.ShowAbout(
      {"Dayvane", "Version 1.0.12", "Korvath", "Copyright ©", "Legal & text", "https://dayvane.example/"});

  for (const wchar_t* part : {L"Dayvane|", L"Version 1.0.12|", L"Korvath|", L"Copyright ©|", L"Legal & text|", L"OK|",
                              L"https://dayvane.example/"})
    EXPECT_NE(words.find(part), std::wstring::npos) << part;
  EXPECT_EQ(GetActiveWindow(), m_window.Handle());
}

TEST_F(WindowsWindowingTest, EnterClosesTheAboutBox) {
  const Soon close([] { PostMessageW(GetFocus(), WM_KEYDOWN, VK_RETURN, 1); });

  m_windowing.ShowAbout({"Dayvane", "1", "Korvath", "C", "W", "https://dayvane.example/"});

  EXPECT_EQ(OpenQuestion(), nullptr);
}

TEST_F(WindowsWindowingTest, TheAboutBoxGoesAtTheSessionsEnd) {
  const Soon end([this] { m_windowing.EndSession(); });

  m_windowing.ShowAbout({"Dayvane", "1", "Korvath", "C", "W", "https://dayvane.example/"});

  EXPECT_EQ(OpenQuestion(), nullptr);
}

}  // namespace
}  // namespace dayvane::widgets
