// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/capture/CaptureFixture.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::CaptureTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::SetWritten;

TEST_F(CaptureTest, BrokenShortcutsDoNotKeepOthersFromBeingFiled) {
  for (const auto& [name, bytes] : {std::pair<std::string, std::string>{"empty.lnk", ""},
                                    {"cut.lnk", std::string("L\0\0\0\x01", 5)},
                                    {"random.lnk", std::string(3000, '\x9d')}})
    SetWritten(desktop.folder.Write("recent/" + name, bytes), "2026-11-21 08:00:00");
  Open("2026-11-21 09:15:00");
  Load();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Report.odt.lnk")));
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/empty.lnk")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_EQ(desktop.shell.reported.size(), 6U) << "each once where it lies and once where it is filed";
}

TEST_F(CaptureTest, AGigabyteOfNothingIsFiledLikeAnyBrokenShortcut) {
  const std::string huge = desktop.folder.Write("recent/huge.lnk", "x");
  fs::resize_file(huge, 1 << 30);
  SetWritten(huge, "2026-11-21 08:00:00");
  Load();
  EXPECT_EQ(fs::file_size(Daily("2026/November/21/huge.lnk")), 1U << 30);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, AMissingRecentFolderPathIsLoggedAndThePollGoesOn) {
  desktop.shell.recentFolder = "";
  Load();
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.GetShortcuts: Recent folder is missing"));
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(CaptureTest, ARecentFolderThatDoesNotExistHasNothingToFile) {
  fs::remove(desktop.NativeRecent());
  Load();
  Tick();
  EXPECT_TRUE(window.tmrMain.Enabled());
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, AFailedPollIsReportedAndLeavesTheTimerOffAndTheTrayBusy) {
  Load();
  Open("2026-11-21 09:15:00");
  desktop.folder.Write("program/Daily/2026", "a file where the year's folder belongs");
  Tick();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  ASSERT_EQ(desktop.LogLines("ErrorLog.txt").size(), 1U);
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt")[0], HasSubstr("FMain.PollRecentFolder\t"));
  EXPECT_FALSE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tryMain.Picture(), 103);
}

TEST_F(CaptureTest, AfterAFailedPollResumeIsOfferedInBothMenus) {
  Load();
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  Tick();
  EXPECT_FALSE(window.mnuFilePopup[kFileSuspend].Visible());
  EXPECT_TRUE(window.mnuFilePopup[kFileResume].Visible());
  EXPECT_FALSE(window.mnuSysTrayPopup[kTraySuspend].Visible());
  EXPECT_TRUE(window.mnuSysTrayPopup[kTrayResume].Visible());
}

TEST_F(CaptureTest, AResumedPollThatFailsStillOffersResume) {
  Load();
  window.SetActive(false);
  desktop.shell.refresh = [] { throw Error(kDeviceIoError, "No list"); };
  window.SetActive(true);
  EXPECT_TRUE(window.mnuFilePopup[kFileResume].Visible());
  desktop.shell.refresh = [] {};
  window.SetActive(true);
  EXPECT_FALSE(window.mnuFilePopup[kFileResume].Visible());
  EXPECT_TRUE(window.mnuFilePopup[kFileSuspend].Visible());
}

TEST_F(CaptureTest, WhatAPollFiledBeforeItFailedIsCountedAndSaved) {
  Load();
  Open("2026-11-20 09:15:00", "Z:\\home\\ana\\a.odt");
  Open("2026-11-21 09:15:00", "Z:\\home\\ana\\b.odt");
  desktop.folder.Write("program/Daily/2026/November/21", "a file where the day's folder belongs");
  Tick();
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-20 09:15:00#"));
  EXPECT_FALSE(fs::exists(desktop.NativeFolder() + "/Favorites.pending"));
}

TEST_F(CaptureTest, AfterAFailedPollTicksDoNothingUntilCaptureIsResumed) {
  Load();
  const std::string obstacle = desktop.folder.Write("program/Daily/2026", "");
  Open("2026-11-21 09:15:00");
  Tick();
  fs::remove(obstacle);
  Tick();
  EXPECT_FALSE(fs::exists(Daily("2026")));
  window.PollRecentFolder();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Report.odt.lnk")));
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(CaptureTest, ALinkInPlaceOfAYearNeverLeadsOutOfTheRepository) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const testing::TemporaryFolder outside;
  testing::MakeFolderLink(outside.Native(), Daily("2026"));
  Open("2026-11-21 09:15:00");
  Load();
  EXPECT_TRUE(fs::is_empty(outside.Native()));
  EXPECT_EQ(desktop.LogLines("ErrorLog.txt").size(), 1U);
}

TEST_F(CaptureTest, AMissingShortcutIsLoggedAndFails) {
  Load();
  EXPECT_ANY_THROW(window.ProcessShortcut(nullptr));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.ProcessShortcut: Shortcut is nothing"));
}

TEST_F(CaptureTest, BeforeTheWindowHasLoadedTheFavoritesObjectIsMissing) {
  CShortcut shortcut(application);
  EXPECT_ANY_THROW(window.ProcessShortcut(&shortcut));
  EXPECT_THAT(desktop.LogLines("EventLog.txt"), ElementsAre("2\tFMain.ProcessShortcut: Favorites object is nothing"));
}

TEST_F(CaptureTest, APollThatFailedDoesNotTellThatItCaptured) {
  Load();
  const int before = desktop.shell.captured;
  desktop.folder.Write("program/Daily/2026", "");
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_EQ(desktop.shell.captured, before);
}

}  // namespace
}  // namespace dayvane
