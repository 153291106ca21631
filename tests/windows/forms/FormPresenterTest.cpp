// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <memory>

#include "tests/windows/MessageLoop.h"
#include "tests/windows/forms/TestForm.h"
#include "windows/files/WideText.h"
#include "windows/forms/FormPresenter.h"
#include "windows/forms/Questions.h"
#include "windows/widgets/ChildWindow.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using controls::WindowState;
using dayvane::testing::HeldKey;
using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::TestFormWindow;
using dayvane::testing::WaitUntil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class WindowsFormPresenterTest : public ::testing::Test {
 protected:
  void Open() {
    m_form.SetVisible(true);
    RunMessages();
  }
  HWND Handle() const { return m_window.Handle(); }
  UINT Dpi() const { return GetDpiForWindow(Handle()); }
  FormPresenter& Presenter() { return m_window.Presenter(); }
  void HearUnloads(bool refuse) {
    m_form.QueryUnload.Connect([this, refuse](bool& cancel, UnloadMode mode) {
      m_modes.push_back(mode);
      cancel = refuse;
    });
  }
  RECT Frame() const {
    RECT frame{};
    GetWindowRect(Handle(), &frame);
    return frame;
  }

  controls::Form m_form;
  TestFormWindow m_window{m_form};
  DeferredWaker m_waker;
  std::vector<UnloadMode> m_modes;
};

TEST_F(WindowsFormPresenterTest, AFormIsHiddenUntilItIsMadeVisible) {
  EXPECT_FALSE(IsWindowVisible(Handle()));

  m_form.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(Handle()));

  m_form.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(Handle()));
}

TEST_F(WindowsFormPresenterTest, TheCaptionIsTheWindowsTitle) {
  m_form.SetCaption("Dayvane - Ω");

  wchar_t title[64]{};
  GetWindowTextW(Handle(), title, 64);
  EXPECT_EQ(std::wstring(title), L"Dayvane - Ω");
}

TEST_F(WindowsFormPresenterTest, TheWindowOpensWhereTheFormSays) {
  MoveControl(m_form, {50, 60, 370, 300}, Dpi());

  Open();

  const RECT expected{50, 60, 370, 300};
  const RECT frame = Frame();
  EXPECT_TRUE(EqualRect(&frame, &expected));
}

TEST_F(WindowsFormPresenterTest, AFormLargerThanTheScreenIsMadeToFit) {
  MoveControl(m_form, {0, 0, 30000, 30000}, Dpi());

  const RECT fitted = PixelRect(m_form, Dpi());
  const RECT frame = Frame();

  EXPECT_TRUE(EqualRect(&fitted, &frame));
  EXPECT_LT(fitted.right, 30000);
}

TEST_F(WindowsFormPresenterTest, AFormThatIsOnNoScreenComesBackToOne) {
  MoveControl(m_form, {-9000, -9000, -8700, -8800}, Dpi());

  Open();

  const RECT frame = Frame();
  EXPECT_NE(MonitorFromRect(&frame, MONITOR_DEFAULTTONULL), nullptr);
  EXPECT_EQ(frame.right - frame.left, 300);
}

TEST_F(WindowsFormPresenterTest, AWindowThatTheUserMovesIsMovedInTheForm) {
  Open();

  MoveWindow(Handle(), 44, 55, 333, 222, TRUE);

  const RECT expected{44, 55, 44 + 333, 55 + 222};
  const RECT place = PixelRect(m_form, Dpi());
  EXPECT_TRUE(EqualRect(&place, &expected));
}

TEST_F(WindowsFormPresenterTest, TheScaleIsTheRoomInsideTheWindow) {
  Open();

  MoveWindow(Handle(), 0, 0, 400, 300, TRUE);

  RECT inside{};
  GetClientRect(Handle(), &inside);
  EXPECT_EQ(m_form.ScaleWidth(), ToTwips(inside.right, Dpi()));
  EXPECT_EQ(m_form.ScaleHeight(), ToTwips(inside.bottom, Dpi()));
  EXPECT_LT(inside.bottom, 300);
}

TEST_F(WindowsFormPresenterTest, AFormIsSizedOnceWhenItFirstOpens) {
  Open();
  int sized = 0;
  m_form.Resize.Connect([&] { ++sized; });

  m_form.SetVisible(false);
  m_form.SetVisible(true);

  EXPECT_EQ(sized, 0);
}

TEST_F(WindowsFormPresenterTest, AMaximisedFormKeepsItsNormalPlace) {
  MoveControl(m_form, {50, 60, 370, 300}, Dpi());
  Open();

  m_form.SetState(WindowState::Maximised);
  RunMessages();

  EXPECT_TRUE(IsZoomed(Handle()));
  const RECT expected{50, 60, 370, 300};
  const RECT place = PixelRect(m_form, Dpi());
  EXPECT_TRUE(EqualRect(&place, &expected));
}

TEST_F(WindowsFormPresenterTest, AFormThatIsMaximisedWhileHiddenOpensMaximised) {
  m_form.SetState(WindowState::Maximised);
  EXPECT_FALSE(IsWindowVisible(Handle()));

  Open();

  EXPECT_TRUE(IsZoomed(Handle()));
  EXPECT_EQ(m_form.State(), WindowState::Maximised);
}

TEST_F(WindowsFormPresenterTest, MaximisingByTheUserIsTheFormsState) {
  Open();

  ShowWindow(Handle(), SW_MAXIMIZE);
  RunMessages();

  EXPECT_EQ(m_form.State(), WindowState::Maximised);
}

TEST_F(WindowsFormPresenterTest, AMaximisedFormMayHideWhenItIsMinimisedAndComesBackNormal) {
  Open();
  ShowWindow(Handle(), SW_MAXIMIZE);
  RunMessages();
  m_form.Resize.Connect([this] {
    if (m_form.State() != WindowState::Minimised) return;
    m_form.SetVisible(false);
    m_form.SetState(WindowState::Normal);
  });

  ShowWindow(Handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitUntil([this] { return !m_form.Visible(); }));
  Open();

  EXPECT_TRUE(IsWindowVisible(Handle()));
  EXPECT_FALSE(IsIconic(Handle()));
  EXPECT_FALSE(IsZoomed(Handle()));
}

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

TEST_F(WindowsFormPresenterTest, TheHourglassIsOverTheWholeWindow) {
  Open();
  const auto pointerOver = [this] {
    SetCursor(LoadCursorW(nullptr, IDC_ARROW));
    SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor();
  };
  m_form.SetPointer(controls::MousePointer::Hourglass);
  EXPECT_EQ(pointerOver(), LoadCursorW(nullptr, IDC_WAIT));

  m_form.SetPointer(controls::MousePointer::Default);
  EXPECT_EQ(pointerOver(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowsFormPresenterTest, TheFormIsToldWhenItIsActivated) {
  int activations = 0;
  m_form.Activate.Connect([&] { ++activations; });

  Open();

  EXPECT_EQ(activations, 1);
}

TEST_F(WindowsFormPresenterTest, AReleasedKeyIsHeard) {
  const HWND child = m_window.AddChild(L"EDIT", 0);
  Open();
  std::vector<std::pair<int, int>> keys;
  m_form.KeyUp.Connect([&](int key, int modifiers) { keys.emplace_back(key, modifiers); });

  PressKey(child, VK_F1);

  EXPECT_THAT(keys, ElementsAre(Pair(112, 0)));
}

TEST_F(WindowsFormPresenterTest, AKeyThatWasPressedElsewhereIsNotHeard) {
  Open();
  int keys = 0;
  m_form.KeyUp.Connect([&](int, int) { ++keys; });

  PostMessageW(Handle(), WM_KEYUP, VK_RETURN, static_cast<LPARAM>(0xC0000001));
  RunMessages();

  EXPECT_EQ(keys, 0);
}

TEST_F(WindowsFormPresenterTest, TabGoesFromControlToControl) {
  const HWND first = m_window.AddChild(L"EDIT", 0);
  const HWND second = m_window.AddChild(L"EDIT", 50);
  Open();
  EXPECT_EQ(GetFocus(), first);

  PressKey(first, VK_TAB);

  EXPECT_EQ(GetFocus(), second);
}

TEST_F(WindowsFormPresenterTest, TheKeyboardComesBackToTheControlThatHadIt) {
  m_window.AddChild(L"EDIT", 0);
  const HWND second = m_window.AddChild(L"EDIT", 50);
  controls::Form otherForm;
  TestFormWindow other(otherForm);
  Open();
  SetFocus(second);

  otherForm.SetVisible(true);
  RunMessages();
  ASSERT_NE(GetFocus(), second);
  Presenter().BringToFront();
  RunMessages();

  EXPECT_EQ(GetFocus(), second);
}

TEST_F(WindowsFormPresenterTest, AModalFormReturnsWhenItHides) {
  const Soon hide([this] { m_form.SetVisible(false); });

  Presenter().ShowModal();

  EXPECT_FALSE(IsWindowVisible(Handle()));
}

TEST_F(WindowsFormPresenterTest, TheOwnerOfAModalFormTakesNoInputMeanwhile) {
  Open();
  controls::Form form;
  TestFormWindow dialog(form, Handle());
  bool wasEnabled = true;
  HWND question = nullptr;
  const Soon hide([&] {
    m_form.SetPointer(controls::MousePointer::Hourglass);  // whatever is new in the owner
    wasEnabled = IsWindowEnabled(Handle()) != 0;
    question = OpenQuestion();
    form.SetVisible(false);
  });

  dialog.Presenter().ShowModal();

  EXPECT_FALSE(wasEnabled);
  EXPECT_EQ(question, dialog.Handle());
  EXPECT_EQ(OpenQuestion(), nullptr);
  EXPECT_TRUE(IsWindowEnabled(Handle()));
  EXPECT_EQ(GetActiveWindow(), Handle());
}

TEST_F(WindowsFormPresenterTest, AClosedDialogIsNotTheProgramsEnd) {
  controls::Form form;
  TestFormWindow dialog(form, nullptr, WS_EX_DLGMODALFRAME);
  std::vector<UnloadMode> modes;
  form.QueryUnload.Connect([&](bool&, UnloadMode mode) { modes.push_back(mode); });

  SendMessageW(dialog.Handle(), WM_CLOSE, 0, 0);

  EXPECT_THAT(modes, ElementsAre(UnloadMode::ControlMenu));
}

TEST_F(WindowsFormPresenterTest, EscapeInADialogAsksItsFormToGo) {
  controls::Form form;
  TestFormWindow dialog(form, nullptr, WS_EX_DLGMODALFRAME);
  const HWND field = dialog.AddChild(L"EDIT", 0);
  form.SetVisible(true);

  PressKey(field, VK_ESCAPE);

  EXPECT_TRUE(form.IsUnloaded());
}

TEST_F(WindowsFormPresenterTest, AFormThatIsAskedToCloseGoesWhenItIsAnswered) {
  Open();
  {
    const controls::QuestionScope question;
    Presenter().CloseWhenAnswered();
    RunMessages();
    EXPECT_FALSE(m_form.IsUnloaded());
  }
  RunMessages();
  EXPECT_TRUE(m_form.IsUnloaded());
}

TEST_F(WindowsFormPresenterTest, TheHourglassOfAPollThatIsOverInAMomentIsNeverSeen) {
  Open();
  const controls::BackgroundScope poll;
  m_form.SetPointer(controls::MousePointer::Hourglass);
  LateShow::ShowWhatLasts();

  SetCursor(LoadCursorW(nullptr, IDC_ARROW));
  SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));

  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowsFormPresenterTest, TheHourglassOfAPollThatLastsIsSeen) {
  Open();
  const controls::BackgroundScope poll;
  m_form.SetPointer(controls::MousePointer::Hourglass);

  EXPECT_TRUE(WaitUntil([this] {
    LateShow::ShowWhatLasts();
    SendMessageW(Handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(Handle()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    return GetCursor() == LoadCursorW(nullptr, IDC_WAIT);
  }));
}

}  // namespace
}  // namespace dayvane::widgets
