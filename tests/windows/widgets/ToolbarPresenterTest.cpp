// SPDX-License-Identifier: MIT
#include <array>
#include <gmock/gmock.h>
#include <optional>

#include "tests/windows/widgets/TestWindow.h"
#include "windows/forms/WhatsThis.h"
#include "windows/widgets/ToolbarPresenter.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class WindowsToolbarTest : public ::testing::Test {
 protected:
  WindowsToolbarTest() {
    for (std::size_t index = 0; index < m_buttons.size(); ++index)
      m_buttons[index].Click.Connect([this, index] { m_pressed.push_back(index); });
  }

  static std::array<controls::Button, kToolbarButtons>& WithTips(
      std::array<controls::Button, kToolbarButtons>& buttons) {
    for (const ToolbarRow& row : kToolbarRows) buttons[row.button].SetToolTipText(row.tip);
    return buttons;
  }

  HWND Bar() const { return m_presenter.BarHandle(); }
  LRESULT Ask(UINT message, std::size_t button) const {
    return SendMessageW(Bar(), message, static_cast<WPARAM>(ToolbarPresenter::CommandOf(button)), 0);
  }

  RECT PlaceOf(std::size_t button) const {
    RECT place{};
    SendMessageW(Bar(), TB_GETRECT, static_cast<WPARAM>(ToolbarPresenter::CommandOf(button)),
                 reinterpret_cast<LPARAM>(&place));
    return place;
  }

  POINT MiddleOf(std::size_t button) const {
    const RECT place = PlaceOf(button);
    return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  }

  TestWindow m_window;
  controls::PictureBox m_strip;
  std::array<controls::Line, 2> m_rules;
  std::array<controls::Button, kToolbarButtons> m_buttons;
  std::vector<std::size_t> m_pressed;
  ToolbarPresenter m_presenter{m_strip, WithTips(m_buttons), m_rules, m_window.Handle(), m_window.CurrentLook()};
  BOOL m_placed = MoveWindow(m_presenter.Handle(), 0, 0, 650, m_presenter.IdealHeight(), TRUE);
};

TEST_F(WindowsToolbarTest, AButtonWithoutATipIsNotShown) {
  EXPECT_EQ(Ask(TB_COMMANDTOINDEX, kBlankButton), -1);
  EXPECT_GE(Ask(TB_COMMANDTOINDEX, kWhatsThisButton), 0);
}

TEST_F(WindowsToolbarTest, ThereIsRoomBetweenTheGroups) {
  EXPECT_EQ(PlaceOf(kFavoritesButton).left, PlaceOf(kDailyButton).right);
  EXPECT_GT(PlaceOf(kExploreButton).left, PlaceOf(kFavoritesButton).right + 4);
}

TEST_F(WindowsToolbarTest, AButtonThatIsClickedIsPressed) {
  MouseClick(Bar(), MiddleOf(kListButton));

  EXPECT_THAT(m_pressed, ElementsAre(kListButton));
}

TEST_F(WindowsToolbarTest, AClickInTheMiddleOfWorkWaits) {
  std::optional<controls::WorkScope> work(std::in_place);
  MouseClick(Bar(), MiddleOf(kListButton));
  EXPECT_THAT(m_pressed, IsEmpty());

  work.reset();
  controls::ActOnDeferred();

  EXPECT_THAT(m_pressed, ElementsAre(kListButton));
}

TEST_F(WindowsToolbarTest, ADisabledButtonIsGreyAndTakesNoClick) {
  m_buttons[kListButton].SetEnabled(false);

  MouseClick(Bar(), MiddleOf(kListButton));

  EXPECT_EQ(Ask(TB_ISBUTTONENABLED, kListButton), 0);
  EXPECT_THAT(m_pressed, IsEmpty());
}

TEST_F(WindowsToolbarTest, TheTipOfAButtonIsItsName) {
  wchar_t text[100]{};
  SendMessageW(Bar(), TB_GETBUTTONTEXTW, static_cast<WPARAM>(ToolbarPresenter::CommandOf(kExploreButton)),
               reinterpret_cast<LPARAM>(text));

  EXPECT_EQ(files::FromWide(text), "Explore Folder");
}

TEST_F(WindowsToolbarTest, TheKeyboardGoesFromButtonToButtonAndPresses) {
  m_buttons[kDailyButton].SetEnabled(false);
  SetFocus(Bar());

  Press(Bar(), VK_RETURN);
  Press(Bar(), VK_RIGHT);
  Press(Bar(), VK_SPACE);
  Press(Bar(), VK_END);
  Press(Bar(), VK_LEFT);
  Press(Bar(), VK_RETURN);

  EXPECT_THAT(m_pressed, ElementsAre(kFavoritesButton, kExploreButton, kHelpButton));
}

TEST_F(WindowsToolbarTest, EachButtonHasAHelpOfItsOwn) {
  m_buttons[kExploreButton].SetWhatsThisHelpID(42);
  POINT at = MiddleOf(kExploreButton);
  ClientToScreen(Bar(), &at);

  EXPECT_EQ(SendMessageW(Bar(), HelpIdAtMessage(), 0, reinterpret_cast<LPARAM>(&at)), 42);
}

TEST_F(WindowsToolbarTest, ButtonsGrowWithTheScreensDots) {
  const RECT before = PlaceOf(kDailyButton);

  m_presenter.SetLook(std::make_shared<Look>(192U));

  EXPECT_NEAR(PlaceOf(kDailyButton).right, 2 * before.right, 8);
}

}  // namespace
}  // namespace dayvane::widgets
