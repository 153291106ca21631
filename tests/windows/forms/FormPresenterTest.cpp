// SPDX-License-Identifier: MIT
#include "tests/windows/forms/FormPresenterFixture.h"
#include "windows/forms/FormPresenter.h"
#include "windows/widgets/Lengths.h"

namespace dayvane::widgets {
namespace {

using controls::WindowState;
using dayvane::testing::RunMessages;
using dayvane::testing::WaitUntil;

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
