// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "views/CFavorites.h"

namespace dayvane {
namespace {

using controls::ListArrange;
using controls::ListStyle;
using testing::ColumnOf;
using ::testing::ElementsAre;
using Texts = std::map<std::string, std::string>;

class CFavoritesViewTest : public ::testing::Test {
 protected:
  CFavoritesViewTest() {
    list.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Days Accessed"}, {"Last Accessed"}});
    favorites.SetListControls(&list, &pane);
  }

  void Add(const std::string& name, const std::string& type) { list.Add("K" + name, name, 1).subItems = {type}; }
  Texts& Stored() { return desktop.registry.Settings("Favorites"); }
  std::vector<std::string> Events() const { return desktop.LogLines("EventLog.txt"); }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  controls::ListView list;
  controls::PictureBox pane;
  CFavorites favorites{application};
};

const Texts kFavoritesDefaults{
    {"Name Width", "1440"},          {"Type Width", "1440"}, {"Path Width", "1440"}, {"Days Accessed Width", "1440"},
    {"Last Accessed Width", "1440"}, {"Sort Column", "1"},   {"Sort Order", "0"}};

TEST_F(CFavoritesViewTest, AFreshInstallationStoresTheDefaultSettings) {
  favorites.RestoreSettings();
  EXPECT_EQ(Stored(), kFavoritesDefaults);
}

TEST_F(CFavoritesViewTest, CreatingTheKeysWritesTheDefaultSettings) {
  favorites.CreateRegistryKeys();
  EXPECT_EQ(Stored(), kFavoritesDefaults);
}

TEST_F(CFavoritesViewTest, StoredWidthsAndSortComeBack) {
  Stored() = {
      {"Name Width", "100"},          {"Type Width", "200"}, {"Path Width", "300"}, {"Days Accessed Width", "400"},
      {"Last Accessed Width", "500"}, {"Sort Column", "2"},  {"Sort Order", "1"}};
  favorites.RestoreSettings();
  std::vector<double> widths;
  for (const auto& column : list.Columns()) widths.push_back(column.width);
  EXPECT_THAT(widths, ElementsAre(100, 200, 300, 400, 500));
  Add("a", "1");
  Add("b", "2");
  favorites.SortAgain();
  EXPECT_THAT(ColumnOf(list, 0), ElementsAre("b", "a"));
}

TEST_F(CFavoritesViewTest, WidthsAndTheSortOfTheColumnClicksAreSaved) {
  favorites.RestoreSettings();
  for (std::size_t column = 0; column < 5; ++column) list.SetColumnWidth(column, 1000.0 + static_cast<double>(column));
  list.ColumnClick.Raise(4);
  list.ColumnClick.Raise(4);
  favorites.ArrangeIcons(0);
  favorites.SaveSettings();
  const Texts expected{
      {"Name Width", "1000"},          {"Type Width", "1001"}, {"Path Width", "1002"}, {"Days Accessed Width", "1003"},
      {"Last Accessed Width", "1004"}, {"Sort Column", "4"},   {"Sort Order", "1"}};
  EXPECT_EQ(Stored(), expected);
}

TEST_F(CFavoritesViewTest, AStoredSortColumnThatIsNoneIsSavedAsItWas) {
  for (const char* column : {"-1", "0", "9"}) {
    Stored() = kFavoritesDefaults;
    Stored()["Sort Column"] = column;
    favorites.RestoreSettings();
    favorites.SortAgain();
    favorites.SaveSettings();
    EXPECT_EQ(Stored()["Sort Column"], column);
  }
}

TEST_F(CFavoritesViewTest, ClickingTheStoredColumnTurnsItsOrderAroundAndBack) {
  favorites.RestoreSettings();
  Add("a", "");
  Add("b", "");
  list.ColumnClick.Raise(1);
  EXPECT_THAT(ColumnOf(list, 0), ElementsAre("b", "a"));
  list.ColumnClick.Raise(1);
  EXPECT_THAT(ColumnOf(list, 0), ElementsAre("a", "b"));
}

TEST_F(CFavoritesViewTest, ClickingAnotherColumnKeepsTheOrder) {
  favorites.RestoreSettings();
  Add("a", "1");
  Add("b", "2");
  list.ColumnClick.Raise(1);
  list.ColumnClick.Raise(2);
  EXPECT_THAT(ColumnOf(list, 0), ElementsAre("b", "a"));
  list.ColumnClick.Raise(2);
  EXPECT_THAT(ColumnOf(list, 0), ElementsAre("a", "b"));
}

TEST_F(CFavoritesViewTest, TheListFillsThePane) {
  pane.Move(15, 600, 100, 100);
  list.Move(5, 6, 10, 10);
  favorites.SetSize(9000, 6000);
  EXPECT_THAT((std::vector{pane.Left(), pane.Top(), pane.Width(), pane.Height()}), ElementsAre(15, 600, 9000, 6000));
  EXPECT_THAT((std::vector{list.Left(), list.Top(), list.Width(), list.Height()}), ElementsAre(5, 6, 9000, 6000));
}

TEST_F(CFavoritesViewTest, ASizeBelowOneIsLogged) {
  favorites.SetSize(1, 1);
  EXPECT_THAT(Events(), ElementsAre());
  favorites.SetSize(0, 0);
  EXPECT_THAT(Events(), ElementsAre("2\tCFavorites.SetSize: Invalid width", "2\tCFavorites.SetSize: Invalid height"));
}

TEST_F(CFavoritesViewTest, StyleVisibilityAndArrangementArePassedThrough) {
  favorites.SetView(ListStyle::LargeIcons);
  EXPECT_EQ(list.View(), ListStyle::LargeIcons);
  EXPECT_EQ(favorites.View(), ListStyle::LargeIcons);
  favorites.SetVisible(false);
  EXPECT_FALSE(pane.Visible());
  EXPECT_FALSE(favorites.Visible());
  favorites.ArrangeIcons(2);
  EXPECT_EQ(list.Arrange(), ListArrange::Top);
}

TEST_F(CFavoritesViewTest, MissingControlsAreLoggedByTheirProcedure) {
  favorites.SetListControls(nullptr, nullptr);
  EXPECT_ANY_THROW((void)favorites.SelectedDocument());
  EXPECT_ANY_THROW((void)favorites.View());
  EXPECT_ANY_THROW(favorites.SetView(ListStyle::List));
  EXPECT_ANY_THROW((void)favorites.Visible());
  EXPECT_ANY_THROW(favorites.SetVisible(true));
  EXPECT_ANY_THROW(favorites.ArrangeIcons(0));
  EXPECT_ANY_THROW(favorites.RestoreSettings());
  EXPECT_ANY_THROW(favorites.SaveSettings());
  EXPECT_ANY_THROW(favorites.SetSize(1, 1));
  EXPECT_THAT(
      Events(),
      ElementsAre("2\tCFavorites.SelectedDocument: ListView is Nothing", "2\tCFavorites.View: ListView is Nothing",
                  "2\tCFavorites.View: ListView is Nothing", "2\tCFavorites.Visible: Container is Nothing",
                  "2\tCFavorites.Visible: Container is Nothing", "2\tCFavorites.ArrangeIcons: ListView is Nothing",
                  "2\tCFavorites.RestoreSettings: ListView is Nothing",
                  "2\tCFavorites.SaveSettings: ListView is Nothing", "2\tCFavorites.SetSize: Container is Nothing"));
}

TEST_F(CFavoritesViewTest, ResizingThePaneWithoutItsListIsLoggedAndReported) {
  favorites.SetListControls(nullptr, &pane);
  pane.Move(0, 0, 10, 10);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred resizing the main window."));
  EXPECT_THAT(Events(), ElementsAre("2\tCFavorites.Container_Resize: ListView is Nothing"));
}

}  // namespace
}  // namespace dayvane
