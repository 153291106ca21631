// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "controls/Keys.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using platform::MessageAnswer;
using testing::ColumnOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::TextsOf;

/// The purge as the window's user meets it: at the start, and from the tree's menu.
class PurgeTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  void FileOnThreeDays() const {
    for (const char* day : {"18", "19", "20"})
      File(std::string("2026/November/") + day, "Z:\\home\\a.odt", std::string("2026-11-") + day + " 10:00:00");
  }

  /// Right-clicks a node, which selects it.
  void RightClick(controls::TreeNode& node) {
    window.tvwMain.Click(node);
    window.tvwMain.MouseUp.Raise(controls::kRightButton, 30, 40);
  }
};

TEST_F(PurgeTest, OldDaysGoAtTheStartWithTheirEmptyMonthsAndYears) {
  File("2025/March/05", "Z:\\home\\a.odt", "2025-03-05 10:00:00");
  File("2026/October/21", "Z:\\home\\a.odt", "2026-10-21 10:00:00");
  File("2026/October/22", "Z:\\home\\a.odt", "2026-10-22 10:00:00");
  Load();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  October", "   22"));
  EXPECT_FALSE(fs::exists(Daily("2025")));
  EXPECT_EQ(desktop.windowing.messages.size(), 1U);
}

TEST_F(PurgeTest, AnsweringNoAtTheStartKeepsOldDays) {
  File("2025/March/05", "Z:\\home\\a.odt", "2025-03-05 10:00:00");
  desktop.windowing.answer = MessageAnswer::No;
  Load();
  EXPECT_TRUE(fs::exists(Daily("2025/March/05/a.odt.lnk")));
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(PurgeTest, EmptyFoldersAreSweptAtTheStartEvenWhenNothingIsOld) {
  fs::create_directories(Daily("2026/November/20"));
  Load();
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily"));
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(PurgeTest, WithoutADataFileTheFavoritesAreCountedWithoutTheDaysPurged) {
  FileOnThreeDays();
  File("2025/March/05", "Z:\\home\\a.odt", "2025-03-05 10:00:00");
  Load();
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    3"));
}

TEST_F(PurgeTest, APurgeAtTheStartLeavesTheCountsOfTheDataFile) {
  File("2025/March/05", "Z:\\home\\a.odt", "2025-03-05 10:00:00");
  desktop.folder.Write("program/Favorites.dat",
                       "7,#2026-11-18 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\",\"Text\",\"\",0\r\n");
  Load();
  EXPECT_FALSE(fs::exists(Daily("2025")));
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    7"));
}

TEST_F(PurgeTest, ADayPurgedFromTheTreeGoesWithoutAQuestion) {
  FileOnThreeDays();
  Load();
  RightClick(Node("2026\\November\\19"));
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_FALSE(fs::exists(Daily("2026/November/19")));
  EXPECT_THAT(TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   18", "   20"));
  EXPECT_EQ(window.tvwMain.SelectedItem(), nullptr);
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_THAT(desktop.windowing.messages, IsEmpty());
}

TEST_F(PurgeTest, ADayPurgedFromTheTreeIsNotCountedAnyLonger) {
  FileOnThreeDays();
  Load();
  RightClick(Node("2026\\November\\19"));
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

TEST_F(PurgeTest, PurgingFromTheTreeSaysPleaseWaitAndCountsTheRowsAfterwards) {
  FileOnThreeDays();
  Load();
  RightClick(Node("2026\\November\\19"));
  std::vector<std::string> texts;
  window.sbrMain.Changed.Connect([&] { texts.push_back(window.sbrMain.Text()); });
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(texts, ElementsAre("Please wait...", "1 objects", "0 objects"));
}

TEST_F(PurgeTest, ADayThatCannotBePurgedIsReported) {
  FileOnThreeDays();
  Load();
  desktop.folder.Write("program/Daily/2026/November/19/mine/letter.odt", "x");
  RightClick(Node("2026\\November\\19"));
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred purging a day."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt").at(0), ::testing::StartsWith("FMain.mnuTreeViewPopup_Click\t"));
  EXPECT_TRUE(fs::exists(Daily("2026/November/19/mine/letter.odt")));
}

TEST_F(PurgeTest, TheMenuOfADayShowsAtTheMouse) {
  FileOnThreeDays();
  Load();
  window.picDaily.Move(100, 200, 5000, 5000);
  window.tvwMain.Move(7, 9, 2000, 2000);
  RightClick(Node("2026\\November\\19"));
  EXPECT_EQ(desktop.windowing.popupMenu, &window.mnuTreeViewPopup);
  EXPECT_EQ(desktop.windowing.popupX, 137);
  EXPECT_EQ(desktop.windowing.popupY, 249);
}

TEST_F(PurgeTest, AMenuOfADayThatCannotBeShownIsReported) {
  FileOnThreeDays();
  Load();
  desktop.windowing.noPopup = true;
  RightClick(Node("2026\\November\\19"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred displaying a context menu."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt").at(0), ::testing::StartsWith("FMain.tvwMain_MouseUp\t"));
}

TEST_F(PurgeTest, OnlyADayHasAMenu) {
  FileOnThreeDays();
  Load();
  fs::create_directories(Daily("2026/December"));
  window.RefreshDaily();
  window.tvwMain.MouseUp.Raise(controls::kRightButton, 30, 40);
  RightClick(*window.tvwMain.Roots()[0]);
  for (const char* path : {"2026", "2026\\November", "2026\\December"}) RightClick(Node(path));
  window.tvwMain.Click(Node("2026\\November\\19"));
  window.tvwMain.MouseUp.Raise(1, 30, 40);
  EXPECT_EQ(desktop.windowing.popupMenu, nullptr);
}

TEST_F(PurgeTest, TheRootOfAnEmptyRepositoryCannotBePurged) {
  Load();
  RightClick(*window.tvwMain.Roots()[0]);
  EXPECT_EQ(desktop.windowing.popupMenu, nullptr);
}

TEST_F(PurgeTest, PurgingWithoutASelectedDayIsLoggedAndReported) {
  Load();
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.PurgeDay: Node is nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred purging a day."));
}

TEST_F(PurgeTest, BeforeTheWindowHasLoadedAPurgeIsLoggedAndReported) {
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(desktop.LogLines("EventLog.txt"),
              ElementsAre("2\tFMain.mnuTreeViewPopup_Click: Daily object is nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred purging a day."));
}

TEST_F(PurgeTest, BeforeTheWindowHasLoadedTheFavoritesObjectIsMissing) {
  File("2026/November/19", "Z:\\home\\a.odt", "2026-11-19 10:00:00");
  const controls::TreeNode node{Key("2026\\November\\19"), "19", 4, {}, nullptr, 0, {}};
  EXPECT_ANY_THROW(window.PurgeDay(&node));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), Contains("2\tFMain.PurgeDay: Favorites object is nothing"));
}

}  // namespace
}  // namespace dayvane
