// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"
#include "views/CDaily.h"

namespace dayvane {
namespace {

using controls::ListArrange;
using controls::ListStyle;
using controls::SortOrder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::map<std::string, std::string>;

class CDailyTest : public ::testing::Test {
 protected:
  CDailyTest() {
    list.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Modified"}});
    daily.SetControls(&tree, &list, &pane);
  }

  controls::ListItem& Add(const std::string& name, const std::string& type, const std::string& path) {
    auto& item = list.Add("K" + name, name, 1);
    item.subItems = {type, path, "10:00"};
    return item;
  }
  std::vector<std::string> Names() const { return testing::ColumnOf(list, 0); }
  Texts& Stored() { return desktop.registry.Settings("Daily"); }
  std::vector<std::string> Events() const { return desktop.LogLines("EventLog.txt"); }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  controls::TreeView tree;
  controls::ListView list;
  controls::PictureBox pane;
  CDaily daily{application};
};

const Texts kDailyDefaults{{"Name Width", "1440"},     {"Type Width", "1440"}, {"Path Width", "1440"},
                           {"Modified Width", "1440"}, {"Sort Column", "1"},   {"Sort Order", "0"}};

TEST_F(CDailyTest, AFreshInstallationStoresTheDefaultSettings) {
  daily.RestoreSettings();
  EXPECT_EQ(Stored(), kDailyDefaults);
}

TEST_F(CDailyTest, CreatingTheKeysWritesTheDefaultSettings) {
  daily.CreateRegistryKeys();
  EXPECT_EQ(Stored(), kDailyDefaults);
}

TEST_F(CDailyTest, AFreshInstallationSortsByTypeAscending) {
  Add("a", "z", "");
  Add("b", "y", "");
  daily.RestoreSettings();
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(CDailyTest, StoredWidthsAndSortComeBack) {
  Stored() = {{"Name Width", "100"},     {"Type Width", "200"}, {"Path Width", "300"},
              {"Modified Width", "400"}, {"Sort Column", "2"},  {"Sort Order", "1"}};
  Add("a", "", "1");
  Add("b", "", "2");
  daily.RestoreSettings();
  std::vector<double> widths;
  for (const auto& column : list.Columns()) widths.push_back(column.width);
  EXPECT_THAT(widths, ElementsAre(100, 200, 300, 400));
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(CDailyTest, WidthsAndSortAreSavedAsDecimalTexts) {
  daily.RestoreSettings();
  for (std::size_t column = 0; column < 4; ++column) list.SetColumnWidth(column, 1000.0 + static_cast<double>(column));
  list.ColumnClick.Raise(4);
  list.ColumnClick.Raise(4);
  daily.SaveSettings();
  const Texts expected{{"Name Width", "1000"},     {"Type Width", "1001"}, {"Path Width", "1002"},
                       {"Modified Width", "1003"}, {"Sort Column", "3"},   {"Sort Order", "1"}};
  EXPECT_EQ(Stored(), expected);
}

TEST_F(CDailyTest, AStoredSortColumnThatIsNoneIsSavedAsItWas) {
  for (const char* column : {"-1", "9"}) {
    Stored() = kDailyDefaults;
    Stored()["Sort Column"] = column;
    daily.RestoreSettings();
    daily.SaveSettings();
    EXPECT_EQ(Stored()["Sort Column"], column);
  }
}

TEST_F(CDailyTest, TheFirstClickOnAnyColumnSortsAscending) {
  Stored() = kDailyDefaults;
  Stored()["Sort Order"] = "1";
  daily.RestoreSettings();
  Add("b", "", "");
  Add("a", "", "");
  list.ColumnClick.Raise(1);
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(CDailyTest, ClickingTheSortedColumnTurnsTheOrderAroundAndBack) {
  Add("b", "", "");
  Add("a", "", "");
  list.ColumnClick.Raise(1);
  list.ColumnClick.Raise(1);
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
  list.ColumnClick.Raise(1);
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(CDailyTest, ClickingAnotherColumnKeepsTheOrder) {
  Add("a", "2", "");
  Add("b", "1", "");
  Add("c", "3", "");
  list.ColumnClick.Raise(1);
  list.ColumnClick.Raise(1);
  list.ColumnClick.Raise(2);
  EXPECT_THAT(Names(), ElementsAre("c", "a", "b"));
}

TEST_F(CDailyTest, ArrangingByNameSortsByTypeAndByTypeSortsByPath) {
  list.SetSortOrder(SortOrder::Descending);
  Add("a", "2", "1");
  Add("b", "1", "2");
  daily.ArrangeIcons(0);
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
  daily.ArrangeIcons(1);
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(CDailyTest, ArrangingIconsIsForgottenByTheNextColumnClick) {
  Add("a", "1", "");
  Add("b", "2", "");
  list.ColumnClick.Raise(2);
  list.ColumnClick.Raise(2);
  daily.ArrangeIcons(0);
  list.ColumnClick.Raise(1);
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(CDailyTest, IconsAreArrangedAlongTheTopOrNotAtAll) {
  daily.ArrangeIcons(2);
  EXPECT_EQ(list.Arrange(), ListArrange::Top);
  daily.ArrangeIcons(4);
  EXPECT_EQ(list.Arrange(), ListArrange::Top);
  daily.ArrangeIcons(3);
  EXPECT_EQ(list.Arrange(), ListArrange::None);
  EXPECT_FALSE(list.Sorted());
}

TEST_F(CDailyTest, TheStyleOfTheListIsPassedThrough) {
  daily.SetView(ListStyle::SmallIcons);
  EXPECT_EQ(list.View(), ListStyle::SmallIcons);
  list.SetView(ListStyle::List);
  EXPECT_EQ(daily.View(), ListStyle::List);
}

TEST_F(CDailyTest, ThePaneIsShownAndHiddenWithWhatItHolds) {
  daily.SetVisible(false);
  EXPECT_FALSE(pane.Visible());
  EXPECT_FALSE(daily.Visible());
  pane.SetVisible(true);
  EXPECT_TRUE(daily.Visible());
}

TEST_F(CDailyTest, TreeAndListReachThirtyTwipsPastThePanesInnerEdge) {
  pane.Move(15, 600, 100, 100);
  tree.Move(0, 2700, 2500, 10);
  list.Move(2600, 40, 10, 10);
  daily.SetSize(9000, 6000);
  EXPECT_THAT((std::vector{pane.Left(), pane.Top(), pane.Width(), pane.Height()}), ElementsAre(15, 600, 9000, 6000));
  EXPECT_THAT((std::vector{tree.Left(), tree.Top(), tree.Width(), tree.Height()}), ElementsAre(0, 2700, 2500, 3330));
  EXPECT_THAT((std::vector{list.Left(), list.Top(), list.Width(), list.Height()}), ElementsAre(2600, 40, 6430, 6030));
}

TEST_F(CDailyTest, TheFolderOfTheSelectedDocumentIsExploredOrOpened) {
  list.Click(Add("a", "", "C:\\Docs"));
  daily.Explore();
  daily.OpenFolder();
  EXPECT_THAT(desktop.shell.commandLines,
              ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,C:\\Docs", "C:\\WINDOWS\\EXPLORER.EXE /n,C:\\Docs"));
  EXPECT_EQ(desktop.windowing.beeps, 0);
}

TEST_F(CDailyTest, WithoutASelectedDocumentExploringAndOpeningOnlyBeep) {
  Add("a", "", "C:\\Docs");
  daily.Explore();
  daily.OpenFolder();
  EXPECT_EQ(desktop.windowing.beeps, 2);
  EXPECT_THAT(desktop.shell.commandLines, IsEmpty());
}

TEST_F(CDailyTest, ARemovedDocumentLeavesTheList) {
  Add("a", "", "");
  Add("b", "", "");
  daily.RemoveDocument("Ka");
  EXPECT_THAT(Names(), ElementsAre("b"));
  EXPECT_THROW(daily.RemoveDocument("Ka"), Error);
}

TEST_F(CDailyTest, TheSelectedDayIsTheTreesSelectedNode) {
  EXPECT_EQ(daily.SelectedDay(), nullptr);
  auto& node = tree.AddRoot("K1", "Daily", 1);
  tree.Click(node);
  EXPECT_EQ(daily.SelectedDay(), &node);
}

TEST_F(CDailyTest, MissingControlsAreLoggedByTheirProcedure) {
  daily.SetControls(nullptr, nullptr, nullptr);
  EXPECT_ANY_THROW((void)daily.SelectedDocument());
  EXPECT_ANY_THROW((void)daily.SelectedDay());
  EXPECT_ANY_THROW((void)daily.View());
  EXPECT_ANY_THROW(daily.SetView(ListStyle::List));
  EXPECT_ANY_THROW((void)daily.Visible());
  EXPECT_ANY_THROW(daily.SetVisible(true));
  EXPECT_ANY_THROW(daily.ArrangeIcons(0));
  EXPECT_ANY_THROW(daily.RemoveDocument("K"));
  EXPECT_ANY_THROW(daily.RestoreSettings());
  EXPECT_ANY_THROW(daily.SaveSettings());
  EXPECT_ANY_THROW(daily.SetSize(1, 1));
  EXPECT_THAT(
      Events(),
      ElementsAre("2\tCDaily.SelectedDocument: ListView is Nothing", "2\tCDaily.SelectedDay: TreeView is Nothing",
                  "2\tCDaily.View: ListView is Nothing", "2\tCDaily.View: ListView is Nothing",
                  "2\tCDaily.Visible: Container is Nothing", "2\tCDaily.Visible: Container is Nothing",
                  "2\tCDaily.ArrangeIcons: ListView is Nothing", "2\tCDaily.RemoveDocument: ListView is Nothing",
                  "2\tCDaily.RestoreSettings: ListView is Nothing", "2\tCDaily.SaveSettings: ListView is Nothing",
                  "2\tCDaily.SetSize: Container is Nothing"));
}

TEST_F(CDailyTest, ExploringWithoutAListIsLoggedByItsProcedure) {
  daily.SetControls(&tree, nullptr, &pane);
  EXPECT_ANY_THROW(daily.Explore());
  EXPECT_ANY_THROW(daily.OpenFolder());
  EXPECT_THAT(Events(),
              ElementsAre("2\tCDaily.Explore: ListView is Nothing", "2\tCDaily.OpenFolder: ListView is Nothing"));
}

TEST_F(CDailyTest, ResizingThePaneWithoutItsControlsIsLoggedAndReported) {
  daily.SetControls(&tree, nullptr, &pane);
  pane.Move(0, 0, 10, 10);
  daily.SetControls(nullptr, &list, &pane);
  pane.Move(0, 0, 20, 20);
  const std::string told = "An error occurred resizing the main window.";
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(told, told));
  EXPECT_THAT(Events(), ElementsAre("2\tCDaily.Container_Resize: ListView is Nothing",
                                    "2\tCDaily.Container_Resize: TreeView is Nothing"));
}

}  // namespace
}  // namespace dayvane
