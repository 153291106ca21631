// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class MainHelpTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  MainHelpTest() { Load(); }
};

TEST_F(MainHelpTest, TheControlsKnowTheirTopics) {
  EXPECT_EQ(window.calMain.WhatsThisHelpID(), 26);
  EXPECT_EQ(window.tvwMain.WhatsThisHelpID(), 25);
  EXPECT_EQ(window.lvwDaily.WhatsThisHelpID(), 24);
  EXPECT_EQ(window.lvwFavorites.WhatsThisHelpID(), 23);
}

TEST_F(MainHelpTest, TheToolbarsButtonsKnowTheirTopicsAndThreeHaveNone) {
  std::vector<int> topics;
  for (const auto& button : window.sftToolbar) topics.push_back(button.WhatsThisHelpID());
  EXPECT_THAT(topics, ElementsAre(21, 18, 0, 19, 20, 0, 16, 17, 14, 15, 4, 0));
}

TEST_F(MainHelpTest, AContextOpensItsTopicAndNoneTheContents) {
  window.DisplayHelp(26);
  window.DisplayHelp(0);
  EXPECT_THAT(desktop.help.shown,
              ElementsAre(desktop.Folder() + "\\Dayvane.hlp|1|26", desktop.Folder() + "\\Dayvane.hlp|11|0"));
}

TEST_F(MainHelpTest, HelpThatCannotBeDisplayedIsReported) {
  desktop.help.noViewer = true;
  window.mnuHelpPopup.Choose(kHelpTopics);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred displaying help."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.DisplayHelp\t57\tNo help viewer\tAn error occurred displaying help."));
}

TEST_F(MainHelpTest, TheWebSiteIsOpenedFromTheProgramsFolderInANormalWindow) {
  window.DisplayKorvathOnline();
  EXPECT_THAT(application.info.homePage, HasSubstr("://"));
  EXPECT_THAT(desktop.shell.opened, ElementsAre(application.info.homePage + "|" + desktop.Folder() + "|1"));
}

TEST_F(MainHelpTest, AWebSiteThatCannotBeLoadedIsReported) {
  desktop.shell.cannotLaunch = true;
  window.mnuHelpPopup.Choose(kHelpKorvathOnline);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred loading a Web page."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.DisplayKorvathOnline\t57\tCannot launch\tAn error occurred loading a Web page."));
}

TEST_F(MainHelpTest, TheAboutBoxBearsTheProgramsNameItsVersionAndTheLegalNotice) {
  window.DisplayAboutBox();
  ASSERT_EQ(desktop.windowing.abouts.size(), 1U);
  const platform::About& about = desktop.windowing.abouts[0];
  EXPECT_EQ(about.title, "Dayvane");
  EXPECT_EQ(about.version, application.info.VersionText());
  EXPECT_EQ(about.warning, ResourceString(kLegalWarning));
}

TEST_F(MainHelpTest, AnAboutBoxThatCannotBeShownIsReported) {
  desktop.windowing.noAbout = true;
  window.mnuHelpPopup.Choose(kHelpAbout);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred displaying the About Box."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.DisplayAboutBox\t57\tNo about box\tAn error occurred displaying the About Box."));
}

}  // namespace
}  // namespace dayvane
