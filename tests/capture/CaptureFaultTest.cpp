// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/support/ProgramRuns.h"

/// The disk fails for a moment, between the filing of a shortcut and its counting: no day is left uncounted.
namespace dayvane {
namespace {

using ::testing::ElementsAre;
using testing::ProgramRuns;

class CaptureFaultTest : public ::testing::Test {
 protected:
  CaptureFaultTest() {
    Open("2026-11-20 09:00:00");
    m_computer.Start();
    Open("2026-11-21 09:00:00");
  }

  void Open(const std::string& time) { m_computer.desktop.OpenDocument("Z:\\home\\ana\\a.odt", time); }

  static auto FailingAt(const std::string& end) {
    return [end](const std::string& path) {
      if (path.ends_with(end)) throw Error(kDeviceIoError, "Input/output error", path);
    };
  }

  /// From now on the copy in the folder of the last day cannot be looked at once it is there, nor be read.
  void SpoilFiledShortcut() {
    m_computer.desktop.files.beforeRead = FailingAt("\\21\\a.odt.lnk");
    m_computer.desktop.files.beforeStatus = [fail = FailingAt("\\21\\a.odt.lnk"), this](const std::string& path) {
      if (std::filesystem::exists(m_computer.NativeFile("Daily/2026/November/21/a.odt.lnk"))) fail(path);
    };
  }
  void MendFiledShortcut() {
    m_computer.desktop.files.beforeRead = [](const std::string&) {};
    m_computer.desktop.files.beforeStatus = [](const std::string&) {};
  }

  void Tick() { m_computer.Window().tmrMain.Fire(); }
  void Resume() { m_computer.Window().SetActive(true); }

  std::vector<std::string> Counts() {
    std::vector<std::string> counts;
    for (const auto& record : m_computer.Window().Favorites()->GetFavorites())
      counts.push_back(favorites::TextOf(record[favorites::kTargetFileName]) + " " +
                       favorites::TextOf(record[favorites::kDaysAccessed]));
    return counts;
  }

  std::filesystem::file_time_type DataFileWritten() const {
    return std::filesystem::last_write_time(m_computer.NativeFile("Favorites.dat"));
  }

  ProgramRuns m_computer;
};

TEST_F(CaptureFaultTest, AFiledShortcutThatCannotBeReadForAMomentIsCountedByTheNextPoll) {
  SpoilFiledShortcut();
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 1"));
  MendFiledShortcut();
  Resume();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
  Resume();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
}

TEST_F(CaptureFaultTest, AFiledShortcutThatCannotBeReadUntilTheEndIsCountedByTheNextStart) {
  SpoilFiledShortcut();
  Tick();
  m_computer.Exit();
  MendFiledShortcut();
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
  m_computer.Exit();
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
}

TEST_F(CaptureFaultTest, AFiledShortcutThatStillCannotBeReadAtTheNextStartIsNamedInTheEventLog) {
  SpoilFiledShortcut();
  Tick();
  m_computer.Exit();
  m_computer.Start();
  EXPECT_THAT(m_computer.desktop.LogLines("EventLog.txt"),
              ::testing::Contains(::testing::HasSubstr("Could not be counted yet: ")));
}

TEST_F(CaptureFaultTest, WhatIsCountedMeanwhileDoesNotCostTheOtherItsCount) {
  SpoilFiledShortcut();
  Tick();
  m_computer.desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-11-21 10:00:00");
  Resume();
  m_computer.Kill();
  MendFiledShortcut();
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2", "b.odt 1"));
}

TEST_F(CaptureFaultTest, ADiskThatDoesNotTellWhatIsFiledHasNothingCountedTwice) {
  Tick();
  // Rewritten, so that the poll looks at what is filed of it.
  Open("2026-11-21 09:30:00");
  m_computer.desktop.files.beforeStatus = FailingAt("\\21\\a.odt.lnk");
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
  m_computer.desktop.files.beforeStatus = [](const std::string&) {};
  Resume();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
}

TEST_F(CaptureFaultTest, ADataFileThatTheDiskDoesNotTellOfIsKeptBeforeTheTableIsSaved) {
  m_computer.Exit();
  const std::string before = testing::ReadFile(m_computer.NativeFile("Favorites.dat"));
  m_computer.desktop.files.beforeStatus = FailingAt("\\Favorites.dat");
  m_computer.Start();
  m_computer.desktop.files.beforeStatus = [](const std::string&) {};
  m_computer.Exit();
  bool isKept = false;
  for (const auto& entry : std::filesystem::directory_iterator(m_computer.desktop.NativeFolder()))
    if (entry.path().filename().string().starts_with("Favorites.damaged"))
      isKept = testing::ReadFile(entry.path().string()) == before;
  EXPECT_TRUE(isKept);
}

TEST_F(CaptureFaultTest, ADataFileThatCannotBeReadForAMomentIsReadAllTheSame) {
  m_computer.Exit();
  m_computer.desktop.files.beforeRead = [failures = 4](const std::string& path) mutable {
    if (path.ends_with("\\Favorites.dat") && failures-- > 0) throw Error(kDeviceIoError, "Input/output error", path);
  };
  std::filesystem::remove_all(m_computer.desktop.NativeFolder() + "/Daily/2026/November/20");
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2")) << "also of the day that is gone";
  EXPECT_THAT(m_computer.desktop.windowing.messages, ::testing::IsEmpty());
}

TEST_F(CaptureFaultTest, AnOpeningThatIsCutOffAfterAFailureOfItsJournalIsCountedOnce) {
  m_computer.desktop.files.beforeChange = FailingAt("\\Favorites.pending");
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 1"));
  m_computer.LetLive();
  m_computer.desktop.files.beforeChange = [](const std::string& path) {
    if (path.ends_with("\\Favorites.dat")) throw testing::Killed();
  };
  EXPECT_THROW(Resume(), testing::Killed);
  m_computer.LetLive();
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
}

TEST_F(CaptureFaultTest, ACountThatIsStillMissingSurvivesAKillWhileTheOthersAreSaved) {
  SpoilFiledShortcut();
  m_computer.desktop.OpenDocument("Z:\\home\\ana\\0.odt", "2026-11-21 08:00:00");
  m_computer.desktop.files.beforeChange = [](const std::string& path) {
    if (path.ends_with("\\Favorites.dat")) throw testing::Killed();
  };
  EXPECT_THROW(Tick(), testing::Killed);
  m_computer.LetLive();
  MendFiledShortcut();
  m_computer.Start();
  EXPECT_THAT(Counts(), ::testing::UnorderedElementsAre("a.odt 2", "0.odt 1"));
}

TEST_F(CaptureFaultTest, ATableThatCouldNotBeSavedLeavesEveryCountToTheNextStart) {
  SpoilFiledShortcut();
  Tick();
  m_computer.desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-11-21 10:00:00");
  m_computer.desktop.files.beforeChange = FailingAt("\\Favorites.dat");
  Resume();
  m_computer.desktop.OpenDocument("Z:\\home\\ana\\c.odt", "2026-11-21 11:00:00");
  Resume();
  m_computer.Kill();
  m_computer.LetLive();
  MendFiledShortcut();
  m_computer.Start();
  EXPECT_THAT(Counts(), ::testing::UnorderedElementsAre("a.odt 2", "b.odt 1", "c.odt 1"));
}

TEST_F(CaptureFaultTest, AJournalThatCannotBeReadForAMomentCostsNoCount) {
  SpoilFiledShortcut();
  Tick();
  m_computer.Kill();
  MendFiledShortcut();
  m_computer.desktop.files.beforeRead = [failures = 4](const std::string& path) mutable {
    if (path.ends_with("\\Favorites.pending") && failures-- > 0)
      throw Error(kDeviceIoError, "Input/output error", path);
  };
  m_computer.Start();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
}

TEST_F(CaptureFaultTest, AJournalThatCanNeverBeReadKeepsNothingFromBeingFiledAndCounted) {
  SpoilFiledShortcut();
  Tick();
  m_computer.Kill();
  MendFiledShortcut();
  m_computer.desktop.files.beforeRead = FailingAt("\\Favorites.pending");
  m_computer.Start();
  Open("2026-11-22 09:00:00");
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 2"));
  EXPECT_THAT(m_computer.desktop.LogLines("EventLog.txt"),
              ::testing::Contains(::testing::HasSubstr("Favorites.pending cannot be read")));
}

TEST_F(CaptureFaultTest, AShortcutThatCanNeverBeReadIsNoReasonToSaveAgainAndAgain) {
  SpoilFiledShortcut();
  Tick();
  Resume();
  const auto written = DataFileWritten();
  Resume();
  Resume();
  EXPECT_EQ(DataFileWritten(), written);
}

}  // namespace
}  // namespace dayvane
