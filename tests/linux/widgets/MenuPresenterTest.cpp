// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <gmock/gmock.h>

#include "controls/Keys.h"
#include "linux/widgets/MenuPresenter.h"

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

  void Trigger(qsizetype index) {
    m_presenter.actions().at(index)->trigger();
    QCoreApplication::processEvents();
  }

  controls::Menu m_arrange{"", {{"by &Name"}, {"by &Type"}}};
  controls::Menu m_menu{"&View", {{"D&aily"}, {"-"}, {"Arrange &Icons", &m_arrange}, {"&Options"}}};
  controls::Menu m_keys{"&Dayvane", {{"S&uspend"}, {"&Hide"}}};
  MenuPresenter m_presenter{m_menu};
  std::vector<int> m_chosen;
};

TEST_F(MenuPresenterTest, ShowsTheEntriesInOrder) {
  const QList<QAction*> actions = m_presenter.actions();

  ASSERT_EQ(actions.size(), 4);
  EXPECT_EQ(m_presenter.title(), "&View");
  EXPECT_EQ(actions[0]->text(), "D&aily");
  EXPECT_TRUE(actions[1]->isSeparator());
  EXPECT_EQ(actions[2]->menu()->actions().at(1)->text(), "by &Type");
}

TEST_F(MenuPresenterTest, ASeparatorIsALineWithoutWords) {
  EXPECT_EQ(m_presenter.actions().at(1)->text(), "");
}

TEST_F(MenuPresenterTest, AChoiceIsToldWithItsIndex) {
  Trigger(3);

  EXPECT_THAT(m_chosen, ElementsAre(3));
}

TEST_F(MenuPresenterTest, AChoiceIsToldOnlyAfterItsEventIsDone) {
  m_presenter.actions().at(3)->trigger();

  EXPECT_THAT(m_chosen, IsEmpty());
}

TEST_F(MenuPresenterTest, AChoiceInASubmenuIsTheSubmenus) {
  int chosen = -1;
  m_arrange.Click.Connect([&](int index) { chosen = index; });

  m_presenter.actions().at(2)->menu()->actions().at(1)->trigger();
  QCoreApplication::processEvents();

  EXPECT_EQ(chosen, 1);
  EXPECT_THAT(m_chosen, IsEmpty());
}

TEST_F(MenuPresenterTest, EntriesAreEnabledVisibleAndCheckedAsTheirItems) {
  m_menu[0].SetChecked(true);
  m_menu[0].SetEnabled(false);
  m_menu[3].SetVisible(false);

  EXPECT_TRUE(m_presenter.actions().at(0)->isChecked());
  EXPECT_FALSE(m_presenter.actions().at(0)->isEnabled());
  EXPECT_FALSE(m_presenter.actions().at(3)->isVisible());
}

TEST_F(MenuPresenterTest, ACheckMarkIsTheProgramsToSet) {
  m_menu[0].SetChecked(true);

  Trigger(0);

  EXPECT_TRUE(m_presenter.actions().at(0)->isChecked());
}

TEST_F(MenuPresenterTest, AnEntryOfAChoiceIsOneAlsoWhileItIsNotChosen) {
  EXPECT_TRUE(m_presenter.actions().at(0)->isCheckable());
  EXPECT_FALSE(m_presenter.actions().at(0)->isChecked());
  EXPECT_FALSE(m_presenter.actions().at(3)->isCheckable());
}

TEST_F(MenuPresenterTest, AnEntryOfAChoiceIsDrawnAsOneOfSeveral) {
  m_menu[0].SetChecked(true);
  const QImage choice = m_presenter.grab().toImage();

  m_menu[0].SetMark(controls::MenuMark::Check);

  EXPECT_NE(m_presenter.grab().toImage(), choice);
}

TEST_F(MenuPresenterTest, TheKeyOfAnEntryStandsBesideItAndChoosesIt) {
  m_keys[1].SetKey({'W', controls::kCtrlMask});
  MenuPresenter presenter(m_keys);

  EXPECT_EQ(presenter.actions().at(1)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
  EXPECT_TRUE(presenter.actions().at(0)->shortcut().isEmpty());
}

TEST_F(MenuPresenterTest, TheDefaultItemIsMarked) {
  m_presenter.SetDefaultItem(3);
  EXPECT_EQ(m_presenter.defaultAction(), m_presenter.actions().at(3));

  m_presenter.SetDefaultItem(-1);
  EXPECT_EQ(m_presenter.defaultAction(), nullptr);
}

}  // namespace
}  // namespace dayvane::widgets
