// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <optional>

#include "controls/Keys.h"
#include "windows/files/WideText.h"
#include "windows/widgets/MenuPresenter.h"

namespace dayvane::widgets {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MenuPresenterTest : public ::testing::Test {
 protected:
  MenuPresenterTest() {
    m_menu[0].SetMark(controls::MenuMark::Choice);
    m_menu.Click.Connect([this](int index) { m_chosen.push_back(index); });
  }

  static std::string TextAt(HMENU menu, UINT place) {
    wchar_t text[100]{};
    GetMenuStringW(menu, place, text, 100, MF_BYPOSITION);
    return files::FromWide(text).value_or("");
  }

  UINT StateAt(UINT place) const { return GetMenuState(m_presenter.Handle(), place, MF_BYPOSITION); }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (int place = 0; place < GetMenuItemCount(m_presenter.Handle()); ++place)
      texts.push_back(TextAt(m_presenter.Handle(), static_cast<UINT>(place)));
    return texts;
  }

  controls::Menu m_arrange{"", {{"by &Name"}, {"by &Type"}}};
  controls::Menu m_menu{"&View", {{"D&aily"}, {"-"}, {"Arrange &Icons", &m_arrange}, {"&Options"}}};
  MenuPresenter m_presenter{m_menu};
  std::vector<int> m_chosen;
};

TEST_F(MenuPresenterTest, ShowsTheEntriesInOrder) {
  EXPECT_THAT(Texts(), ElementsAre("D&aily", "", "Arrange &Icons", "&Options"));
  EXPECT_EQ(TextAt(GetSubMenu(m_presenter.Handle(), 2), 1), "by &Type");
  EXPECT_NE(StateAt(1) & MF_SEPARATOR, 0U);
}

TEST_F(MenuPresenterTest, AChoiceIsToldWithItsIndex) {
  EXPECT_TRUE(m_presenter.Choose(GetMenuItemID(m_presenter.Handle(), 3)));

  EXPECT_THAT(m_chosen, ElementsAre(3));
}

TEST_F(MenuPresenterTest, AChoiceInASubmenuIsTheSubmenus) {
  int chosen = -1;
  m_arrange.Click.Connect([&](int index) { chosen = index; });

  EXPECT_TRUE(m_presenter.Choose(GetMenuItemID(GetSubMenu(m_presenter.Handle(), 2), 1)));

  EXPECT_EQ(chosen, 1);
  EXPECT_THAT(m_chosen, IsEmpty());
}

TEST_F(MenuPresenterTest, ACommandOfAnotherMenuIsNotThisOnes) {
  MenuPresenter other(m_arrange, m_presenter.NextCommand());

  EXPECT_FALSE(m_presenter.Choose(GetMenuItemID(other.Handle(), 0)));
}

TEST_F(MenuPresenterTest, AChoiceInTheMiddleOfWorkWaits) {
  std::optional<controls::WorkScope> work(std::in_place);
  m_presenter.Choose(GetMenuItemID(m_presenter.Handle(), 3));
  EXPECT_THAT(m_chosen, IsEmpty());

  work.reset();
  controls::ActOnDeferred();

  EXPECT_THAT(m_chosen, ElementsAre(3));
}

TEST_F(MenuPresenterTest, EntriesAreEnabledAndCheckedAsTheirItems) {
  m_menu[0].SetChecked(true);
  m_menu[0].SetEnabled(false);

  EXPECT_NE(StateAt(0) & MF_CHECKED, 0U);
  EXPECT_NE(StateAt(0) & MF_GRAYED, 0U);
}

TEST_F(MenuPresenterTest, AnEntryThatIsHiddenComesBackToItsPlace) {
  m_menu[0].SetVisible(false);
  EXPECT_THAT(Texts(), ElementsAre("", "Arrange &Icons", "&Options"));
  m_menu[3].SetVisible(false);

  m_menu[0].SetVisible(true);

  EXPECT_THAT(Texts(), ElementsAre("D&aily", "", "Arrange &Icons"));
}

TEST_F(MenuPresenterTest, AnEntryOfAChoiceIsDrawnAsOneOfSeveral) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = MIIM_FTYPE;

  GetMenuItemInfoW(m_presenter.Handle(), 0, TRUE, &info);

  EXPECT_NE(info.fType & MFT_RADIOCHECK, 0U);
}

TEST_F(MenuPresenterTest, TheKeyOfAnEntryStandsBesideItAndChoosesIt) {
  controls::Menu menu("&Dayvane", {{"S&uspend"}, {"&Hide"}});
  menu[1].SetKey({'W', controls::kCtrlMask});
  const MenuPresenter presenter(menu);
  std::vector<ACCEL> keys;
  presenter.AddKeysTo(keys);

  EXPECT_EQ(TextAt(presenter.Handle(), 1), "&Hide\tCtrl+W");
  ASSERT_EQ(keys.size(), 1U);
  EXPECT_EQ(keys[0].key, 'W');
  EXPECT_EQ(keys[0].fVirt, FVIRTKEY | FCONTROL);
  EXPECT_EQ(keys[0].cmd, GetMenuItemID(presenter.Handle(), 1));
}

TEST_F(MenuPresenterTest, TheDefaultItemIsMarkedWhereverHiddenOnesPutIt) {
  m_presenter.SetDefaultItem(3);
  m_menu[0].SetVisible(false);
  EXPECT_EQ(GetMenuDefaultItem(m_presenter.Handle(), TRUE, 0), 2U);

  m_presenter.SetDefaultItem(-1);
  EXPECT_EQ(GetMenuDefaultItem(m_presenter.Handle(), TRUE, 0), UINT_MAX);
}

}  // namespace
}  // namespace dayvane::widgets
