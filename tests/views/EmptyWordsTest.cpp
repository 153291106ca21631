// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "views/EmptyWords.h"

namespace dayvane {
namespace {

class EmptyWordsTest : public ::testing::Test {
 protected:
  testing::MainWindow program;
};

TEST_F(EmptyWordsTest, ARecordWithoutDaysSaysThatNothingIsOnRecordYet) {
  program.Load();
  EXPECT_EQ(program.window.lvwDaily.EmptyText(),
            "Nothing is on record yet.\nDocuments that you open from now on are listed here, day by day.");
}

TEST_F(EmptyWordsTest, AMonthSaysThatNoDayIsChosen) {
  program.desktop.OpenDocument("Z:\\home\\ana\\Report.odt", "2026-11-21 09:15:00");
  program.Load();

  program.window.tvwMain.Click(program.Node("2026\\November"));

  EXPECT_EQ(program.window.lvwDaily.EmptyText(), "No day is chosen.\nClick one in the calendar or in the tree.");
}

TEST_F(EmptyWordsTest, ADayWhoseDocumentsAreGoneSaysSo) {
  program.desktop.OpenDocument("Z:\\home\\ana\\Report.odt", "2026-11-21 09:15:00");
  program.Load();

  program.window.tvwMain.Click(program.Node("2026\\November\\21"));

  EXPECT_EQ(program.window.lvwDaily.EmptyText(), "No documents are left on this day.");
}

TEST_F(EmptyWordsTest, FavoritesTellTheirThreshold) {
  program.Load();
  EXPECT_EQ(program.window.lvwFavorites.EmptyText(), "No document has been opened on 2 days or more yet.");
}

TEST(FavoritesWords, OneDayIsEnoughForAThresholdOfOne) {
  EXPECT_EQ(emptywords::OfFavorites(1), "No document has been opened yet.");
}

}  // namespace
}  // namespace dayvane
