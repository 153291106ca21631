// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <tuple>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// Openings that the desktop's list does not tell of.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kReport;
using ::testing::Pair;
using testing::RecentDesk;

TEST(RecentFolderSources, ADocumentThatOnlyAFurtherSourceTellsOfIsFiled) {
  RecentDesk desk;
  desk.PutDocuments({});
  desk.Tell("KDE", kReport, "2026-11-20T10:00:01.5Z");
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T10:00:01.500000000Z")));
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(RecentFolderSources, AFurtherSourceWorksWithoutTheList) {
  RecentDesk desk;
  desk.Tell("KDE", kReport, "2026-11-20T10:00:01Z");
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 1U);
}

TEST(RecentFolderSources, EveryDayThatASourceTellsOfIsFiled) {
  RecentDesk desk;
  for (const char* day : {"2026-11-23", "2026-11-20", "2026-11-21"})
    desk.Tell("KDE", kReport, std::string(day) + "T10:00:00Z");
  for (int poll = 0; poll < 4; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21",
                                        "/home/ana/Report.odt 2026-11-23"));
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-23T10:00:00.000000000Z")));
}

TEST(RecentFolderSources, OfADocumentsManyDaysTheLastIsFiledFirst) {
  RecentDesk desk;
  for (const char* day : {"2026-11-20", "2026-11-21", "2026-11-23"})
    desk.Tell("KDE", kReport, std::string(day) + "T10:00:00Z");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-23"));
}

TEST(RecentFolderSources, ADayToldOfLateIsFiledAndTheShortcutShowsTheLastOpening) {
  RecentDesk desk;
  desk.m_sources["KDE"];
  desk.PutDocuments({{kReport, "2026-11-23T08:00:00Z"}});
  desk.Poll();
  desk.Tell("KDE", kReport, "2026-11-20T10:00:00Z");
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-23"));
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-23T08:00:00.000000000Z")));
}

TEST(RecentFolderSources, ALinkThatWasRemovedIsNotBroughtBackByAnOpeningBeforeThat) {
  RecentDesk desk;
  desk.m_sources["KDE"];
  desk.PutDocuments({{kReport, "2026-11-23T08:00:00Z"}});
  desk.Poll();
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  desk.Start();
  desk.Tell("KDE", kReport, "2026-11-20T10:00:00Z");
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
}

TEST(RecentFolderSources, ASourceThatRepeatsAllItKnowsTellsOfNothingNew) {
  RecentDesk desk;
  desk.m_sources["A"].isForgetful = true;
  desk.Tell("A", kReport, "2026-11-20T10:00:00Z");
  desk.Tell("A", "/home/ana/x", "2026-12-09T10:00:00Z");  // its clock was wrong
  desk.Poll();
  const auto filed = desk.Filed();
  desk.m_now = testing::At("2026-12-20T12:00:00Z");
  desk.Tell("A", "/home/ana/y", "2026-12-20T10:00:00Z");
  desk.Start();
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_EQ(desk.Filed().size(), filed.size() + 1);
  EXPECT_THAT(filed, ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/x 2026-12-01"));
}

TEST(RecentFolderSources, AnEmptiedListEmptiesTheFolderWhateverTheOtherSourcesHold) {
  RecentDesk desk;
  desk.m_sources["A"].isForgetful = true;
  desk.Tell("A", kReport, "2026-11-20T10:00:00Z");
  desk.PutDocuments({{"/home/ana/x", "2026-11-20T10:00:00Z"}});
  desk.Poll();
  desk.PutDocuments({});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
}

TEST(RecentFolderSources, ASourceThatHasNothingNewIsNotRead) {
  RecentDesk desk;
  desk.Tell("A", kReport, "2026-11-20T10:00:00Z");
  for (int poll = 0; poll < 5; ++poll) desk.Poll();
  EXPECT_EQ(desk.m_sources["A"].readings, 1);
}

TEST(RecentFolderSources, ASourceThatFailsIsReportedOnceAndTheOthersGoOn) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/x", "2026-11-20T10:00:00Z"}});
  desk.Tell("A", kReport, "2026-11-20T10:00:00Z");
  desk.Tell("B", "/home/ana/y", "2026-11-20T10:00:00Z");
  desk.m_sources["A"].failure = "database is locked";
  desk.Start();
  desk.m_events.clear();
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("beside the desktop's list there is A, B"),
                                         ::testing::AllOf(HasSubstr("A cannot be read"), HasSubstr("locked"))));
  EXPECT_EQ(desk.Filed().size(), 2U);
  desk.m_sources["A"].failure.clear();
  desk.Poll();
  EXPECT_EQ(desk.Filed().size(), 3U);
  desk.m_sources["A"].failure = "database is locked";
  desk.Tell("A", kReport, "2026-11-22T10:00:00Z");
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_EQ(desk.m_events.size(), 3U) << "a new failure is reported anew";
}

TEST(RecentFolderSources, TheLogTellsAtTheStartWhatIsRead) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/x", "2026-11-20T10:00:00Z"}});
  desk.m_sources["the list of Editor"];
  desk.Poll();
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("beside the desktop's list there is nothing")));
  desk.Tell("the list of Editor", kReport, "2026-11-20T10:00:00Z");
  desk.Start();
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  ASSERT_EQ(desk.m_events.size(), 2U);
  EXPECT_THAT(desk.m_events[1], HasSubstr("there is the list of Editor"));
}

TEST(RecentFolderSources, TheProgramThatLastOpenedADocumentOfATypeIsKnown) {
  RecentDesk desk;
  desk.Tell("A", "/home/ana/a.letter", "2026-11-20T10:00:00Z", "Letters");
  desk.Tell("A", "/home/ana/b.letter", "2026-11-20T09:00:00Z", "Paint");
  desk.Tell("A", "/home/ana/c.letter", "2026-11-20T11:00:00Z", "xdg-desktop-portal-gnome");
  desk.PutBookmarks(RecentDesk::Bookmark("file:///home/ana/noext", "2026-11-20T10:00:00Z"));
  desk.Poll();
  RecentFolder& folder = desk.Start();
  folder.Refresh();
  EXPECT_EQ(folder.LastProgramFor("application/x-letter"), "Letters");
  EXPECT_EQ(folder.LastProgramFor("text/plain"), "Editor")
      << "where the name says nothing, the type in the list counts";
  EXPECT_EQ(folder.LastProgramFor("application/x-sketch"), std::nullopt);
}

TEST(RecentFolderSources, AKillNeitherLosesNorDoublesWhatASourceToldOf) {
  const auto poll = [](RecentDesk& desk) {
    try {
      desk.Poll();
    } catch (const testing::SessionEnds&) {
      desk.Start();
      desk.Poll();
    }
  };
  const auto live = [&](int changesUntilEnd) {
    RecentDesk desk;
    desk.PutDocuments({});
    desk.m_disk.changesUntilEnd = changesUntilEnd;
    for (const char* day : {"2026-11-20", "2026-11-22", "2026-11-24"})
      desk.Tell("A", "/home/ana/x", std::string(day) + "T10:00:00Z");
    for (const char* moment : {"2026-11-20T10:00:00Z", "2026-11-21T10:00:00Z", "2026-11-22T10:00:00Z"}) {
      desk.Tell("A", kReport, moment);
      poll(desk);
    }
    for (int i = 0; i < 4; ++i) poll(desk);
    return std::tuple(desk.Filed(), desk.Shortcuts(), desk.m_disk.changes);
  };
  const auto [filed, shortcuts, changes] = live(-1);
  ASSERT_EQ(filed.size(), 6U);
  for (int change = 0; change < changes; ++change) {
    const auto [filedWithKill, shortcutsWithKill, ignored] = live(change);
    EXPECT_EQ(filedWithKill, filed) << change;
    EXPECT_EQ(shortcutsWithKill, shortcuts) << change;
  }
}

}  // namespace
}  // namespace dayvane::recent
