// SPDX-License-Identifier: MIT
#include <algorithm>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "base/Text.h"
#include "controls/ListView.h"
#include "tests/support/Random.h"

namespace dayvane::controls {
namespace {

class ListViewTest : public ::testing::Test {
 protected:
  ListViewTest() { list.SetColumns({{"Name"}, {"Type"}}); }

  void Add(const std::string& name, const std::string& type) { list.Add("K" + name, name, 1).subItems = {type}; }

  std::string Names() const {
    std::string names;
    for (std::size_t row = 0; row < list.Count(); ++row) names += list.Row(row).text + " ";
    return names;
  }

  ListView list;
};

TEST_F(ListViewTest, ColumnsAreAsDesignedUntilOneIsGivenAWidth) {
  EXPECT_TRUE(list.HasDesignWidths());
  list.SetColumnWidth(1, 900);
  EXPECT_FALSE(list.HasDesignWidths());
}

TEST_F(ListViewTest, RowsKeepTheOrderOfAddingWhileSortingIsOff) {
  Add("b", "1");
  Add("a", "2");
  EXPECT_EQ(Names(), "b a ");
}

TEST_F(ListViewTest, SortingComparesTheDisplayedTextsWithoutRegardToCase) {
  for (const char* name : {"beta", "Alpha", "Ärger", "gamma", "älter"}) Add(name, "");
  list.SetSorted(true);
  EXPECT_EQ(Names(), "Alpha beta gamma älter Ärger ");
}

TEST_F(ListViewTest, AColumnWhoseTextsHaveAnotherOrderSortsByTextsOfItsOwn) {
  for (const auto& [name, sortText] : {std::pair{"nine", "09"}, {"one", "13"}, {"ten", "10"}}) {
    Add(name, "same");
    list.Item("K" + std::string(name)).sortTexts[1] = sortText;
  }
  list.SetSortKey(1);
  list.SetSorted(true);
  EXPECT_EQ(Names(), "nine ten one ");
  list.SetSortKey(0);
  EXPECT_EQ(Names(), "nine one ten ");
}

TEST_F(ListViewTest, EqualRowsKeepTheirOrderInBothDirections) {
  Add("first", "same");
  Add("second", "same");
  list.SetSortKey(1);
  list.SetSorted(true);
  EXPECT_EQ(Names(), "first second ");
  list.SetSortOrder(SortOrder::Descending);
  EXPECT_EQ(Names(), "first second ");
}

TEST_F(ListViewTest, AnySortKeepsEqualRowsInTheOrderTheyHad) {
  dayvane::testing::Random random(1998);
  std::vector<std::pair<std::string, std::string>> rows;  // type and name
  for (int i = 0; i < 500; ++i) {
    rows.emplace_back(std::string(1, random.Of("aAbBc")), std::to_string(i));
    Add(rows.back().second, rows.back().first);
  }
  list.SetSortKey(1);
  for (const SortOrder order : {SortOrder::Descending, SortOrder::Ascending, SortOrder::Descending}) {
    list.SetSortOrder(order);
    list.SetSorted(true);
    const int sign = order == SortOrder::Ascending ? 1 : -1;
    std::stable_sort(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
      return sign * text::CompareIgnoringCase(a.first, b.first) < 0;
    });
    std::string expected;
    for (const auto& row : rows) expected += row.second + " ";
    EXPECT_EQ(Names(), expected);
  }
}

TEST_F(ListViewTest, ADescendingSortTurnsTheRowsAround) {
  for (const char* name : {"a", "c", "b"}) Add(name, "");
  list.SetSortOrder(SortOrder::Descending);
  list.SetSorted(true);
  EXPECT_EQ(Names(), "c b a ");
}

TEST_F(ListViewTest, TwoRowsCannotHaveOneKey) {
  Add("a", "");
  EXPECT_THROW(Add("a", ""), Error);
  EXPECT_EQ(list.Count(), 1U);
}

TEST_F(ListViewTest, RemovingTheSelectedRowSelectsNothing) {
  Add("a", "");
  list.Click(list.Item("Ka"));
  list.Remove("Ka");
  EXPECT_EQ(list.SelectedItem(), nullptr);
  EXPECT_EQ(list.Count(), 0U);
}

TEST_F(ListViewTest, AKeyThatIsNotThereCannotBeRemoved) {
  EXPECT_THROW(list.Remove("Knone"), Error);
}

TEST_F(ListViewTest, SelectionSurvivesASort) {
  for (const char* name : {"c", "a"}) Add(name, "");
  list.Click(list.Item("Kc"));
  list.SetSorted(true);
  ASSERT_NE(list.SelectedItem(), nullptr);
  EXPECT_EQ(list.SelectedItem()->text, "c");
  EXPECT_EQ(list.RowOf(*list.SelectedItem()), 1U);
}

TEST_F(ListViewTest, ChangesInAScopeAreToldOnce) {
  int told = 0;
  list.ContentsChanged.Connect([&] { ++told; });
  {
    const UpdateScope update(list);
    Add("a", "");
    Add("b", "");
  }
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace dayvane::controls
