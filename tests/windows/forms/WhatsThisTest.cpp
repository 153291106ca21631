// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/windows/MessageLoop.h"
#include "tests/windows/forms/TestForm.h"
#include "windows/forms/WhatsThis.h"
#include "windows/widgets/ChildWindow.h"

namespace dayvane::widgets {
namespace {

using dayvane::testing::HeldKey;
using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::TestFormWindow;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WindowsWhatsThisTest : public ::testing::Test {
 protected:
  WindowsWhatsThisTest() {
    SetPropW(m_control, kHelpIdProperty, reinterpret_cast<HANDLE>(INT_PTR{25}));
    m_window.Presenter().SetTopicHelp([this](int id, POINT) { m_topics.push_back(id); });
    m_form.Move(0, 0, 6000, 4000);
    m_form.SetVisible(true);
    RunMessages();
  }

  void Enter() {
    m_form.WhatsThisMode();
    RunMessages();
  }
  bool IsOn() const { return GetCapture() == m_window.Handle(); }

  /// A click, which while the mode is on comes to the window itself, at a point of its inside.
  void Click(int x, int y, UINT message = WM_LBUTTONDOWN) {
    SendMessageW(m_window.Handle(), message, MK_LBUTTON, MAKELPARAM(x, y));
  }

  controls::Form m_form;
  TestFormWindow m_window{m_form};
  HWND m_control = m_window.AddChild(L"EDIT", 0);
  HWND m_plain = m_window.AddChild(L"EDIT", 50);
  std::vector<int> m_topics;
};

TEST_F(WindowsWhatsThisTest, AClickShowsTheControlsTopicAndEndsTheMode) {
  Enter();
  ASSERT_TRUE(IsOn());
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_HELP));

  Click(10, 10);

  EXPECT_THAT(m_topics, ElementsAre(25));
  EXPECT_FALSE(IsOn());
}

TEST_F(WindowsWhatsThisTest, AGreyedControlIsExplainedToo) {
  EnableWindow(m_control, FALSE);
  Enter();

  Click(10, 10);

  EXPECT_THAT(m_topics, ElementsAre(25));
}

TEST_F(WindowsWhatsThisTest, AClickOnWhatHasNoTopicOnlyEndsTheMode) {
  Enter();

  Click(60, 10);

  EXPECT_THAT(m_topics, IsEmpty());
  EXPECT_FALSE(IsOn());
}

TEST_F(WindowsWhatsThisTest, EscapeAndTheRightButtonEndTheMode) {
  Enter();
  PressKey(m_control, VK_ESCAPE);
  EXPECT_FALSE(IsOn());

  Enter();
  Click(10, 10, WM_RBUTTONDOWN);
  EXPECT_FALSE(IsOn());
  EXPECT_THAT(m_topics, IsEmpty());
}

TEST_F(WindowsWhatsThisTest, AnotherWindowThatTakesTheMouseEndsTheMode) {
  Enter();
  ReleaseCapture();

  Click(10, 10);

  EXPECT_THAT(m_topics, IsEmpty());
}

TEST_F(WindowsWhatsThisTest, ShiftF1ExplainsTheControlWithTheKeyboard) {
  SetFocus(m_control);
  const HeldKey shift(VK_SHIFT);
  int keys = 0;
  m_form.KeyUp.Connect([&](int, int) { ++keys; });

  PressKey(m_control, VK_F1);

  EXPECT_THAT(m_topics, ElementsAre(25));
  EXPECT_EQ(keys, 0);
}

TEST_F(WindowsWhatsThisTest, ShiftF1OnAControlWithoutHelpAsksForAnother) {
  SetFocus(m_plain);
  const HeldKey shift(VK_SHIFT);

  PressKey(m_plain, VK_F1);

  EXPECT_THAT(m_topics, IsEmpty());
  EXPECT_TRUE(IsOn());
}

TEST_F(WindowsWhatsThisTest, TheQuestionMarkOfACaptionEntersTheMode) {
  SendMessageW(m_window.Handle(), WM_SYSCOMMAND, SC_CONTEXTHELP, 0);

  EXPECT_TRUE(IsOn());
}

TEST_F(WindowsWhatsThisTest, ARightClickInADialogExplainsTheControl) {
  controls::Form form;
  TestFormWindow dialog(form, nullptr, WS_EX_DLGMODALFRAME);
  const HWND control = dialog.AddChild(L"BUTTON", 0);
  SetPropW(control, kHelpIdProperty, reinterpret_cast<HANDLE>(INT_PTR{22}));
  std::vector<int> topics;
  dialog.Presenter().SetTopicHelp([&](int id, POINT) { topics.push_back(id); });
  form.Move(0, 0, 6000, 4000);
  form.SetVisible(true);
  POINT at{5, 5};
  ClientToScreen(control, &at);

  SendMessageW(control, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(control), MAKELPARAM(at.x, at.y));

  EXPECT_THAT(topics, ElementsAre(22));
}

}  // namespace
}  // namespace dayvane::widgets
