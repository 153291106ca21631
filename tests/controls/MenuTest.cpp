// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Menu.h"

namespace dayvane::controls {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MenuTest : public ::testing::Test {
 protected:
  MenuTest() {
    menu.Click.Connect([this](int index) { chosen.push_back(index); });
  }

  Menu submenu{"Arrange &Icons", {{"by &Name"}}};
  Menu menu{"&View", {{"D&aily"}, {"-"}, {"Arrange &Icons", &submenu}, {"&Options"}}};
  std::vector<int> chosen;
};

TEST_F(MenuTest, AChoiceIsToldByItsIndexSeparatorsCounted) {
  menu.Choose(0);
  menu.Choose(3);
  EXPECT_THAT(chosen, ElementsAre(0, 3));
}

TEST_F(MenuTest, ASeparatorAndAnEntryThatOpensASubmenuAreNoChoice) {
  menu.Choose(1);
  menu.Choose(2);
  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MenuTest, AnEntryThatIsDisabledOrHiddenIsNoChoice) {
  menu[0].SetEnabled(false);
  menu[3].SetVisible(false);
  menu.Choose(0);
  menu.Choose(3);
  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MenuTest, AnEntryThatIsNotThereIsAnError) {
  EXPECT_EQ(menu.Count(), 4);
  EXPECT_ANY_THROW(menu.Choose(4));
  EXPECT_ANY_THROW(menu.Choose(-1));
}

}  // namespace
}  // namespace dayvane::controls
