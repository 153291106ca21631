// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

const std::string kWelcomeText =
    "Welcome to Dayvane.\r\n"
    "\r\n"
    "We suggest that you review the default settings\r\n"
    "by selecting the View|Options menu choice.\r\n"
    "\r\n"
    "Would you like to view the help file?";

class StartTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  std::string& Option(const std::string& name) { return desktop.registry.Settings("Options")[name]; }
  void MakeFirstRun() { desktop.registry.EraseSettings("Options"); }
};

TEST_F(StartTest, AFirstRunIsWelcomedWithAQuestion) {
  MakeFirstRun();
  Load();
  ASSERT_THAT(desktop.windowing.Texts(), ElementsAre(kWelcomeText));
  EXPECT_EQ(desktop.windowing.messages[0].title, "Dayvane");
  EXPECT_EQ(desktop.windowing.messages[0].buttons, platform::MessageButtons::YesNo);
  EXPECT_EQ(desktop.windowing.messages[0].icon, platform::MessageIcon::Information);
}

TEST_F(StartTest, WhoeverWantsTheHelpFileGetsItsFirstTopic) {
  MakeFirstRun();
  desktop.windowing.answer = platform::MessageAnswer::Yes;
  Load();
  EXPECT_THAT(desktop.help.shown, ElementsAre(desktop.Folder() + "\\Dayvane.hlp|1|27"));
}

TEST_F(StartTest, WhoeverDeclinesTheHelpFileGetsNone) {
  MakeFirstRun();
  desktop.windowing.answer = platform::MessageAnswer::No;
  Load();
  EXPECT_THAT(desktop.help.shown, IsEmpty());
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(StartTest, TheWelcomeComesBeforeTheWindow) {
  MakeFirstRun();
  std::size_t messagesBefore = 0;
  window.form.Changed.Connect([&] {
    if (window.form.Visible()) messagesBefore = desktop.windowing.messages.size();
  });
  Load();
  EXPECT_EQ(messagesBefore, 1U);
}

TEST_F(StartTest, AFirstRunGoesOnWithTheDefaults) {
  MakeFirstRun();
  Load();
  EXPECT_EQ(Option("Favorites Threshold"), "3");
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
}

TEST_F(StartTest, ALaterRunIsNotWelcomed) {
  Load();
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(desktop.help.shown, IsEmpty());
}

TEST_F(StartTest, TheWelcomeComesBeforeThePurgeQuestionAndThatBeforeTheFirstCapture) {
  MakeFirstRun();
  File("2026/May/05", "Z:\\home\\ana\\a.odt", "2026-05-05 10:00:00");
  std::vector<std::string> asked;
  desktop.shell.refresh = [&] { asked = desktop.windowing.Texts(); };
  Load();
  EXPECT_THAT(asked, ElementsAre(kWelcomeText, StartsWith("There are shortcuts to programs and documents")));
}

TEST_F(StartTest, TheTrayIsBusyUntilTheWindowIsFilledAndTheTimerRunsLast) {
  std::vector<std::string> steps;
  window.tryMain.Changed.Connect([&] { steps.push_back(std::to_string(window.tryMain.Picture())); });
  desktop.shell.refresh = [&] { steps.emplace_back("capture"); };
  window.sbrMain.Changed.Connect([&] { steps.push_back(window.sbrMain.Text()); });
  window.tmrMain.Changed.Connect([&] {
    if (window.tmrMain.Enabled()) steps.emplace_back("timer");
  });
  window.form.Changed.Connect([&] {
    if (window.form.Visible()) steps.emplace_back("window");
  });
  Load();
  EXPECT_THAT(steps, ElementsAre("103", "103", "capture", "0 objects", "102", "timer", "window")) << "tip and picture";
}

TEST_F(StartTest, TheSplashGoesWhenTheTimerRunsAndBeforeTheWindowShows) {
  bool ran = false;
  bool shown = true;
  int pendingBefore = -1;
  int pending = 0;
  desktop.windowing.pending = [&] { ++pending; };
  window.Form_Load([&] {
    ran = window.tmrMain.Enabled();
    shown = window.form.Visible();
    pendingBefore = pending;
  });
  EXPECT_TRUE(ran);
  EXPECT_FALSE(shown);
  EXPECT_EQ(pending, pendingBefore + 1) << "waiting events run once more, so that the splash is gone from the screen";
  EXPECT_TRUE(window.form.Visible());
}

TEST_F(StartTest, TheTimersIntervalIsTheStoredSeconds) {
  Option("Timer Interval") = "600";
  Load();
  EXPECT_EQ(window.tmrMain.Interval(), 600000);
}

TEST_F(StartTest, AnIntervalBeyondTheTimersReachIsTheLongestThereIs) {
  Option("Timer Interval") = "2147483647";
  Load();
  EXPECT_EQ(window.tmrMain.Interval(), 2147483647);
}

TEST_F(StartTest, AnIntervalBelowZeroNeverTicks) {
  Option("Timer Interval") = "-2147483648";
  Load();
  EXPECT_EQ(window.tmrMain.Interval(), 0);
}

TEST_F(StartTest, APurgeAgeOfAnySizeIsTakenAsItStands) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
  Option("Purge Age") = "-2147483648";
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026"))) << "a limit that lies ahead makes every shortcut too old";
  Option("Purge Age") = "2147483647";
  FMain next(application, repository);
  next.Form_Load();
  EXPECT_TRUE(fs::exists(Daily("2026/November/20/a.odt.lnk")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(StartTest, WhatWasOpenedBeforeTheStartIsListedWhenTheWindowShows) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
  std::vector<std::string> tree;
  window.form.Changed.Connect([&] {
    if (window.form.Visible()) tree = testing::TextsOf(window.tvwMain);
  });
  Load();
  EXPECT_THAT(tree, ElementsAre("Daily", " 2026", "  November", "   20"));
}

TEST_F(StartTest, OldDaysArePurgedWhenTheUserAgrees) {
  File("2026/May/05", "Z:\\home\\ana\\a.odt", "2026-05-05 10:00:00");
  File("2026/November/20", "Z:\\home\\ana\\b.odt", "2026-11-20 10:00:00");
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026/May")));
  EXPECT_TRUE(fs::exists(Daily("2026/November/20")));
}

TEST_F(StartTest, OldDaysStayWhenTheUserDeclines) {
  File("2026/May/05", "Z:\\home\\ana\\a.odt", "2026-05-05 10:00:00");
  desktop.windowing.answer = platform::MessageAnswer::No;
  Load();
  EXPECT_TRUE(fs::exists(Daily("2026/May/05/a.odt.lnk")));
}

TEST_F(StartTest, EmptyFoldersAreSweptOnEveryStart) {
  fs::create_directories(Daily("2026/May/05"));
  Option("Purge Age") = "3650";
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(StartTest, AfterAPurgeTheCountsAreThoseOfTheFavoritesFile) {
  File("2026/May/05", "Z:\\home\\ana\\a.odt", "2026-05-05 10:00:00");
  File("2026/November/20", "Z:\\home\\ana\\a.odt", "2026-11-20 10:00:00");
  desktop.folder.Write("program/Favorites.dat",
                       "5,#2026-11-20 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\\ana\",\"Text\",\"\",0\r\n");
  Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    5"));
}

TEST_F(StartTest, WithoutAFavoritesFileTheFavoritesAreCountedFromTheRepository) {
  File("2026/November/19", "Z:\\home\\ana\\a.odt", "2026-11-19 10:00:00");
  File("2026/November/20", "Z:\\home\\ana\\a.odt", "2026-11-20 10:00:00");
  Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

TEST_F(StartTest, AStartThatFailsIsReportedAndLeavesTheTrayBusyAndTheTimerOff) {
  desktop.shell.hasRecentFolder = false;
  bool splashGone = false;
  window.Form_Load([&] { splashGone = true; });
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred starting the program."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.Form_Load\t76\tNo such special folder\tAn error occurred starting the program."));
  EXPECT_EQ(window.tryMain.Picture(), 103);
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_FALSE(splashGone);
}

TEST_F(StartTest, AStartThatFailsSavesNothingThatItNeverLoaded) {
  const std::string data = "5,#2026-11-20 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\\ana\",\"Text\",\"\",0\r\n";
  desktop.folder.Write("program/Favorites.dat", data);
  Load();
  window.form.RequestUnload(controls::UnloadMode::SystemSession);
  const auto settings = desktop.registry.keys;
  desktop.shell.hasRecentFolder = false;
  FMain next(application, repository);
  next.Form_Load();
  next.form.Move(1, 2, 3, 4);
  next.PollRecentFolder();
  next.form.RequestUnload(controls::UnloadMode::SystemSession);
  EXPECT_EQ(testing::ReadFile(FavoritesFile()), data);
  EXPECT_EQ(desktop.registry.keys, settings);
}

TEST_F(StartTest, ACaptureThatFailsIsReportedAndTheWindowShowsAllThatIsThere) {
  File("2026/November/19", "Z:\\home\\ana\\a.odt", "2026-11-19 10:00:00");
  File("2026/November/20", "Z:\\home\\ana\\a.odt", "2026-11-20 10:00:00");
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  bool splashGone = false;
  window.Form_Load([&] { splashGone = true; });
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt"),
              ElementsAre("FMain.CaptureAtStart\t57\tNo list\tAn error occurred checking for new documents."));
  EXPECT_TRUE(splashGone);
  EXPECT_TRUE(window.form.Visible());
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   19", "   20"));
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

TEST_F(StartTest, AfterACaptureThatFailedTheTimerIsOffAndTheTrayBusyUntilItIsResumed) {
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  Load();
  EXPECT_EQ(window.tryMain.Picture(), 103);
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
  EXPECT_TRUE(window.mnuFilePopup[kFileResume].Visible()) << "Resume";
  desktop.shell.refresh = [] {};
  window.mnuFilePopup.Choose(kFileResume);
  EXPECT_EQ(window.tryMain.Picture(), 102);
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(StartTest, WhatACaptureFiledBeforeItFailedIsCountedAndSaved) {
  desktop.folder.Write("program/Favorites.dat",
                       "5,#2026-11-18 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\\ana\",\"Text\",\"\",0\r\n");
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
  desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-11-21 09:15:00");
  desktop.folder.Write("program/Daily/2026/November/21", "a file where the day's folder belongs");
  Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    6"));
  EXPECT_THAT(testing::ReadFile(FavoritesFile()), StartsWith("6,#2026-11-20 09:15:00#"));
}

TEST_F(StartTest, ACountThatIsNoNumberDoesNotKeepTheProgramFromStarting) {
  desktop.folder.Write("program/Favorites.dat",
                       "\"many\",#2026-11-18 10:00:00#,\"Z:\\x.lnk\",\"a.odt\",\"z:\\home\\ana\",\"\",\"\",0\r\n");
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
  Load();
  EXPECT_TRUE(window.form.Visible());
  EXPECT_FALSE(fs::exists(desktop.NativeFolder() + "/Favorites.pending"));
}

TEST_F(StartTest, AFavoritesFileThatCannotBeReadIsCountedAnewFromTheRepository) {
  File("2026/November/19", "Z:\\home\\ana\\a.odt", "2026-11-19 10:00:00");
  File("2026/November/20", "Z:\\home\\ana\\a.odt", "2026-11-20 10:00:00");
  desktop.folder.Write("program/Favorites.dat", "");
  fs::resize_file(FavoritesFile(), (std::uintmax_t{512} << 20) + 1);
  Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred starting the program."));
  EXPECT_EQ(fs::file_size(FavoritesFile()), (std::uintmax_t{512} << 20) + 1) << "it stays until something is saved";
}

TEST_F(StartTest, TheTreeHasAPictureForEachOfItsLevels) {
  Load();
  EXPECT_EQ(window.tvwMain.Images(), &window.imlMain);
  EXPECT_EQ(window.imlMain.Count(), 4);
}

TEST_F(StartTest, AFolderThatCannotBePurgedIsReportedAndCaptureRunsAllTheSame) {
  desktop.folder.Write("program/Daily/2026/November/20/.directory", "");
  desktop.OpenDocument("Z:\\home\\ana\\new.odt", "2026-11-21 09:00:00");
  Load();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred purging a day."));
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/new.odt.lnk")));
  EXPECT_TRUE(window.tmrMain.Enabled());
}

}  // namespace
}  // namespace dayvane
