// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;

/// Whether the folder of a document can be explored and opened. The list shows 20 November with a.odt, which was filed
/// on the 19th too and so is a favorite, and b.odt.
class ExploreTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  ExploreTest() {
    File("2026/November/19", "Z:\\a.odt", "2026-11-19 10:00:00");
    for (const char* document : {"Z:\\a.odt", "Z:\\b.odt"}) File("2026/November/20", document, "2026-11-20 10:00:00");
    Load();
    window.SelectDate(Date::Of(2026, 11, 20));
  }

  controls::ListItem& Row(const std::string& name) {
    return window.lvwDaily.Item(Key("2026\\November\\20\\" + name + ".lnk"));
  }
  /// A document opened elsewhere is captured.
  void Capture(const std::string& localTime) {
    desktop.OpenDocument("Z:\\c.odt", localTime);
    Tick();
  }
  bool CanExplore() const {
    const bool can = window.mnuToolsPopup[kToolsExplore].Enabled();
    EXPECT_EQ(window.mnuToolsPopup[kToolsOpenFolder].Enabled(), can);
    EXPECT_EQ(window.sftToolbar[kExploreButton].Enabled(), can);
    EXPECT_EQ(window.sftToolbar[kOpenFolderButton].Enabled(), can);
    return can;
  }
};

TEST_F(ExploreTest, GoesOnForTheSelectedDocumentAfterACapture) {
  window.lvwDaily.Click(Row("a.odt"));
  Capture("2026-11-20 11:00:00");
  ASSERT_EQ(window.lvwDaily.Count(), 3U);
  EXPECT_TRUE(CanExplore());
}

TEST_F(ExploreTest, GoesOnForTheSelectedDocumentWhenTheListIsFilledAnew) {
  window.lvwDaily.Click(Row("a.odt"));
  window.RefreshDaily();
  EXPECT_TRUE(CanExplore());
}

TEST_F(ExploreTest, IsOverWhenACaptureFindsTheDayGone) {
  window.lvwDaily.Click(Row("a.odt"));
  fs::remove_all(Daily("2026/November/20"));
  Capture("2026-11-21 11:00:00");
  EXPECT_FALSE(CanExplore());
}

TEST_F(ExploreTest, IsOverOnceTheSelectedDocumentIsRemoved) {
  window.lvwDaily.Click(Row("a.odt"));
  window.RemoveLink(&Row("b.odt"));
  EXPECT_TRUE(CanExplore());
  window.RemoveLink(&Row("a.odt"));
  EXPECT_FALSE(CanExplore());
}

TEST_F(ExploreTest, IsOverOnceTheSelectedDocumentIsRemovedAndOthersOfItsDayStay) {
  window.lvwDaily.Click(Row("b.odt"));
  window.RemoveLink(&Row("b.odt"));
  ASSERT_EQ(window.lvwDaily.Count(), 1U);
  EXPECT_FALSE(CanExplore());
}

TEST_F(ExploreTest, IsOverOnceTheDayIsPurged) {
  window.lvwDaily.Click(Row("a.odt"));
  window.PurgeDay(&Node("2026\\November\\20"));
  EXPECT_FALSE(CanExplore());
}

TEST_F(ExploreTest, FollowsTheSelectedFavoriteWhileTheFavoritesAreShown) {
  window.SetActiveView(FMain::kFavoritesView);
  EXPECT_FALSE(CanExplore());
  window.lvwFavorites.SetSelectedItem(&window.lvwFavorites.Item(window.lvwFavorites.Row(0).key));
  Capture("2026-11-20 11:00:00");
  EXPECT_TRUE(CanExplore());
  window.RemoveLink(window.lvwFavorites.SelectedItem());
  EXPECT_FALSE(CanExplore());
}

TEST_F(ExploreTest, IsOverOnceTheSelectedDocumentIsNoFavoriteAnyMore) {
  window.SetActiveView(FMain::kFavoritesView);
  window.lvwFavorites.SetSelectedItem(&window.lvwFavorites.Item(window.lvwFavorites.Row(0).key));
  window.RefreshFavorites();
  ASSERT_TRUE(CanExplore());
  fs::remove_all(Daily("2026/November/19"));
  window.mnuToolsPopup.Choose(kToolsRebuildFavorites);
  ASSERT_EQ(window.lvwFavorites.Count(), 0U);
  EXPECT_FALSE(CanExplore());
}

}  // namespace
}  // namespace dayvane
