// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using controls::UnloadMode;
using controls::WindowState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

/// What the main window leaves in the settings, and what a start makes of them.
class SettingsTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  std::map<std::string, std::string>& Stored(const std::string& subtree) { return desktop.registry.Settings(subtree); }
  void End() { window.form.RequestUnload(UnloadMode::SystemSession); }
};

TEST_F(SettingsTest, AFirstStartStoresTheWindowAsItIsAndTheDailyViewInDetails) {
  window.form.Move(100, 200.5, 3000, 4000);
  Load();
  EXPECT_THAT(Stored("Window"), ElementsAre(Pair("Height", "4000"), Pair("Left", "100"), Pair("Top", "200.5"),
                                            Pair("Visible", "True"), Pair("Width", "3000"), Pair("Window State", "0")));
  EXPECT_THAT(Stored("View"), ElementsAre(Pair("Data", "0"), Pair("ListViews", "3")));
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(SettingsTest, TheEndStoresPlacementViewAndStyle) {
  Load();
  window.form.Move(1012.5, -30, 5000, 6000);
  window.SetActiveView(1);
  window.SetListView(2);
  End();
  EXPECT_THAT(Stored("Window"), ElementsAre(Pair("Height", "6000"), Pair("Left", "1012.5"), Pair("Top", "-30"),
                                            Pair("Visible", "True"), Pair("Width", "5000"), Pair("Window State", "0")));
  EXPECT_THAT(Stored("View"), ElementsAre(Pair("Data", "1"), Pair("ListViews", "2")));
}

TEST_F(SettingsTest, AHiddenWindowIsStoredAsSuch) {
  Load();
  window.SetVisible(false);
  End();
  EXPECT_EQ(Stored("Window")["Visible"], "False");
}

TEST_F(SettingsTest, AMaximisedWindowKeepsItsLastNormalPlacement) {
  window.form.Move(100, 200, 3000, 4000);
  Load();
  window.form.SetState(WindowState::Maximised);
  window.form.Move(0, 0, 20000, 15000);
  End();
  EXPECT_THAT(Stored("Window"), ElementsAre(Pair("Height", "4000"), Pair("Left", "100"), Pair("Top", "200"),
                                            Pair("Visible", "True"), Pair("Width", "3000"), Pair("Window State", "2")));
}

TEST_F(SettingsTest, TheEndStoresBothListsAndTheFavorites) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00");
  Load();
  std::filesystem::remove(FavoritesFile());
  window.lvwDaily.SetColumnWidth(0, 2000);
  window.lvwFavorites.SetColumnWidth(0, 2500);
  End();
  EXPECT_EQ(Stored("Daily")["Name Width"], "2000");
  EXPECT_EQ(Stored("Favorites")["Name Width"], "2500");
  EXPECT_TRUE(std::filesystem::exists(FavoritesFile()));
}

TEST_F(SettingsTest, TheEndStopsCaptureAndLetsTheViewsGo) {
  Load();
  End();
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_EQ(window.Favorites(), nullptr);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(SettingsTest, SettingsThatCannotBeSavedAreReportedAndTheProgramEnds) {
  Load();
  desktop.registry.EraseSettings("Window");
  End();
  EXPECT_TRUE(window.form.IsUnloaded());
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred saving the current settings."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(::testing::StartsWith("FMain.Form_Unload\t35001\t")));
  EXPECT_EQ(window.Favorites(), nullptr);
}

TEST_F(SettingsTest, AWindowThatNeverLoadedLogsWhatIsMissingWhenItEnds) {
  Stored("Window") = {{"Visible", "True"}, {"Window State", "2"}};
  window.form.SetState(WindowState::Maximised);
  Stored("View") = {{"Data", "0"}, {"ListViews", "3"}};
  End();
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.Form_Unload: Daily object is nothing",
                                                            "2\tFMain.Form_Unload: Favorites object is nothing"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred saving the current settings."));
}

TEST_F(SettingsTest, AStartRestoresPlacementViewAndStyle) {
  Stored("Window") = {{"Visible", "True"}, {"Window State", "0"}, {"Left", "150"},
                      {"Top", "-20"},      {"Width", "7000"},     {"Height", "6000.5"}};
  Stored("View") = {{"Data", "1"}, {"ListViews", "0"}};
  Load();
  EXPECT_EQ(window.form.Left(), 150);
  EXPECT_EQ(window.form.Top(), -20);
  EXPECT_EQ(window.form.Width(), 7000);
  EXPECT_EQ(window.form.Height(), 6000);
  EXPECT_EQ(window.form.Caption(), "Dayvane - Favorites");
  EXPECT_TRUE(window.picFavorites.Visible());
  EXPECT_EQ(window.lvwFavorites.View(), controls::ListStyle::LargeIcons);
}

TEST_F(SettingsTest, AWindowThatWasMaximisedStartsMaximisedOverItsNormalPlacement) {
  Stored("Window") = {{"Visible", "True"}, {"Window State", "2"}, {"Left", "150"},
                      {"Top", "160"},      {"Width", "7000"},     {"Height", "6000"}};
  Load();
  EXPECT_EQ(window.form.State(), WindowState::Maximised);
  EXPECT_EQ(window.form.Width(), 7000);
}

TEST_F(SettingsTest, AWindowStoredAsMinimisedStartsVisibleAndNormal) {
  Stored("Window") = {{"Visible", "True"}, {"Window State", "1"}, {"Left", "150"},
                      {"Top", "160"},      {"Width", "7000"},     {"Height", "6000"}};
  Load();
  EXPECT_EQ(window.form.State(), WindowState::Normal);
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(SettingsTest, AWindowThatWasHiddenStartsHiddenWithShowInTheTray) {
  Stored("Window") = {{"Visible", "False"}, {"Window State", "0"}, {"Left", "150"},
                      {"Top", "160"},       {"Width", "7000"},     {"Height", "6000"}};
  Load();
  EXPECT_FALSE(window.form.Visible());
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(SettingsTest, APlacementThatDoesNotConvertIsTheWindowsOwn) {
  window.form.Move(100, 200, 3000, 4000);
  Stored("Window") = {{"Visible", "perhaps"}, {"Window State", "0"}, {"Left", "32768"},
                      {"Top", "x"},           {"Width", ""},         {"Height", "5000"}};
  Load();
  EXPECT_EQ(window.form.Left(), 100);
  EXPECT_EQ(window.form.Top(), 200);
  EXPECT_EQ(window.form.Width(), 3000);
  EXPECT_EQ(window.form.Height(), 5000);
  EXPECT_TRUE(window.form.Visible());
  EXPECT_EQ(Stored("Window")["Left"], "100") << "so that a later save finds it";
}

TEST_F(SettingsTest, AStoredViewThatDoesNotExistShowsTheDailyPaneAlone) {
  Stored("View") = {{"Data", "7"}, {"ListViews", "3"}};
  Load();
  EXPECT_EQ(window.form.Caption(), "Dayvane - Daily");
  EXPECT_TRUE(window.picDaily.Visible());
  EXPECT_FALSE(window.picFavorites.Visible());
}

TEST_F(SettingsTest, ASettingThatIsMissingAndCannotBeStoredDoesNotStopTheStart) {
  Load();
  for (const char* subtree : {"Window", "View", "Daily", "Favorites"}) Stored(subtree).erase(Stored(subtree).begin());
  desktop.registry.refusesValues = true;
  FMain next(application, repository);
  next.Form_Load();
  EXPECT_TRUE(next.tmrMain.Enabled());
  EXPECT_TRUE(next.form.Visible());
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(SettingsTest, WhatOneRunLeavesTheNextTakesUp) {
  Load();
  window.form.Move(1000, 1100, 5000, 6000);
  window.SetActiveView(1);
  window.SetListView(1);
  window.lvwDaily.SetColumnWidth(2, 3333);
  End();
  FMain next(application, repository);
  next.Form_Load();
  EXPECT_EQ(next.form.Left(), 1000);
  EXPECT_EQ(next.form.Height(), 6000);
  EXPECT_EQ(next.form.Caption(), "Dayvane - Favorites");
  EXPECT_EQ(next.lvwDaily.View(), controls::ListStyle::SmallIcons);
  EXPECT_EQ(next.lvwDaily.Columns()[2].width, 3333);
}

}  // namespace
}  // namespace dayvane
