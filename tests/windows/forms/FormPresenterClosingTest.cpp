// SPDX-License-Identifier: MIT
// How a form goes: by its user, by programs that end others, at the session's end.

#include "tests/windows/forms/FormPresenterFixture.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::WaitUntil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(WindowsFormPresenterTest, ACloseThatIsRefusedLeavesTheWindow) {
  Open();
  HearUnloads(true);

  SendMessageW(Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);

  EXPECT_TRUE(IsWindowVisible(Handle()));
  EXPECT_THAT(m_modes, ElementsAre(UnloadMode::ControlMenu));
}

TEST_F(WindowsFormPresenterTest, AClosedWindowIsAFormThatIsGone) {
  Open();

  SendMessageW(Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);

  EXPECT_FALSE(IsWindowVisible(Handle()));
  EXPECT_TRUE(m_form.IsUnloaded());
}

TEST_F(WindowsFormPresenterTest, AFormThatIsGoneIsNotToldOfAnActivation) {
  Open();
  int activations = 0;
  m_form.Activate.Connect([&] { ++activations; });
  SendMessageW(Handle(), WM_ACTIVATE, WA_ACTIVE, 0);

  SendMessageW(Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
  RunMessages();

  EXPECT_EQ(activations, 0);
}

TEST_F(WindowsFormPresenterTest, AProgramThatEndsOthersIsToldApartFromTheCloseBox) {
  Open();
  HearUnloads(false);

  SendMessageW(Handle(), WM_CLOSE, 0, 0);

  EXPECT_THAT(m_modes, ElementsAre(UnloadMode::TaskManager));
}

TEST_F(WindowsFormPresenterTest, ClosingInTheMiddleOfWorkDoesNothing) {
  Open();
  const controls::WorkScope work;

  SendMessageW(Handle(), WM_SYSCOMMAND, SC_CLOSE, 0);

  EXPECT_FALSE(m_form.IsUnloaded());
}

TEST_F(WindowsFormPresenterTest, TheEndOfTheSessionIsToldAsSuchAndNotRefused) {
  Open();
  HearUnloads(false);

  EXPECT_TRUE(SendMessageW(Handle(), WM_QUERYENDSESSION, 0, 0));
  EXPECT_THAT(m_modes, IsEmpty());
  SendMessageW(Handle(), WM_ENDSESSION, TRUE, 0);

  EXPECT_THAT(m_modes, ElementsAre(UnloadMode::SystemSession));
}

TEST_F(WindowsFormPresenterTest, ASessionThatGoesOnAfterAllChangesNothing) {
  Open();
  HearUnloads(false);

  SendMessageW(Handle(), WM_QUERYENDSESSION, 0, 0);
  SendMessageW(Handle(), WM_ENDSESSION, FALSE, 0);

  EXPECT_THAT(m_modes, IsEmpty());
}

TEST_F(WindowsFormPresenterTest, TheSessionsEndWaitsForTheEndOfTheWork) {
  Open();
  {
    const controls::WorkScope work;
    Presenter().EndSession();
    EXPECT_FALSE(m_form.IsUnloaded());
  }
  EXPECT_TRUE(WaitUntil([this] { return m_form.IsUnloaded(); }));
}

TEST_F(WindowsFormPresenterTest, TheSessionsEndClosesWhatIsStillAsked) {
  Open();
  bool wasAsking = true;
  m_form.Unload.Connect([&] { wasAsking = controls::IsAsking(); });
  {
    const controls::QuestionScope question;
    const Soon end([this] { Presenter().EndSession(); });
    EXPECT_EQ(MessageBoxW(Handle(), L"Remove?", L"Dayvane", MB_YESNO), IDNO);
    EXPECT_FALSE(m_form.IsUnloaded());
  }
  EXPECT_TRUE(WaitUntil([this] { return m_form.IsUnloaded(); }));
  EXPECT_FALSE(wasAsking);
}

TEST_F(WindowsFormPresenterTest, AMessageIsClosedAtTheSessionsEndToo) {
  Open();
  const controls::QuestionScope question;
  const Soon end([this] { SendMessageW(Handle(), WM_QUERYENDSESSION, 0, 0); });

  EXPECT_NE(MessageBoxW(Handle(), L"Done.", L"Dayvane", MB_OK), 0);
}

}  // namespace
}  // namespace dayvane::widgets
