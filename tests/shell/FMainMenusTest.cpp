// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> CaptionsOf(const controls::Menu& menu) {
  std::vector<std::string> captions;
  for (int i = 0; i < menu.Count(); ++i) captions.push_back(menu[i].Caption());
  return captions;
}

std::vector<int> CheckedOf(const controls::Menu& menu) {
  std::vector<int> checked;
  for (int i = 0; i < menu.Count(); ++i)
    if (menu[i].Checked()) checked.push_back(i);
  return checked;
}

/// The main window on the day of two documents; nothing is selected in the list.
class MenusTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  MenusTest() {
    for (const char* name : {"Z:\\home\\ana\\a.odt", "Z:\\home\\ana\\b.odt"}) Open(name, "2026-11-21 09:15:00");
    Load();
    window.form.Activate.Raise();
    window.sbrMain.Changed.Connect([this] { status.push_back(window.sbrMain.Text()); });
  }

  void Open(const std::string& target, const std::string& time) { desktop.OpenDocument(target, time); }
  void SelectDocument() { window.lvwDaily.Click(window.lvwDaily.Item(Key("2026\\November\\21\\a.odt.lnk"))); }

  /// Shows the Favorites view with a document selected that lies in another folder than the day's.
  void ShowFavorite() {
    window.mnuViewPopup.Choose(kViewFavorites);
    window.lvwFavorites.Click(window.lvwFavorites.Add("Kx", "x.odt", 1));
    window.lvwFavorites.SelectedItem()->subItems = {"Text", "z:\\elsewhere"};
  }

  std::vector<std::string> status;  ///< what the status bar showed since the window loaded
};

TEST_F(MenusTest, TheDayvaneMenuOffersCaptureHidingAndTheExit) {
  EXPECT_EQ(window.mnuFilePopup.Caption(), "&Dayvane");
  EXPECT_THAT(CaptionsOf(window.mnuFilePopup), ElementsAre("S&uspend", "&Resume", "&Hide", "-", "E&xit"));
}

TEST_F(MenusTest, TheViewMenuOffersViewsStylesArrangementAndOptions) {
  EXPECT_EQ(window.mnuViewPopup.Caption(), "&View");
  EXPECT_THAT(CaptionsOf(window.mnuViewPopup),
              ElementsAre("D&aily", "&Favorites", "D&esktop", "-", "Lar&ge Icons", "S&mall Icons", "&List", "&Details",
                          "-", "Arrange &Icons", "-", "&Options"));
  EXPECT_EQ(window.mnuViewPopup[kViewArrangeIcons].Submenu(), &window.mnuViewArrangePopup);
  EXPECT_THAT(CaptionsOf(window.mnuViewArrangePopup), ElementsAre("by &Name", "by &Type", "-", "&Auto Arrange"));
}

TEST_F(MenusTest, TheToolsMenuOffersFindingFoldersAndARebuild) {
  EXPECT_EQ(window.mnuToolsPopup.Caption(), "&Tools");
  EXPECT_THAT(CaptionsOf(window.mnuToolsPopup),
              ElementsAre("&Find...", "-", "&Explore", "&Open", "-", "&Rebuild Favorites"));
}

TEST_F(MenusTest, TheHelpMenuOffersTopicsTheWebSiteAndTheAboutBox) {
  EXPECT_EQ(window.mnuHelpPopup.Caption(), "&Help");
  EXPECT_THAT(CaptionsOf(window.mnuHelpPopup),
              ElementsAre("&Dayvane Help Topics", "-", "&Korvath Online", "-", "&About Dayvane"));
}

TEST_F(MenusTest, TheTraysMenuOffersShowingCaptureTheAboutBoxAndTheExit) {
  EXPECT_EQ(window.mnuSysTrayPopup.Caption(), "Tray");
  EXPECT_THAT(CaptionsOf(window.mnuSysTrayPopup),
              ElementsAre("&Show", "&Hide", "S&uspend", "&Resume", "-", "&About Dayvane", "-", "E&xit"));
}

TEST_F(MenusTest, TheContextMenusOfTreeAndListOfferWhatTheyCanDo) {
  EXPECT_EQ(window.mnuTreeViewPopup.Caption(), "Tree View");
  EXPECT_THAT(CaptionsOf(window.mnuTreeViewPopup), ElementsAre("&Purge"));
  EXPECT_EQ(window.mnuListViewPopup.Caption(), "ListView");
  EXPECT_THAT(CaptionsOf(window.mnuListViewPopup), ElementsAre("&Open", "-", "&View", "-", "Arrange &Icons"));
  EXPECT_EQ(window.mnuListViewPopup[kListViewView].Submenu(), &window.mnuArrangeViewPopup);
  EXPECT_EQ(window.mnuListViewPopup[kListViewArrangeIcons].Submenu(), &window.mnuArrangeIconsPopup);
  EXPECT_THAT(CaptionsOf(window.mnuArrangeViewPopup), ElementsAre("Lar&ge Icons", "S&mall Icons", "&List", "&Details"));
  EXPECT_THAT(CaptionsOf(window.mnuArrangeIconsPopup), ElementsAre("by &Name", "by &Type", "-", "&Auto Arrange"));
}

TEST_F(MenusTest, SuspendStopsTheTimerAndShowsItInTheTray) {
  window.mnuFilePopup.Choose(kFileSuspend);
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tryMain.Picture(), 104);
}

TEST_F(MenusTest, ACapturingProgramOffersOnlyToSuspendFromItsStartOn) {
  Load();
  EXPECT_TRUE(window.mnuFilePopup[kFileSuspend].Visible());
  EXPECT_FALSE(window.mnuFilePopup[kFileResume].Visible());
  EXPECT_TRUE(window.mnuSysTrayPopup[kTraySuspend].Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayResume].Visible());
}

TEST_F(MenusTest, SuspendAndResumeTakeEachOthersPlaceInBothMenus) {
  const auto visible = [this] {
    return std::vector<bool>{window.mnuFilePopup[kFileSuspend].Visible(), window.mnuFilePopup[kFileResume].Visible(),
                             window.mnuSysTrayPopup[kTraySuspend].Visible(),
                             window.mnuSysTrayPopup[kTrayResume].Visible()};
  };
  window.mnuFilePopup.Choose(kFileSuspend);
  EXPECT_THAT(visible(), ElementsAre(false, true, false, true));
  window.mnuFilePopup.Choose(kFileResume);
  EXPECT_THAT(visible(), ElementsAre(true, false, true, false));
  window.mnuSysTrayPopup.Choose(kTraySuspend);
  EXPECT_THAT(visible(), ElementsAre(false, true, false, true));
  window.mnuSysTrayPopup.Choose(kTrayResume);
  EXPECT_THAT(visible(), ElementsAre(true, false, true, false));
}

TEST_F(MenusTest, WhatIsOpenedWhileSuspendedIsFiledWhenCaptureIsResumed) {
  window.mnuFilePopup.Choose(kFileSuspend);
  Open("Z:\\home\\ana\\c.odt", "2026-11-21 10:00:00");
  Tick();
  EXPECT_EQ(window.lvwDaily.Count(), 2U);
  window.mnuFilePopup.Choose(kFileResume);
  EXPECT_EQ(window.lvwDaily.Count(), 3U);
  EXPECT_EQ(window.sbrMain.Text(), "3 objects");
  EXPECT_TRUE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tryMain.Picture(), 102);
}

TEST_F(MenusTest, ResumeFromTheTrayPollsAtOnceToo) {
  window.mnuSysTrayPopup.Choose(kTraySuspend);
  EXPECT_FALSE(window.tmrMain.Enabled());
  Open("Z:\\home\\ana\\c.odt", "2026-11-21 10:00:00");
  window.mnuSysTrayPopup.Choose(kTrayResume);
  EXPECT_EQ(window.sbrMain.Text(), "3 objects");
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(MenusTest, AResumeWhosePollFailsCanBeChosenAgain) {
  window.mnuFilePopup.Choose(kFileSuspend);
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  window.mnuFilePopup.Choose(kFileResume);
  EXPECT_TRUE(window.mnuFilePopup[kFileResume].Visible());
  EXPECT_FALSE(window.mnuFilePopup[kFileSuspend].Visible());
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tryMain.Picture(), 103);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
}

TEST_F(MenusTest, HideInTheDayvaneMenuHidesTheWindowAndLeavesTheTraysMenuAsItIs) {
  window.mnuFilePopup.Choose(kFileHide);
  EXPECT_FALSE(window.form.Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTrayShow].Visible());
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayHide].Visible());
}

TEST_F(MenusTest, ExitPostsTheWindowACloseThatItFollows) {
  for (const bool fromTray : {false, true}) {
    testing::MainWindow other;
    other.Load();
    if (fromTray)
      other.window.mnuSysTrayPopup.Choose(kTrayExit);
    else
      other.window.mnuFilePopup.Choose(kFileExit);
    EXPECT_THAT(other.desktop.windowing.posted, ElementsAre(16));
    EXPECT_TRUE(other.window.form.IsUnloaded());
  }
}

TEST_F(MenusTest, AFailureOfTheDayvaneMenuIsReportedWithItsPhrase) {
  window.form.Changed.Connect([] { throw Error(kDeviceIoError, "The window is gone"); });
  window.mnuFilePopup.Choose(kFileHide);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred hiding, suspending, or resuming."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre("FMain.mnuFilePopup_Click\t57\tThe window is gone\t"
                                                            "An error occurred hiding, suspending, or resuming."));
}

TEST_F(MenusTest, AFailureOfTheTraysMenuIsReportedWithItsPhrase) {
  window.form.Changed.Connect([] { throw Error(kDeviceIoError, "The window is gone"); });
  window.mnuSysTrayPopup.Choose(kTrayHide);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred hiding, showing, suspending, or resuming."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.mnuSysTrayPopup_Click\t57\tThe window is gone\t"
                          "An error occurred hiding, showing, suspending, or resuming."));
}

TEST_F(MenusTest, TheViewMenuSwitchesTheViewAndCountsItsObjects) {
  window.mnuViewPopup.Choose(kViewFavorites);
  EXPECT_TRUE(window.picFavorites.Visible());
  EXPECT_EQ(window.sbrMain.Text(), "0 objects");
  window.mnuViewPopup.Choose(kViewDaily);
  EXPECT_TRUE(window.picDaily.Visible());
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
}

TEST_F(MenusTest, DesktopInTheViewMenuDoesNothing) {
  int changes = 0;
  for (controls::Control* control :
       {static_cast<controls::Control*>(&window.form), static_cast<controls::Control*>(&window.picDaily),
        static_cast<controls::Control*>(&window.picFavorites), static_cast<controls::Control*>(&window.lvwDaily),
        static_cast<controls::Control*>(&window.sbrMain)})
    control->Changed.Connect([&] { ++changes; });
  window.mnuViewPopup.Choose(kViewDesktop);
  EXPECT_EQ(changes, 0);
  EXPECT_THAT(CheckedOf(window.mnuViewPopup), ElementsAre(0, 7));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(MenusTest, TheStylesOfTheViewMenuAreThoseOfBothLists) {
  for (int style = 0; style < 4; ++style) {
    window.mnuViewPopup.Choose(kViewLargeIcons + style);
    EXPECT_EQ(static_cast<int>(window.lvwDaily.View()), style);
    EXPECT_EQ(static_cast<int>(window.lvwFavorites.View()), style);
    EXPECT_THAT(CheckedOf(window.mnuViewPopup), ElementsAre(0, 4 + style));
    EXPECT_THAT(CheckedOf(window.mnuArrangeViewPopup), ElementsAre(style));
  }
}

TEST_F(MenusTest, TheStylesOfTheListsContextMenuAreTheSame) {
  for (int style = 0; style < 4; ++style) {
    window.mnuArrangeViewPopup.Choose(style);
    EXPECT_EQ(static_cast<int>(window.lvwDaily.View()), style);
    EXPECT_EQ(static_cast<int>(window.lvwFavorites.View()), style);
    EXPECT_THAT(CheckedOf(window.mnuViewPopup), ElementsAre(0, 4 + style));
  }
}

TEST_F(MenusTest, FindSaysThatThereIsNoFindDialogYet) {
  window.mnuToolsPopup.Choose(kToolsFind);
  ASSERT_THAT(desktop.windowing.Texts(), ElementsAre("Display find dialog box here."));
  EXPECT_EQ(desktop.windowing.messages[0].title, "Dayvane");
  EXPECT_EQ(desktop.windowing.messages[0].icon, platform::MessageIcon::Information);
  EXPECT_EQ(desktop.windowing.messages[0].buttons, platform::MessageButtons::Ok);
}

TEST_F(MenusTest, TheToolsMenuShowsTheFolderOfTheDaysDocumentEvenInTheFavoritesView) {
  SelectDocument();
  window.mnuToolsPopup.Choose(kToolsExplore);
  window.mnuToolsPopup.Choose(kToolsOpenFolder);
  window.SetActiveView(FMain::kFavoritesView);
  window.SetExploreOpen(true);
  window.mnuToolsPopup.Choose(kToolsOpenFolder);
  EXPECT_THAT(desktop.shell.commandLines,
              ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,z:\\home\\ana",
                          "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana", "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana"));
}

TEST_F(MenusTest, ExploreAndOpenOfTheToolsMenuActOnTheDaysDocumentWhileAFavoriteIsSelected) {
  SelectDocument();
  ShowFavorite();
  window.mnuToolsPopup.Choose(kToolsExplore);
  window.mnuToolsPopup.Choose(kToolsOpenFolder);
  EXPECT_THAT(desktop.shell.commandLines, ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,z:\\home\\ana",
                                                      "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana"));
}

TEST_F(MenusTest, OpenInTheListsMenuOpensTheDaysDocumentWhileAFavoriteIsSelected) {
  SelectDocument();
  ShowFavorite();
  window.mnuListViewPopup.Choose(kListViewOpen);
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\a.odt|z:\\home\\ana|1"));
}

TEST_F(MenusTest, WithNoDocumentOfTheDaySelectedAFavoritesFolderOnlyBeeps) {
  ShowFavorite();
  window.mnuToolsPopup.Choose(kToolsExplore);
  window.mnuToolsPopup.Choose(kToolsOpenFolder);
  window.sftToolbar[kExploreButton].Press();
  window.sftToolbar[kOpenFolderButton].Press();
  EXPECT_EQ(desktop.windowing.beeps, 4);
  EXPECT_THAT(desktop.shell.commandLines, IsEmpty());
}

TEST_F(MenusTest, WhileAFolderIsBeingShownTheUserIsAskedToWait) {
  SelectDocument();
  window.mnuToolsPopup.Choose(kToolsExplore);
  EXPECT_THAT(status, ElementsAre("Please wait...", "2 objects"));
}

TEST_F(MenusTest, AFolderThatCannotBeShownIsReportedAlikeForExploreAndOpen) {
  SelectDocument();
  desktop.shell.cannotLaunch = true;
  window.mnuToolsPopup.Choose(kToolsExplore);
  window.mnuToolsPopup.Choose(kToolsOpenFolder);
  const std::string line =
      "FMain.mnuToolsPopup_Click\t57\tCannot launch\tAn error occurred Exploring the document's folder.";
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), ElementsAre(line, line));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred Exploring the document's folder.",
                                                     "An error occurred Exploring the document's folder."));
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
}

TEST_F(MenusTest, RebuildFavoritesCountsTheRepositoryAnewAndRefillsTheList) {
  platform::ShellLink link;
  link.target = "Z:\\home\\ana\\a.odt";
  desktop.folder.Write("program/Daily/2026/November/20/a.odt.lnk", "");
  testing::WriteShortcut(Daily("2026/November/20/a.odt.lnk"), link, "2026-11-20 10:00:00");
  window.SetActiveView(FMain::kFavoritesView);
  status.clear();
  window.mnuToolsPopup.Choose(kToolsRebuildFavorites);
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 0), ElementsAre("a.odt"));
  EXPECT_THAT(status, ElementsAre("Please wait...", "2 objects", "1 objects"));
}

TEST_F(MenusTest, ARebuildThatFailsIsReportedAsOne) {
  window.lvwFavorites.ContentsWillChange.Connect([] { throw Error(kDeviceIoError, "No list"); });
  window.mnuToolsPopup.Choose(kToolsRebuildFavorites);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.mnuToolsPopup_Click\t57\tNo list\tAn error occurred rebuilding the Favorites list."));
}

TEST_F(MenusTest, TheHelpMenuOpensContentsWebSiteAndAboutBox) {
  window.mnuHelpPopup.Choose(kHelpTopics);
  EXPECT_THAT(desktop.help.shown, ElementsAre(desktop.Folder() + "\\Dayvane.hlp|11|0"));
  window.mnuHelpPopup.Choose(kHelpKorvathOnline);
  EXPECT_THAT(desktop.shell.opened, ElementsAre(application.info.homePage + "|" + desktop.Folder() + "|1"));
  EXPECT_THAT(desktop.windowing.abouts, IsEmpty());
  window.mnuHelpPopup.Choose(kHelpAbout);
  EXPECT_EQ(desktop.windowing.abouts.size(), 1U);
}

TEST_F(MenusTest, TheTraysMenuShowsHidesAndOpensTheAboutBox) {
  window.mnuSysTrayPopup.Choose(kTrayHide);
  EXPECT_FALSE(window.form.Visible());
  window.mnuSysTrayPopup.Choose(kTrayShow);
  EXPECT_TRUE(window.form.Visible());
  window.mnuSysTrayPopup.Choose(kTrayAbout);
  EXPECT_EQ(desktop.windowing.abouts.size(), 1U);
}

TEST_F(MenusTest, PurgeInTheTreesMenuRemovesTheSelectedDay) {
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November"));
  EXPECT_THAT(status, ElementsAre("Please wait...", "2 objects", "0 objects"));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(MenusTest, APurgeWithoutADayIsReported) {
  window.tvwMain.SetSelectedItem(nullptr);
  window.mnuTreeViewPopup.Choose(kTreeViewPurge);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred purging a day."));
  EXPECT_EQ(window.sbrMain.Text(), "2 objects");
}

TEST_F(MenusTest, OpenInTheListsMenuOpensTheSelectedDocument) {
  SelectDocument();
  window.mnuListViewPopup.Choose(kListViewOpen);
  EXPECT_THAT(desktop.shell.opened, ElementsAre("Z:\\home\\ana\\a.odt|z:\\home\\ana|1"));
  EXPECT_THAT(status, ElementsAre("Please wait...", "2 objects"));
}

TEST_F(MenusTest, BeforeTheWindowHasLoadedTheCommandsLogWhatIsMissingAndReportThat) {
  testing::MainWindow fresh;
  fresh.window.mnuToolsPopup.Click.Raise(2);
  fresh.window.mnuToolsPopup.Click.Raise(5);
  fresh.window.mnuTreeViewPopup.Click.Raise(0);
  fresh.window.mnuListViewPopup.Click.Raise(0);
  EXPECT_THAT(fresh.desktop.LogLines("EventLog.txt"),
              ElementsAre("2\tFMain.mnuToolsPopup_Click: Daily object is nothing",
                          "2\tFMain.mnuToolsPopup_Click: Favorites object is nothing",
                          "2\tFMain.mnuToolsPopup_Click: Daily object is nothing",
                          "2\tFMain.mnuToolsPopup_Click: Favorites object is nothing",
                          "2\tFMain.mnuTreeViewPopup_Click: Daily object is nothing",
                          "2\tFMain.mnuListViewPopup_Click: Daily object is nothing"));
  EXPECT_THAT(fresh.desktop.windowing.Texts(),
              ElementsAre("An error occurred Exploring the document's folder.",
                          "An error occurred rebuilding the Favorites list.", "An error occurred purging a day.",
                          "An error occurred opening a document."));
}

}  // namespace
}  // namespace dayvane
