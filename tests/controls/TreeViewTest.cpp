// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "controls/TreeView.h"

namespace dayvane::controls {
namespace {

class TreeViewTest : public ::testing::Test {
 protected:
  TreeViewTest() {
    tree.AddRoot("Kroot", "Daily", 1);
    tree.NodeClick.Connect([this](TreeNode& node) { clicked.push_back(node.key); });
    tree.SelectionChanged.Connect([this] { ++selections; });
  }

  template <class Act>
  static int ErrorOf(Act&& act) {
    try {
      act();
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  }

  TreeView tree;
  std::vector<std::string> clicked;
  int selections = 0;
};

TEST_F(TreeViewTest, AChildStandsBehindItsSiblingsUnderItsParent) {
  tree.AddChild("Kroot", "K2025", "2025", 2);
  TreeNode& node = tree.AddChild("Kroot", "K2026", "2026", 2);
  EXPECT_EQ(node.parent, &tree.Node("Kroot"));
  EXPECT_EQ(node.row, 1U);
  EXPECT_EQ(node.text, "2026");
  EXPECT_EQ(node.image, 2);
  EXPECT_EQ(tree.Node("Kroot").children[1].get(), &node);
  EXPECT_EQ(tree.Count(), 3U);
}

TEST_F(TreeViewTest, ANodeKeepsItsAddressWhileTheTreeGrows) {
  TreeNode& first = tree.AddChild("Kroot", "Kfirst", "first", 2);
  for (int i = 0; i < 1000; ++i) tree.AddChild("Kroot", "K" + std::to_string(i), "", 2);
  EXPECT_EQ(&tree.Node("Kfirst"), &first);
}

TEST_F(TreeViewTest, TwoNodesCannotHaveOneKey) {
  tree.AddChild("Kroot", "K2026", "2026", 2);
  EXPECT_EQ(ErrorOf([&] { tree.AddChild("Kroot", "K2026", "again", 2); }), kKeyNotUnique);
  EXPECT_EQ(tree.Node("Kroot").children.size(), 1U);
  EXPECT_EQ(tree.Node("K2026").text, "2026");
}

TEST_F(TreeViewTest, ANodeWithoutItsParentCannotBeAdded) {
  EXPECT_EQ(ErrorOf([&] { tree.AddChild("Knone", "K2026", "2026", 2); }), kElementNotFound);
  EXPECT_EQ(tree.Find("K2026"), nullptr);
}

TEST_F(TreeViewTest, AKeyThatIsNotThereIsFoundByNeitherWay) {
  EXPECT_EQ(tree.Find("Knone"), nullptr);
  EXPECT_EQ(ErrorOf([&] { (void)tree.Node("Knone"); }), kElementNotFound);
}

TEST_F(TreeViewTest, AClickSelectsTheNodeAndIsTold) {
  tree.Click(tree.Node("Kroot"));
  EXPECT_EQ(tree.SelectedItem(), &tree.Node("Kroot"));
  EXPECT_THAT(clicked, ::testing::ElementsAre("Kroot"));
  EXPECT_EQ(selections, 1);
}

TEST_F(TreeViewTest, AClickOnTheSelectedNodeIsToldAgain) {
  tree.Click(tree.Node("Kroot"));
  tree.Click(tree.Node("Kroot"));
  EXPECT_EQ(clicked.size(), 2U);
  EXPECT_EQ(selections, 1);
}

TEST_F(TreeViewTest, SelectingByTheProgramIsNoClick) {
  tree.SetSelectedItem(&tree.Node("Kroot"));
  EXPECT_EQ(selections, 1);
  EXPECT_TRUE(clicked.empty());
}

TEST_F(TreeViewTest, AClearedTreeHasNoNodesAndNoSelection) {
  tree.Click(tree.Node("Kroot"));
  tree.Clear();
  EXPECT_EQ(tree.SelectedItem(), nullptr);
  EXPECT_EQ(tree.Count(), 0U);
  EXPECT_TRUE(tree.Roots().empty());
  EXPECT_NO_THROW(tree.AddRoot("Kroot", "Daily", 1));
}

TEST_F(TreeViewTest, ChangesInAScopeAreToldOnce) {
  std::vector<std::string> told;
  tree.ContentsWillChange.Connect([&] { told.push_back("will change " + std::to_string(tree.Count())); });
  tree.ContentsChanged.Connect([&] { told.push_back("changed " + std::to_string(tree.Count())); });
  {
    const UpdateScope update(tree);
    tree.Clear();
    tree.AddRoot("Ka", "a", 1);
    tree.AddChild("Ka", "Kb", "b", 2);
  }
  EXPECT_THAT(told, ::testing::ElementsAre("will change 1", "changed 2"));
}

}  // namespace
}  // namespace dayvane::controls
