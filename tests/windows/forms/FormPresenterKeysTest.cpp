// SPDX-License-Identifier: MIT
// The keyboard in a form, and forms over others.

#include <utility>

#include "tests/windows/forms/FormPresenterFixture.h"
#include "windows/forms/Questions.h"

namespace dayvane::widgets {
namespace {

using controls::UnloadMode;
using dayvane::testing::PressKey;
using dayvane::testing::RunMessages;
using dayvane::testing::Soon;
using dayvane::testing::TestFormWindow;
using ::testing::ElementsAre;
using ::testing::Pair;

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

}  // namespace
}  // namespace dayvane::widgets
