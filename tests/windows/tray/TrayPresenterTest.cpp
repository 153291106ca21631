// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <optional>

#include "resources/MResourceConstants.h"
#include "tests/windows/MessageLoop.h"
#include "windows/forms/EventLoop.h"
#include "windows/forms/Questions.h"
#include "windows/tray/TrayPresenter.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::WaitUntil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The notification area, of which nothing but what it is told is known.
struct ScriptedShell {
  bool Notify(DWORD message, NOTIFYICONDATAW& data) {
    if (!isRunning || (message == NIM_MODIFY && !hasIcon)) return false;
    hasIcon = message != NIM_DELETE;
    tip = data.szTip;
    if (data.hIcon != icon) ++pictures;
    icon = data.hIcon;
    return true;
  }
  bool isRunning = true;
  bool hasIcon = false;
  std::wstring tip;
  HICON icon = nullptr;
  int pictures = 0;
};

class WindowsTrayTest : public ::testing::Test {
 protected:
  WindowsTrayTest() {
    m_control.SetTipText("Dayvane");
    m_control.SetPicture(kNormalIcon);
    m_form.SetVisible(true);
    m_control.MouseUp.Connect([this](int button, int) { m_buttons.push_back(button); });
  }

  void Present() {
    m_presenter.emplace(
        m_control, m_form, [this](DWORD message, NOTIFYICONDATAW& data) { return m_shell.Notify(message, data); },
        std::chrono::milliseconds(1));
  }
  void PresentWithoutTray() {
    m_shell.isRunning = false;
    Present();
  }
  void TellTaskBarCreated() {
    SendMessageW(m_presenter->TheIcon().Handle(), RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
  }
  /// What the shell tells of the mouse over the icon.
  void Mouse(UINT message) { SendMessageW(m_presenter->TheIcon().Handle(), WM_APP + 1, 1, message); }

  DeferredWaker m_waker;
  ScriptedShell m_shell;
  controls::SystemTray m_control;
  controls::Form m_form;
  std::vector<int> m_buttons;
  std::optional<TrayPresenter> m_presenter;
};

TEST_F(WindowsTrayTest, TheIconIsThereWithItsTipAndGoesWithTheProgram) {
  Present();
  EXPECT_TRUE(m_shell.hasIcon);
  EXPECT_EQ(m_shell.tip, L"Dayvane");
  EXPECT_NE(m_shell.icon, nullptr);

  m_presenter.reset();
  EXPECT_FALSE(m_shell.hasIcon);
}

TEST_F(WindowsTrayTest, ALongTipIsCutBetweenCharacters) {
  EXPECT_EQ(CutToUnits(L"abc", 3), L"abc");
  EXPECT_EQ(CutToUnits(L"abcd", 3), L"abc");
  EXPECT_EQ(CutToUnits(L"ab\xD83D\xDE00", 3), L"ab");
  m_control.SetTipText(std::string(500, 'x'));

  Present();

  EXPECT_EQ(m_shell.tip, std::wstring(127, L'x'));
}

TEST_F(WindowsTrayTest, EachButtonIsToldByItsNumberWhenItIsReleased) {
  Present();

  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN, WM_RBUTTONUP, WM_MBUTTONUP, WM_MOUSEMOVE})
    Mouse(message);

  EXPECT_THAT(m_buttons, ElementsAre(1, 2, 4));
}

TEST_F(WindowsTrayTest, TwoQuickClicksAreTwo) {
  Present();

  for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}) Mouse(message);

  EXPECT_THAT(m_buttons, ElementsAre(1, 1));
}

TEST_F(WindowsTrayTest, AClickInTheMiddleOfWorkWaits) {
  Present();
  {
    const controls::WorkScope work;
    Mouse(WM_LBUTTONUP);
    EXPECT_THAT(m_buttons, IsEmpty());
  }
  RunMessages();
  EXPECT_THAT(m_buttons, ElementsAre(1));
}

TEST_F(WindowsTrayTest, AClickForAWindowThatGoesMeanwhileDoesNotShowItAgain) {
  Present();
  {
    const controls::WorkScope work;
    Mouse(WM_LBUTTONUP);
    m_form.SetVisible(false);
  }
  RunMessages();
  EXPECT_THAT(m_buttons, IsEmpty());
}

TEST_F(WindowsTrayTest, AClickWhileABoxIsOpenIsNoCommand) {
  Present();
  const Soon click([this] {
    Mouse(WM_LBUTTONUP);
    PostMessageW(OpenQuestion(), WM_CLOSE, 0, 0);
  });

  MessageBoxW(nullptr, L"Remove?", L"Dayvane", MB_OK);
  RunMessages();

  EXPECT_THAT(m_buttons, IsEmpty());
}

TEST_F(WindowsTrayTest, ATaskBarThatStartsAgainGetsTheIconAgain) {
  Present();
  m_shell.hasIcon = false;

  TellTaskBarCreated();

  EXPECT_TRUE(m_shell.hasIcon);
}

TEST_F(WindowsTrayTest, ATaskBarThatStartsAfterTheProgramGetsTheIcon) {
  PresentWithoutTray();
  EXPECT_FALSE(m_presenter->HasIcon());
  m_shell.isRunning = true;

  EXPECT_TRUE(WaitUntil([this] { return m_presenter->HasIcon(); }));
}

TEST_F(WindowsTrayTest, AWindowThatIsHiddenWithoutATrayHasAStandInAtOnce) {
  PresentWithoutTray();
  EXPECT_FALSE(m_presenter->StandIn().IsShown());

  m_form.SetVisible(false);

  EXPECT_TRUE(m_presenter->StandIn().IsShown());
  EXPECT_TRUE(IsIconic(m_presenter->StandIn().Handle()));
}

TEST_F(WindowsTrayTest, AProgramThatStartsHiddenWithoutATrayHasAStandInSoon) {
  m_form.SetVisible(false);
  PresentWithoutTray();

  EXPECT_TRUE(WaitUntil([this] { return m_presenter->StandIn().IsShown(); }));
}

TEST_F(WindowsTrayTest, OpeningTheStandInIsAClickOnTheIcon) {
  PresentWithoutTray();
  m_form.SetVisible(false);
  m_control.MouseUp.Connect([this](int, int) { m_form.SetVisible(true); });

  ShowWindow(m_presenter->StandIn().Handle(), SW_RESTORE);

  EXPECT_THAT(m_buttons, ElementsAre(1));
  EXPECT_FALSE(m_presenter->StandIn().IsShown());
}

TEST_F(WindowsTrayTest, ClosingTheStandInLeavesAWayToTheProgram) {
  PresentWithoutTray();
  m_form.SetVisible(false);

  SendMessageW(m_presenter->StandIn().Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  SendMessageW(m_presenter->StandIn().Handle(), WM_CLOSE, 0, 0);

  EXPECT_TRUE(m_presenter->StandIn().IsShown());
}

TEST_F(WindowsTrayTest, TheStandInGoesWhenATrayComes) {
  PresentWithoutTray();
  m_form.SetVisible(false);
  m_shell.isRunning = true;

  TellTaskBarCreated();

  EXPECT_FALSE(m_presenter->StandIn().IsShown());
}

TEST_F(WindowsTrayTest, TheStandInGoesWithTheForm) {
  PresentWithoutTray();
  m_form.SetVisible(false);

  m_form.RequestUnload(controls::UnloadMode::Code);
  m_form.SetEnabled(false);

  EXPECT_FALSE(m_presenter->StandIn().IsShown());
}

TEST_F(WindowsTrayTest, APollThatIsOverInAMomentChangesNothingOnTheScreen) {
  Present();
  m_shell.pictures = 0;
  {
    const controls::BackgroundScope poll;
    m_control.SetPicture(kBusyIcon);
    LateShow::ShowWhatLasts();
    m_control.SetPicture(kNormalIcon);
  }
  LateShow::ShowWhatLasts();

  EXPECT_EQ(m_shell.pictures, 0);
}

TEST_F(WindowsTrayTest, APollThatLastsShowsThatTheProgramIsBusy) {
  Present();
  m_shell.pictures = 0;
  const controls::BackgroundScope poll;
  m_control.SetPicture(kBusyIcon);

  EXPECT_TRUE(WaitUntil([this] {
    LateShow::ShowWhatLasts();
    return m_shell.pictures == 1;
  }));
}

TEST_F(WindowsTrayTest, WorkThatTheUserAskedForShowsAtOnce) {
  Present();
  m_shell.pictures = 0;

  m_control.SetPicture(kBusyIcon);

  EXPECT_EQ(m_shell.pictures, 1);
}

TEST_F(WindowsTrayTest, AShellThatFailsLeavesTheProgramRunning) {
  m_presenter.emplace(m_control, m_form);  // the real one, which has no notification area without a display

  m_control.SetPicture(kSuspendedIcon);
  m_presenter.reset();
}

}  // namespace
}  // namespace dayvane::widgets
