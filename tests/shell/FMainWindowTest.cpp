// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using controls::UnloadMode;
using controls::WindowState;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The main window on the day of two documents, with three objects in all; nothing is selected.
class WindowTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  WindowTest() {
    desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
    Load();
    for (const char* name : {"Z:\\home\\ana\\a.odt", "Z:\\home\\ana\\b.odt"})
      desktop.OpenDocument(name, "2026-11-21 09:15:00");
    Tick();
    window.form.Activate.Raise();
  }

  bool ExploreAndOpenEnabled() const {
    const bool enabled = window.mnuToolsPopup[kToolsExplore].Enabled();
    for (const bool other :
         {window.mnuToolsPopup[kToolsOpenFolder].Enabled(), window.sftToolbar[kExploreButton].Enabled(),
          window.sftToolbar[kOpenFolderButton].Enabled()})
      EXPECT_EQ(other, enabled);
    return enabled;
  }
};

TEST_F(WindowTest, ThePanesFillTheWindowButForTheirMargins) {
  window.sbrMain.Move(0, 0, 5000, 300);
  window.picDaily.Move(0, 600, 1, 1);
  window.picFavorites.Move(10, 700, 1, 1);
  window.form.SetScale(10000, 8000);
  EXPECT_EQ(window.picDaily.Width(), 10000 - 30);
  EXPECT_EQ(window.picDaily.Height(), 8000 - 300 - 600 - 15);
  EXPECT_EQ(window.picFavorites.Width(), 10000 - 30);
  EXPECT_EQ(window.picFavorites.Height(), 8000 - 300 - 700 - 15) << "the hidden pane is sized too";
  EXPECT_EQ(window.picFavorites.Left(), 10);
}

TEST_F(WindowTest, AWindowSmallerThanTheMarginsHasPanesOfNoSize) {
  window.form.SetScale(20, 10);
  for (const controls::PictureBox* pane : {&window.picDaily, &window.picFavorites}) {
    EXPECT_EQ(pane->Width(), 0);
    EXPECT_EQ(pane->Height(), 0);
  }
}

TEST_F(WindowTest, MinimisingHidesTheWindowAndLeavesItNormal) {
  window.form.SetState(WindowState::Minimised);
  EXPECT_FALSE(window.form.Visible());
  EXPECT_EQ(window.form.State(), WindowState::Normal);
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(WindowTest, MaximisingLeavesTheWindowVisible) {
  window.form.SetState(WindowState::Maximised);
  EXPECT_TRUE(window.form.Visible());
  EXPECT_EQ(window.form.State(), WindowState::Maximised);
}

TEST_F(WindowTest, AResizeThatFailsIsReported) {
  window.picDaily.Changed.Connect([] { throw Error(kDeviceIoError, "The pane is gone"); });
  window.form.SetScale(10000, 8000);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.Form_Resize\t57\tThe pane is gone\tAn error occurred resizing the main window."));
}

TEST_F(WindowTest, ClosingTheWindowHidesItAndCaptureGoesOn) {
  for (const UnloadMode mode : {UnloadMode::ControlMenu, UnloadMode::Code}) {
    window.SetVisible(true);
    EXPECT_FALSE(window.form.RequestUnload(mode));
    EXPECT_FALSE(window.form.Visible());
    EXPECT_TRUE(window.mnuSysTrayPopup[kTrayShow].Visible());
    EXPECT_TRUE(window.tmrMain.Enabled());
  }
}

TEST_F(WindowTest, TheEndOfTheSessionEndsTheProgram) {
  EXPECT_TRUE(window.form.RequestUnload(UnloadMode::SystemSession));
  EXPECT_EQ(window.Favorites(), nullptr);
}

TEST_F(WindowTest, TheTaskManagerEndsTheProgram) {
  EXPECT_TRUE(window.form.RequestUnload(UnloadMode::TaskManager));
  EXPECT_EQ(window.Favorites(), nullptr);
}

TEST_F(WindowTest, AWindowThatCannotHideIsReportedAndStays) {
  window.form.Changed.Connect([] { throw Error(kDeviceIoError, "The window is gone"); });
  EXPECT_FALSE(window.form.RequestUnload(UnloadMode::ControlMenu));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre("FMain.Form_QueryUnload\t57\tThe window is gone\t"
                                                            "An error occurred exiting or hiding the main window."));
}

TEST_F(WindowTest, TheCaptionNamesTheView) {
  EXPECT_EQ(window.form.Caption(), "Dayvane - Daily");
  window.SetActiveView(1);
  EXPECT_EQ(window.form.Caption(), "Dayvane - Favorites");
  window.SetActiveView(0);
  EXPECT_EQ(window.form.Caption(), "Dayvane - Daily");
}

TEST_F(WindowTest, OnePaneIsShownAtATime) {
  for (const int view : {1, 0}) {
    window.SetActiveView(view);
    EXPECT_EQ(window.picDaily.Visible(), view == 0);
    EXPECT_EQ(window.picFavorites.Visible(), view == 1);
    EXPECT_EQ(window.mnuViewPopup[kViewDaily].Checked(), view == 0);
    EXPECT_EQ(window.mnuViewPopup[kViewFavorites].Checked(), view == 1);
    EXPECT_EQ(window.sftToolbar[kDailyButton].Enabled(), view != 0);
    EXPECT_EQ(window.sftToolbar[kFavoritesButton].Enabled(), view != 1);
  }
}

TEST_F(WindowTest, AViewThatDoesNotExistLeavesPaneAndCaptionAndStatus) {
  window.RefreshStatusBar();
  window.SetActiveView(2);
  EXPECT_EQ(window.form.Caption(), "Dayvane - Daily");
  EXPECT_TRUE(window.picDaily.Visible());
  EXPECT_TRUE(window.sftToolbar[kDailyButton].Enabled());
  EXPECT_TRUE(window.sftToolbar[kFavoritesButton].Enabled());
  EXPECT_FALSE(window.mnuViewPopup[kViewDaily].Checked());
  window.lvwDaily.Clear();
  window.RefreshStatusBar();
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
}

TEST_F(WindowTest, ExploreAndOpenFollowTheSelectionOfTheViewThatIsShown) {
  EXPECT_FALSE(ExploreAndOpenEnabled());
  window.lvwDaily.Click(window.lvwDaily.Item(window.lvwDaily.Row(0).key));
  EXPECT_TRUE(ExploreAndOpenEnabled());
  window.SetActiveView(1);
  EXPECT_FALSE(ExploreAndOpenEnabled());
  window.SetActiveView(0);
  EXPECT_TRUE(ExploreAndOpenEnabled());
}

TEST_F(WindowTest, TheStatusBarCountsTheObjectsOfTheViewThatIsShown) {
  window.RefreshStatusBar();
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
  window.SetActiveView(1);
  window.RefreshStatusBar();
  EXPECT_EQ(window.sbrMain.Text(), "1 objects");
}

TEST_F(WindowTest, RefreshingTheStatusBarEndsTheWait) {
  auto wait = std::make_unique<CWaitCursor>(application);
  EXPECT_EQ(window.form.Pointer(), controls::MousePointer::Hourglass);
  window.RefreshStatusBar(std::move(wait));
  EXPECT_EQ(window.form.Pointer(), controls::MousePointer::Default);
}

TEST_F(WindowTest, ArrangingByNameAndTypeSortsBothLists) {
  window.mnuViewArrangePopup.Choose(kArrangeByName);
  EXPECT_EQ(window.lvwDaily.SortKey(), 1U);
  EXPECT_EQ(window.lvwFavorites.SortKey(), 1U);
  window.mnuArrangeIconsPopup.Choose(kArrangeByType);
  EXPECT_EQ(window.lvwDaily.SortKey(), 2U);
  EXPECT_EQ(window.lvwFavorites.SortKey(), 2U);
}

TEST_F(WindowTest, AutoArrangeFlipsItsMarkInBothMenusAndArrangesByTheMarkItHad) {
  const auto marks = [this] {
    return std::vector<bool>{window.mnuViewArrangePopup[kArrangeAuto].Checked(),
                             window.mnuArrangeIconsPopup[kArrangeAuto].Checked()};
  };
  window.mnuViewArrangePopup.Choose(kArrangeAuto);
  EXPECT_THAT(marks(), ElementsAre(true, true));
  EXPECT_EQ(window.lvwDaily.Arrange(), controls::ListArrange::None);
  window.mnuArrangeIconsPopup.Choose(kArrangeAuto);
  EXPECT_THAT(marks(), ElementsAre(false, false));
  EXPECT_EQ(window.lvwDaily.Arrange(), controls::ListArrange::Top);
  EXPECT_EQ(window.lvwFavorites.Arrange(), controls::ListArrange::Top);
}

TEST_F(WindowTest, FailuresOfTheViewsAreReportedWithThePhraseOfTheAction) {
  window.picFavorites.Changed.Connect([] { throw Error(kDeviceIoError, "No pane"); });
  window.SetActiveView(1);
  window.lvwDaily.Changed.Connect([] { throw Error(kDeviceIoError, "No list"); });
  window.lvwDaily.ContentsWillChange.Connect([] { throw Error(kDeviceIoError, "No rows"); });
  window.SetListView(0);
  window.ArrangeIcons(0);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.SetActiveView\t57\tNo pane\tAn error occurred setting the active view.",
                          "FMain.SetListView\t57\tNo list\tAn error occurred setting the document view.",
                          "FMain.ArrangeIcons\t57\tNo rows\tAn error occurred arranging icons."));
}

TEST_F(WindowTest, BeforeTheWindowHasLoadedAViewCannotBeSet) {
  testing::MainWindow fresh;
  fresh.window.SetActiveView(1);
  fresh.window.SetListView(1);
  fresh.window.ArrangeIcons(0);
  EXPECT_THAT(fresh.desktop.LogLines("EventLog.txt"),
              ElementsAre("2\tFMain.SetActiveView: Daily object is nothing",
                          "2\tFMain.SetActiveView: Favorites object is nothing"));
  EXPECT_THAT(fresh.desktop.windowing.Texts(),
              ElementsAre("An error occurred setting the active view.", "An error occurred setting the document view.",
                          "An error occurred arranging icons."));
}

TEST_F(WindowTest, AWindowThatHasNotLoadedIsResizedWithoutAComplaint) {
  testing::MainWindow fresh;
  fresh.window.form.SetScale(10000, 8000);
  EXPECT_THAT(fresh.desktop.windowing.Texts(), IsEmpty());
}

}  // namespace
}  // namespace dayvane
