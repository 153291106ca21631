// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/widgets/NumberFieldPresenter.h"

namespace dayvane::widgets {
namespace {

class NumberFieldPresenterTest : public ::testing::Test {
 protected:
  NumberFieldPresenterTest() {
    m_text.SetText("5");
    m_arrows.UpClick.Connect([this] {
      ++m_clicks;
      if (m_text.Text() != "7") m_text.SetText(std::to_string(std::stoi(m_text.Text()) + 1));
    });
    m_arrows.DownClick.Connect([this] { m_text.SetText(std::to_string(std::stoi(m_text.Text()) - 1)); });
    m_presenter.Place({10, 10, 110, 34});
    SetFocus(m_presenter.Handle());
  }

  void Type(wchar_t character) { SendMessageW(m_presenter.Handle(), WM_CHAR, character, 1); }

  TestWindow m_window;
  controls::TextBox m_text;
  controls::UpDown m_arrows;
  NumberFieldPresenter m_presenter{m_text, m_arrows, m_window.Handle(), m_window.CurrentLook()};
  int m_clicks = 0;
};

TEST_F(NumberFieldPresenterTest, WhatIsTypedIsTheControlsText) {
  m_text.SetSelection(0, 1);

  Type(L'4');
  Type(L'2');

  EXPECT_EQ(m_text.Text(), "42");
}

TEST_F(NumberFieldPresenterTest, WhatTheProgramRefusesIsNotTyped) {
  m_text.KeyPress.Connect([](int& character) { character = character == 'x' ? 0 : character; });

  Type(L'x');

  EXPECT_EQ(m_text.Text(), "5");
  EXPECT_EQ(TextOf(m_presenter.Handle()), "5");
}

TEST_F(NumberFieldPresenterTest, ACommandOfTheKeyboardIsNoTypedCharacter) {
  bool asked = false;
  m_text.KeyPress.Connect([&](int&) { asked = true; });

  Type(L'\x03');

  EXPECT_FALSE(asked);
}

TEST_F(NumberFieldPresenterTest, TheArrowKeysAreTheArrows) {
  Press(m_presenter.Handle(), VK_UP);
  EXPECT_EQ(TextOf(m_presenter.Handle()), "6");

  Press(m_presenter.Handle(), VK_DOWN);
  EXPECT_EQ(TextOf(m_presenter.Handle()), "5");
}

TEST_F(NumberFieldPresenterTest, AClickOnAnArrowIsOneStep) {
  RECT arrows{};
  GetClientRect(m_presenter.ArrowsHandle(), &arrows);

  MouseClick(m_presenter.ArrowsHandle(), {arrows.right / 2, arrows.bottom / 4});
  EXPECT_EQ(m_text.Text(), "6");

  MouseClick(m_presenter.ArrowsHandle(), {arrows.right / 2, arrows.bottom * 3 / 4});
  EXPECT_EQ(m_text.Text(), "5");
}

TEST_F(NumberFieldPresenterTest, TheWheelStopsAtTheEndWithOneBeep) {
  SendMessageW(m_presenter.Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, 5 * WHEEL_DELTA), 0);

  EXPECT_EQ(m_text.Text(), "7");
  EXPECT_EQ(m_clicks, 3);
}

TEST_F(NumberFieldPresenterTest, HalfATurnOfTheWheelIsHalfAStep) {
  SendMessageW(m_presenter.Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  EXPECT_EQ(m_text.Text(), "5");

  SendMessageW(m_presenter.Handle(), WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2), 0);
  EXPECT_EQ(m_text.Text(), "6");
}

TEST_F(NumberFieldPresenterTest, AFieldThatGetsTheKeyboardSaysSo) {
  SetFocus(m_window.Handle());
  bool gotFocus = false;
  m_text.GotFocus.Connect([&] {
    gotFocus = true;
    m_text.SetSelection(0, 1);
  });

  m_text.SetFocus();

  EXPECT_TRUE(gotFocus);
  EXPECT_EQ(SendMessageW(m_presenter.Handle(), EM_GETSEL, 0, 0), MAKELONG(0, 1));
}

TEST_F(NumberFieldPresenterTest, TheNumberStandsInTheMiddleHoweverLargeItsScreenDrawsIt) {
  for (const UINT dpi : {96U, 144U, 192U}) {
    const auto look = std::make_shared<Look>(dpi);
    m_presenter.SetLook(look);
    const LONG height = m_presenter.IdealSize().cy;
    m_presenter.Place({10, 10, 200, 10 + height});
    POINT number{};
    ClientToScreen(m_presenter.Handle(), &number);
    number.y += GET_Y_LPARAM(SendMessageW(m_presenter.Handle(), EM_POSFROMCHAR, 0, 0));
    RECT field{};
    GetWindowRect(m_presenter.Handle(), &field);

    EXPECT_NEAR(number.y - field.top, field.bottom - number.y - look->TextHeight(), 2) << dpi;
  }
}

TEST_F(NumberFieldPresenterTest, AClickAboveTheNumberIsOneInTheField) {
  m_presenter.Place({10, 10, 200, 110});
  RECT field{};
  GetWindowRect(m_presenter.Handle(), &field);

  const LRESULT hit = SendMessageW(m_presenter.Handle(), WM_NCHITTEST, 0, MAKELPARAM(field.left + 8, field.top + 8));

  EXPECT_EQ(hit, HTCLIENT);
}

TEST_F(NumberFieldPresenterTest, FieldAndArrowsShareTheirPlaceHoweverOftenTheyGetIt) {
  m_presenter.Place({10, 10, 110, 34});
  RECT field{};
  RECT arrows{};
  GetWindowRect(m_presenter.Handle(), &field);
  GetWindowRect(m_presenter.ArrowsHandle(), &arrows);
  RECT both{};
  UnionRect(&both, &field, &arrows);
  MapWindowPoints(nullptr, m_window.Handle(), reinterpret_cast<POINT*>(&both), 2);

  EXPECT_EQ(both.left, 10);
  EXPECT_EQ(both.top, 10);
  EXPECT_NEAR(both.right, 110, 2);
  EXPECT_GT(arrows.left, field.left + 50);
}

}  // namespace
}  // namespace dayvane::widgets
