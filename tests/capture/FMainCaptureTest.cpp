// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "links/ShellLinkFormat.h"
#include "tests/support/FullDisk.h"
#include "tests/support/LocalZone.h"
#include "tests/support/MainWindow.h"
#include "tests/support/Unprivileged.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::ReadFile;
using testing::SetWritten;

class CaptureTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  CaptureTest() { desktop.registry.AddClass(".ODT", "OpenDocument Text"); }

  std::string Open(const std::string& time, const std::string& target = "Z:\\home\\ana\\Report.odt") {
    return desktop.OpenDocument(target, time);
  }
  /// The program that opens documents from now on.
  void UseProgram(const std::string& name) {
    desktop.folder.Write("bin/" + name, "");
    desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\" + name + "\" \"%1\"");
  }
  std::string ProgramIn(const std::string& path) const {
    return links::ParseShellLink(ReadFile(Daily(path))).value().target;
  }
  std::vector<std::string> NamesIn(const std::string& day) const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Daily(day))) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
  std::string FavoritesText() const { return fs::exists(FavoritesFile()) ? ReadFile(FavoritesFile()) : ""; }
};

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

TEST_F(CaptureTest, TheProgramThatOpensADocumentIsFiledBesideIt) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\" \"%1\"");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_TRUE(fs::exists(Daily("2026/November/21/Writer.lnk")));
  EXPECT_FALSE(fs::exists(desktop.NativeRecent() + "/Writer.lnk"));
}

TEST_F(CaptureTest, ADocumentCalledLikeTheProgramOfAnotherKeepsItsPlaceAndItsCount) {
  UseProgram("Code");
  Load();
  const std::string shortcut = Open("2026-11-21 09:15:00", "Z:\\home\\ana\\Code");
  Tick();
  Open("2026-11-21 09:20:00");
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Code.lnk")), ReadFile(shortcut));
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code (2).lnk", "Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:15:00#"));
}

TEST_F(CaptureTest, ADocumentCalledLikeAProgramThatIsThereAlreadyIsCountedAndThatOneStays) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  ASSERT_THAT(NamesIn("2026/November/21"), ElementsAre("Code.lnk", "Report.odt.lnk"));
  const std::string shortcut = Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Code.lnk")), ReadFile(shortcut));
  EXPECT_EQ(ProgramIn("2026/November/21/Code (2).lnk"), desktop.folder.Path() + "\\bin\\Code");
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:20:00#"));
}

TEST_F(CaptureTest, ADocumentAndAProgramOfOneNameAreAtRestAfterTheyWereFiled) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  const auto written = fs::last_write_time(Daily("2026/November/21/Code (2).lnk"));
  Open("2026-11-21 09:25:00", "Z:\\home\\ana\\Code");
  Tick();
  Tick();
  EXPECT_EQ(fs::last_write_time(Daily("2026/November/21/Code (2).lnk")), written);
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code (2).lnk", "Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), HasSubstr("1,#2026-11-21 09:20:00#"));
}

TEST_F(CaptureTest, AProgramThatWasOpenedFromTheListIsNotTakenForADocumentOfItsName) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  fs::copy(Daily("2026/November/21/Code.lnk"), desktop.NativeRecent() + "/Code.lnk");
  SetWritten(desktop.NativeRecent() + "/Code.lnk", "2026-11-21 09:20:00");
  Tick();
  EXPECT_THAT(NamesIn("2026/November/21"), ElementsAre("Code.lnk", "Report.odt.lnk"));
  EXPECT_THAT(FavoritesText(), ::testing::Not(HasSubstr("Code")));
}

TEST_F(CaptureTest, AProgramsShortcutBehindALinkOutOfTheRepositoryIsNotMoved) {
  UseProgram("Code");
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const testing::TemporaryFolder outside;
  fs::rename(Daily("2026/November/21/Code.lnk"), outside / "Code.lnk");
  fs::remove_all(Daily("2026/November/21"));
  fs::create_directory_symlink(outside.Native(), Daily("2026/November/21"));
  Open("2026-11-21 09:20:00", "Z:\\home\\ana\\Code");
  Tick();
  EXPECT_EQ(std::distance(fs::directory_iterator(outside.Native()), fs::directory_iterator()), 1);
  EXPECT_TRUE(fs::exists(outside / "Code.lnk"));
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
  fs::create_directory(desktop.NativeRecent() + "/folder.lnk");
  fs::create_symlink("/nowhere", desktop.NativeRecent() + "/dangling.lnk");
  ASSERT_EQ(mkfifo((desktop.NativeRecent() + "/pipe.lnk").c_str(), 0600), 0);
  desktop.folder.Write("recent/.hidden.lnk", "x");
  desktop.folder.Write("recent/notes.txt", "x");
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, WhatLiesWhereADocumentIsDueIsReplacedAndNeverWrittenInto) {
  const std::string document = desktop.folder.Write("document.odt", "a document");
  const std::string day = Daily("2026/November/21/");
  desktop.folder.Write("program/Daily/2026/November/21/a.lnk", "");
  fs::create_symlink(document, day + "Symbolic.odt.lnk");
  fs::create_hard_link(document, day + "Hard.odt.lnk");
  ASSERT_EQ(mkfifo((day + "Pipe.odt.lnk").c_str(), 0600), 0);
  for (const std::string name : {"Symbolic.odt", "Hard.odt", "Pipe.odt"})
    Open("2026-11-21 09:15:00", "Z:\\home\\ana\\" + name);
  Load();
  for (const std::string name : {"Symbolic.odt", "Hard.odt", "Pipe.odt"})
    EXPECT_EQ(ReadFile(day + name + ".lnk"), ReadFile(desktop.NativeRecent() + "/" + name + ".lnk")) << name;
  EXPECT_EQ(ReadFile(document), "a document");
  EXPECT_EQ(fs::hard_link_count(document), 1U);
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

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
  const testing::TemporaryFolder outside;
  fs::create_directory_symlink(outside.Native(), Daily("2026"));
  Open("2026-11-21 09:15:00");
  Load();
  EXPECT_TRUE(fs::is_empty(outside.Native()));
  EXPECT_EQ(desktop.LogLines("ErrorLog.txt").size(), 1U);
}

TEST_F(CaptureTest, AnUnreadableShortcutEndsThePollWithAReport) {
  Load();
  fs::permissions(Open("2026-11-21 09:15:00"), fs::perms::none);
  fs::permissions(desktop.folder.Native(), fs::perms::all);
  fs::permissions(desktop.NativeFolder(), fs::perms::all);
  {
    const testing::Unprivileged user;
    Tick();
  }
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt")[0], HasSubstr("Permission denied"));
}

TEST_F(CaptureTest, ADiskThatFillsLeavesNoHalfFiledShortcut) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const std::string before = ReadFile(Daily("2026/November/21/Report.odt.lnk"));
  Open("2026-11-21 10:00:00");
  {
    const testing::FullDisk full;
    Tick();
  }
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Report.odt.lnk")), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(Daily("2026/November/21")), fs::directory_iterator()), 1);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  window.PollRecentFolder();
  EXPECT_NE(fs::last_write_time(Daily("2026/November/21/Report.odt.lnk")), fs::file_time_type{});
  EXPECT_TRUE(window.tmrMain.Enabled());
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

TEST_F(CaptureTest, TheDesktopIsToldWhenAllThatTheRecentFolderHeldIsFiled) {
  Load();
  const int before = desktop.shell.captured;
  Tick();
  EXPECT_EQ(desktop.shell.captured, before + 1);
}

TEST_F(CaptureTest, APollThatFailedDoesNotTellThatItCaptured) {
  Load();
  const int before = desktop.shell.captured;
  desktop.folder.Write("program/Daily/2026", "");
  Open("2026-11-21 09:15:00");
  Tick();
  EXPECT_EQ(desktop.shell.captured, before);
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
