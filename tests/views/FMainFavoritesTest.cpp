// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using testing::ColumnOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The Favorites list as the user sees it, over a data file.
class FavoritesListTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  static std::string Record(const std::string& days, const std::string& name,
                            const std::string& accessed = "#2026-11-18 10:00:00#") {
    return days + "," + accessed + ",\"Z:\\d\\" + name + ".lnk\",\"" + name +
           "\",\"z:\\Home\\Ana\",\"Text\",\"\",0\r\n";
  }
  void LoadWith(const std::string& data) {
    desktop.folder.Write("program/Favorites.dat", data);
    Load();
  }
  void SetThreshold(const std::string& days) { desktop.registry.Settings("Options")["Favorites Threshold"] = days; }
  std::vector<std::string> Names() const { return ColumnOf(window.lvwFavorites, 0); }
  std::vector<std::string> Events() const { return desktop.LogLines("EventLog.txt"); }
  controls::ListItem& Row(const std::string& name) { return window.lvwFavorites.Item("KZ:\\d\\" + name + ".lnk"); }
};

TEST_F(FavoritesListTest, TheColumnsAreNameTypePathDaysAccessedAndLastAccessed) {
  std::vector<std::string> headings;
  for (const auto& column : window.lvwFavorites.Columns()) headings.push_back(column.text);
  EXPECT_THAT(headings, ElementsAre("Name", "Type", "Path", "Days Accessed", "Last Accessed"));
}

TEST_F(FavoritesListTest, ARowShowsItsDocumentInFiveColumns) {
  LoadWith(Record("12", "Report.odt", "#2026-01-05 09:07:59#"));
  ASSERT_EQ(window.lvwFavorites.Count(), 1U);
  const controls::ListItem& row = window.lvwFavorites.Row(0);
  EXPECT_EQ(row.key, "KZ:\\d\\Report.odt.lnk");
  EXPECT_EQ(row.text, "Report.odt");
  EXPECT_THAT(row.subItems, ElementsAre("Text", "z:\\home\\ana", "   12", "2026/01/05 09:07"));
}

TEST_F(FavoritesListTest, PathsAreShownAsAPersonOfTheDesktopReadsThem) {
  desktop.shell.displayPath = [](const std::string& path) { return "shown " + path; };
  LoadWith(Record("2", "a.odt"));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 2), ElementsAre("shown z:\\home\\ana"));
}

TEST_F(FavoritesListTest, ADocumentIsListedFromTheThresholdOn) {
  SetThreshold("3");
  LoadWith(Record("2", "two") + Record("3", "three") + Record("4", "four"));
  EXPECT_THAT(Names(), ElementsAre("four", "three"));
}

TEST_F(FavoritesListTest, AThresholdOfOneListsEveryDocument) {
  SetThreshold("1");
  LoadWith(Record("1", "a") + Record("5", "b"));
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
}

TEST_F(FavoritesListTest, OnlyFiveDigitsOfACountAreShown) {
  LoadWith(Record("99999", "a") + Record("100000", "b") + Record("123456", "c"));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("99999", "00000", "23456"));
}

TEST_F(FavoritesListTest, CountsSortAsNumbers) {
  LoadWith(Record("10", "ten") + Record("9", "nine") + Record("100", "hundred"));
  window.lvwFavorites.ColumnClick.Raise(4);
  EXPECT_THAT(Names(), ElementsAre("nine", "ten", "hundred"));
}

TEST_F(FavoritesListTest, LastAccessesSortByTime) {
  LoadWith(Record("2", "b", "#2026-02-01 08:00:00#") + Record("2", "a", "#2026-10-01 08:00:00#") +
           Record("2", "c", "#2025-12-31 08:00:00#"));
  window.lvwFavorites.ColumnClick.Raise(5);
  EXPECT_THAT(Names(), ElementsAre("c", "b", "a"));
}

TEST_F(FavoritesListTest, NewRowsTakeTheOrderOfTheLastColumnClick) {
  LoadWith(Record("2", "a") + Record("3", "b"));
  window.lvwFavorites.ColumnClick.Raise(1);
  window.RefreshFavorites();
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(FavoritesListTest, ArrangedIconsStayArrangedWhenTheListIsFilledAnew) {
  std::string other = Record("3", "a");
  other.replace(other.find("Text"), 4, "Yarn");
  LoadWith(Record("2", "b") + other);
  window.ArrangeIcons(0);
  ASSERT_THAT(Names(), ElementsAre("b", "a"));
  window.RefreshFavorites();
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(FavoritesListTest, ArrangingIconsLeavesTheOrderThatTheNextColumnClickGoesOnFrom) {
  LoadWith(Record("2", "a") + Record("3", "b"));
  window.ArrangeIcons(0);
  window.RefreshFavorites();
  window.lvwFavorites.ColumnClick.Raise(1);
  EXPECT_THAT(Names(), ElementsAre("b", "a"));
}

TEST_F(FavoritesListTest, AnEmptyTableListsNothing) {
  Load();
  EXPECT_EQ(window.lvwFavorites.Count(), 0U);
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(FavoritesListTest, ARefreshListsEveryDocumentOnceAndKeepsTheSelectedOne) {
  LoadWith(Record("2", "a") + Record("3", "b"));
  window.lvwFavorites.Click(Row("b"));
  window.RefreshFavorites();
  EXPECT_THAT(Names(), ElementsAre("a", "b"));
  EXPECT_EQ(window.lvwFavorites.SelectedItem(), &Row("b"));
}

TEST_F(FavoritesListTest, DocumentsOfOneNameShareAnIcon) {
  std::string other = Record("2", "a");
  other.replace(other.find("\\d\\"), 3, "\\e\\");
  LoadWith(Record("2", "a") + other + Record("2", "b"));
  EXPECT_EQ(Row("a").icon, window.lvwFavorites.Item("KZ:\\e\\a.lnk").icon);
  EXPECT_NE(Row("a").icon, Row("b").icon);
  EXPECT_EQ(window.imlFavoritesLarge.Count(), 3);
  EXPECT_THAT(window.imlFavoritesSmall.At(Row("b").icon).iconNames, ElementsAre("b.lnk"));
}

TEST_F(FavoritesListTest, ADocumentWithoutAnIconHasTheDefaultOne) {
  desktop.icons.hasIcons = false;
  LoadWith(Record("2", "a"));
  EXPECT_EQ(Row("a").icon, 1);
}

TEST_F(FavoritesListTest, NamesMissingForAnIconAreLogged) {
  Load();
  window.FavoritesImageListIndex("", " ");
  EXPECT_THAT(Events(), ElementsAre("2\tFMain.FavoritesImageListIndex: Shortcut file name is missing",
                                    "2\tFMain.FavoritesImageListIndex: Target file name is missing"));
}

TEST_F(FavoritesListTest, ACountThatIsNoNumberKeepsNoOtherDocumentFromTheList) {
  LoadWith(Record("\"many\"", "a") + Record("\"4\"", "b") + Record("3", "c"));
  EXPECT_THAT(Names(), ElementsAre("b", "c"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(FavoritesListTest, ALastAccessThatIsNoDateIsShownAsItStands) {
  LoadWith(Record("3", "a", "\"long ago\""));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 4), ElementsAre("long ago"));
}

TEST_F(FavoritesListTest, AShortcutThatTheDataFileNamesTwiceIsListedOnce) {
  LoadWith(Record("3", "a") + Record("4", "a"));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    3"));
}

TEST_F(FavoritesListTest, ClickingADocumentLetsItsFolderBeExplored) {
  LoadWith(Record("3", "a"));
  window.lvwFavorites.Click(Row("a"));
  EXPECT_TRUE(window.mnuToolsPopup[kToolsExplore].Enabled());
  EXPECT_TRUE(window.mnuToolsPopup[kToolsOpenFolder].Enabled());
  EXPECT_TRUE(window.sftToolbar[kExploreButton].Enabled());
  EXPECT_TRUE(window.sftToolbar[kOpenFolderButton].Enabled());
}

TEST_F(FavoritesListTest, TheMenuOfADocumentShowsAtTheMouse) {
  LoadWith(Record("3", "a"));
  window.picFavorites.Move(100, 200, 5000, 5000);
  window.lvwFavorites.Click(Row("a"));
  window.lvwFavorites.MouseUp.Raise(2, 30, 40);
  EXPECT_EQ(desktop.windowing.popupMenu, &window.mnuListViewPopup);
  EXPECT_EQ(desktop.windowing.popupX, 130);
  EXPECT_EQ(desktop.windowing.popupY, 240);
}

TEST_F(FavoritesListTest, BeforeTheWindowHasLoadedTheFavoritesObjectIsMissing) {
  EXPECT_ANY_THROW(window.RefreshFavorites());
  EXPECT_THAT(Events(), ElementsAre("2\tFMain.RefreshFavorites: Favorites object is nothing"));
}

}  // namespace
}  // namespace dayvane
