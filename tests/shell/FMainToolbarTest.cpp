// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The main window on the day of one document.
class ToolbarTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  ToolbarTest() {
    desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00");
    Load();
    window.form.Activate.Raise();
  }

  void Press(std::size_t button) { window.sftToolbar.at(button).Press(); }
  void SelectDocument() { window.lvwDaily.Click(window.lvwDaily.Item(Key("2026\\November\\21\\a.odt.lnk"))); }

  std::vector<std::size_t> Disabled() const {
    std::vector<std::size_t> disabled;
    for (std::size_t i = 0; i < window.sftToolbar.size(); ++i)
      if (!window.sftToolbar[i].Enabled()) disabled.push_back(i);
    return disabled;
  }
};

TEST_F(ToolbarTest, EveryButtonButOneTellsWhatItDoes) {
  std::vector<std::string> tips;
  for (const auto& button : window.sftToolbar) tips.push_back(button.ToolTipText());
  EXPECT_THAT(tips, ElementsAre("Daily View", "Favorites View", "", "Explore Folder", "Open Folder", "Find Document",
                                "Large Icon View", "Small Icon View", "List View", "Detail View", "Main Window Help",
                                "What's This Help"));
}

TEST_F(ToolbarTest, AtFirstTheDailyViewTheDetailsAndTheFoldersOfNoDocumentAreGrey) {
  EXPECT_THAT(Disabled(), ElementsAre(0, 3, 4, 9));
}

TEST_F(ToolbarTest, TheViewButtonsSwitchTheViewAndCountItsObjects) {
  Press(kFavoritesButton);
  EXPECT_TRUE(window.picFavorites.Visible());
  EXPECT_FALSE(window.picDaily.Visible());
  EXPECT_EQ(window.sbrMain.Text(), "0 objects");
  Press(kDailyButton);
  EXPECT_TRUE(window.picDaily.Visible());
  EXPECT_FALSE(window.picFavorites.Visible());
  EXPECT_EQ(window.sbrMain.Text(), "1 objects");
}

TEST_F(ToolbarTest, TheButtonOfTheViewThatIsShownIsGrey) {
  Press(kFavoritesButton);
  EXPECT_THAT(Disabled(), ElementsAre(1, 3, 4, 9));
  Press(kDailyButton);
  EXPECT_THAT(Disabled(), ElementsAre(0, 3, 4, 9));
}

TEST_F(ToolbarTest, TheButtonWithoutATipDoesNothing) {
  int changes = 0;
  window.form.Changed.Connect([&] { ++changes; });
  window.sbrMain.Changed.Connect([&] { ++changes; });
  window.lvwDaily.Changed.Connect([&] { ++changes; });
  Press(kBlankButton);
  EXPECT_EQ(changes, 0);
  EXPECT_THAT(Disabled(), ElementsAre(0, 3, 4, 9));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(ToolbarTest, ExploreAndOpenFolderShowTheFolderOfTheSelectedDocument) {
  SelectDocument();
  EXPECT_THAT(Disabled(), ElementsAre(0, 9));
  Press(kExploreButton);
  Press(kOpenFolderButton);
  EXPECT_THAT(desktop.shell.commandLines, ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,z:\\home\\ana",
                                                      "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana"));
}

TEST_F(ToolbarTest, ExploreAndOpenFolderShowTheFolderOfTheDaysDocumentWhileAFavoriteIsSelected) {
  SelectDocument();
  Press(kFavoritesButton);
  controls::ListItem& favorite = window.lvwFavorites.Add("Kx", "x.odt", 1);
  favorite.subItems = {"Text", "z:\\elsewhere"};
  window.lvwFavorites.Click(favorite);
  Press(kExploreButton);
  Press(kOpenFolderButton);
  EXPECT_THAT(desktop.shell.commandLines, ElementsAre("C:\\WINDOWS\\EXPLORER.EXE /n,/e,/root,z:\\home\\ana",
                                                      "C:\\WINDOWS\\EXPLORER.EXE /n,z:\\home\\ana"));
}

TEST_F(ToolbarTest, AFolderThatCannotBeShownIsReportedWithThePhraseOfItsButton) {
  SelectDocument();
  desktop.shell.cannotLaunch = true;
  Press(kExploreButton);
  Press(kOpenFolderButton);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred Exploring the document's folder.",
                                                     "An error occurred opening the document's folder."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.Explore\t57\tCannot launch\tAn error occurred Exploring the document's folder.",
                          "FMain.OpenFolder\t57\tCannot launch\tAn error occurred opening the document's folder."));
}

TEST_F(ToolbarTest, FindSaysThatThereIsNoFindDialogYet) {
  Press(kFindButton);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("Display find dialog box here."));
}

TEST_F(ToolbarTest, TheStyleButtonsSetBothListsAndTheOneInUseIsGrey) {
  for (std::size_t style = 0; style < 4; ++style) {
    Press(6 + style);
    EXPECT_EQ(static_cast<std::size_t>(window.lvwDaily.View()), style);
    EXPECT_EQ(static_cast<std::size_t>(window.lvwFavorites.View()), style);
    EXPECT_THAT(Disabled(), ElementsAre(0, 3, 4, 6 + style));
  }
}

TEST_F(ToolbarTest, MainWindowHelpOpensItsTopic) {
  Press(kHelpButton);
  EXPECT_THAT(desktop.help.shown, ElementsAre(desktop.Folder() + "\\Dayvane.hlp|1|33"));
}

TEST_F(ToolbarTest, WhatsThisHelpWaitsForAClickOnAControl) {
  int waiting = 0;
  window.form.WhatsThisWanted.Connect([&] { ++waiting; });
  Press(kWhatsThisButton);
  EXPECT_EQ(waiting, 1);
  EXPECT_THAT(desktop.help.shown, IsEmpty());
}

TEST_F(ToolbarTest, TheRuleLinesSpanTheToolbarStripAlone) {
  window.picMain[3].Move(0, 0, 9000, 400);
  EXPECT_EQ(window.linToolbar[0].X2(), 9000);
  EXPECT_EQ(window.linToolbar[1].X2(), 9000);
  for (const std::size_t other : {0U, 1U, 2U}) window.picMain[other].Move(0, 0, 5000, 400);
  EXPECT_EQ(window.linToolbar[0].X2(), 9000);
  EXPECT_EQ(window.linToolbar[1].X2(), 9000);
}

TEST_F(ToolbarTest, AFailureOfAButtonIsIgnored) {
  window.form.WhatsThisWanted.Connect([] { throw Error(kDeviceIoError, "No pointer"); });
  Press(kWhatsThisButton);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"), IsEmpty());
}

}  // namespace
}  // namespace dayvane
