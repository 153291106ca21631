// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/capture/CaptureFixture.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::CaptureTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::ReadFile;
using testing::SetWritten;

TEST_F(CaptureTest, ADocumentOpenedIsFiledUnderItsDayWithinOneTick) {
  Load();
  const std::string shortcut = Open("2026-11-21 09:15:00");
  Tick();
  const std::string filed = Daily("2026/November/21/Report.odt.lnk");
  ASSERT_TRUE(fs::exists(filed));
  EXPECT_EQ(ReadFile(filed), ReadFile(shortcut));
  EXPECT_EQ(fs::last_write_time(filed), fs::last_write_time(shortcut));
  EXPECT_TRUE(fs::exists(shortcut)) << "the Recent folder is left as the shell keeps it";
}

TEST_F(CaptureTest, TheTreeAndTheFavoritesAreRefreshedAfterAPollThatFiled) {
  Load();
  Open("2026-11-20 09:15:00");
  Tick();
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   20", "   21"));
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 0), ElementsAre("Report.odt"));
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

TEST_F(CaptureTest, AnEmptyRecentFolderOnlySwitchesTheTrayAndTheStatusText) {
  Load();
  std::vector<int> pictures;
  std::vector<std::string> texts;
  int refreshed = 0;
  window.tryMain.Changed.Connect([&] { pictures.push_back(window.tryMain.Picture()); });
  window.sbrMain.Changed.Connect([&] { texts.push_back(window.sbrMain.Text()); });
  window.tvwMain.ContentsChanged.Connect([&] { ++refreshed; });
  Tick();
  EXPECT_THAT(pictures, ElementsAre(103, 102));
  EXPECT_THAT(texts, ElementsAre("Please wait...", "0 objects"));
  EXPECT_EQ(refreshed, 0);
}

TEST_F(CaptureTest, TheTimerIsOffWhileAPollRuns) {
  Load();
  bool enabled = true;
  desktop.shell.refresh = [&] { enabled = window.tmrMain.Enabled(); };
  Tick();
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(window.tmrMain.Enabled());
}

TEST_F(CaptureTest, AShortcutWrittenExactlyAtThePurgeAgeIsFiled) {
  Open("2026-10-22 12:00:00");
  Load();
  EXPECT_TRUE(fs::exists(Daily("2026/October/22/Report.odt.lnk")));
}

TEST_F(CaptureTest, AShortcutASecondOlderThanThePurgeAgeIsIgnored) {
  Open("2026-10-22 11:59:59");
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026")));
}

TEST_F(CaptureTest, AnUnchangedShortcutIsFiledAndCountedOnce) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const auto written = fs::last_write_time(FavoritesFile());
  Tick();
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:15:00#"));
  EXPECT_EQ(fs::last_write_time(FavoritesFile()), written) << "a poll that counts nothing saves nothing";
}

TEST_F(CaptureTest, ADocumentOpenedAgainTheSameDayReplacesItsCopyAndIsNotCountedAgain) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const std::string shortcut = Open("2026-11-21 11:30:00");
  Tick();
  EXPECT_EQ(fs::last_write_time(Daily("2026/November/21/Report.odt.lnk")), fs::last_write_time(shortcut));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:15:00#"));
}

TEST_F(CaptureTest, AnOpeningWithinTheSameSecondReplacesTheCopyToo) {
  Load();
  const std::string shortcut = Open("2026-11-21 09:15:00");
  Tick();
  SetWritten(shortcut, "2026-11-21 09:15:00", 500'000'000);
  Tick();
  EXPECT_EQ(fs::last_write_time(Daily("2026/November/21/Report.odt.lnk")), fs::last_write_time(shortcut));
}

TEST_F(CaptureTest, AShortcutWrittenYesterdayIsFiledUnderYesterday) {
  Load();
  Open("2026-11-20 23:59:59");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/20/Report.odt.lnk")));
  EXPECT_FALSE(fs::exists(Daily("2026/November/21")));
}

TEST_F(CaptureTest, AnotherDocumentOfTheSameNameTakesTheCopysPlaceOnlyWhenItsTimeDiffers) {
  Load();
  const std::string first = ReadFile(Open("2026-11-21 09:15:00"));
  Tick();
  Open("2026-11-21 09:15:00", "Z:\\home\\bob\\Report.odt");
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Report.odt.lnk")), first);
  const std::string second = ReadFile(Open("2026-11-21 09:16:00", "Z:\\home\\bob\\Report.odt"));
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Report.odt.lnk")), second);
}

TEST_F(CaptureTest, FoldersThatExistAlreadyAreNoError) {
  fs::create_directories(Daily("2026/November/21"));
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Report.odt.lnk")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, ABacklogIsFiledWhileTheWindowLoadsBeforeTheTimerStarts) {
  for (int i = 0; i < 50; ++i) Open("2026-11-21 09:15:00", "Z:\\doc" + std::to_string(i) + ".odt");
  bool enabled = true;
  desktop.shell.refresh = [&] { enabled = window.tmrMain.Enabled(); };
  Load();
  EXPECT_FALSE(enabled);
  EXPECT_EQ(std::distance(fs::directory_iterator(Daily("2026/November/21")), fs::directory_iterator()), 50);
  EXPECT_TRUE(window.tmrMain.Enabled());
  EXPECT_EQ(window.tmrMain.Interval(), 60000);
}

TEST_F(CaptureTest, WhatIsOpenedWhileTheProgramDoesNotRunIsCountedOnTheNextStart) {
  desktop.folder.Write("program/Favorites.dat",
                       "4,#2026-11-01 10:00:00#,\"Z:\\x.lnk\",\"Report.odt\",\"z:\\home\\ana\",\"Text\",\"\",0\r\n");
  Open("2026-11-21 09:15:00");
  Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    5"));
  EXPECT_THAT(FavoritesText(), HasSubstr("5,#2026-11-21 09:15:00#"));
}

TEST_F(CaptureTest, AFirstStartCountsEachFiledDocumentOnce) {
  Open("2026-11-20 09:15:00");
  Load();
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-20 09:15:00#"));
}

TEST_F(CaptureTest, OnlyNormalShortcutFilesAreTaken) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  fs::create_directory(desktop.NativeRecent() + "/folder.lnk");
  testing::MakeFileLink("/nowhere", desktop.NativeRecent() + "/dangling.lnk");
  desktop.folder.Write("recent/.hidden.lnk", "x");
  desktop.folder.Write("recent/notes.txt", "x");
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, WhatLiesWhereADocumentIsDueIsReplacedAndNeverWrittenInto) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const std::string document = desktop.folder.Write("document.odt", "a document");
  const std::string day = Daily("2026/November/21/");
  desktop.folder.Write("program/Daily/2026/November/21/a.lnk", "");
  testing::MakeFileLink(document, day + "Symbolic.odt.lnk");
  fs::create_hard_link(document, day + "Hard.odt.lnk");
  for (const std::string name : {"Symbolic.odt", "Hard.odt"}) Open("2026-11-21 09:15:00", "Z:\\home\\ana\\" + name);
  Load();
  for (const std::string name : {"Symbolic.odt", "Hard.odt"})
    EXPECT_EQ(ReadFile(day + name + ".lnk"), ReadFile(desktop.NativeRecent() + "/" + name + ".lnk")) << name;
  EXPECT_EQ(ReadFile(document), "a document");
  EXPECT_EQ(fs::hard_link_count(document), 1U);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, InAnotherTimeZoneNothingIsFiledOrCountedAgain) {
  const testing::LocalZone home("Europe/Berlin");
  Load();
  Open("2026-11-20 23:30:00");
  Tick();
  const testing::LocalZone away("Pacific/Auckland");
  Tick();
  EXPECT_FALSE(fs::exists(Daily("2026/November/21")));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-20 23:30:00#"));
}

TEST_F(CaptureTest, AnOpeningOfTheNextDayIsAnotherOne) {
  Load();
  Open("2026-11-20 23:59:59");
  Tick();
  Open("2026-11-21 00:00:01");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Report.odt.lnk")));
  EXPECT_THAT(FavoritesText(), HasSubstr("2,#2026-11-21 00:00:01#"));
}

TEST_F(CaptureTest, TheDesktopIsToldWhenAllThatTheRecentFolderHeldIsFiled) {
  Load();
  const int before = desktop.shell.captured;
  Tick();
  EXPECT_EQ(desktop.shell.captured, before + 1);
}

TEST_F(CaptureTest, WindowsArePaintedWhileManyDocumentsAreFiled) {
  for (const char* name : {"a", "b", "c"})
    desktop.OpenDocument(std::string("Z:\\home\\ana\\") + name + ".odt", "2026-11-21 09:15:00");
  Load();
  int paints = 0;
  desktop.windowing.pending = [&] {
    ++paints;
    EXPECT_EQ(window.tryMain.Picture(), 103);
    EXPECT_EQ(window.sbrMain.Text(), "Please wait...");
    EXPECT_EQ(window.form.Pointer(), controls::MousePointer::Hourglass);
  };
  Tick();
  EXPECT_EQ(paints, 3);
}

}  // namespace
}  // namespace dayvane
