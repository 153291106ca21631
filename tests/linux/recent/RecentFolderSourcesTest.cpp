// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <tuple>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// Openings that the desktop's list does not tell of, and those that several sources tell of.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kReport;
using ::testing::Pair;
using testing::RecentDesk;

/// How the desktop's list is called where it is one of several sources.
constexpr const char* kDesktopList = "";

struct Told {
  std::string source;
  std::string moment;
};

/// Has one after another tell of the report, with a poll after each, and returns on which days it was filed.
std::set<std::string> FiledAfter(const std::vector<Told>& tellings) {
  RecentDesk desk;
  desk.PutDocuments({});
  desk.m_sources["A"];
  desk.m_sources["B"];
  for (const Told& told : tellings) {
    if (told.source == kDesktopList)
      desk.PutDocuments({{kReport, told.moment}});
    else
      desk.Tell(told.source, kReport, told.moment, told.source);
    desk.Poll();
  }
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  return desk.Filed();
}

/// The same, but all of them tell before the next poll.
std::set<std::string> FiledAtOnce(const std::vector<Told>& tellings) {
  RecentDesk desk;
  for (const Told& told : tellings) {
    if (told.source == kDesktopList)
      desk.PutDocuments({{kReport, told.moment}});
    else
      desk.Tell(told.source, kReport, told.moment, told.source);
  }
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  return desk.Filed();
}

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

TEST(RecentFolderSources, OneOpeningAtMidnightIsOnTheFirstDayWhoeverTellsOfItFirst) {
  const auto firstDay = ElementsAre("/home/ana/Report.odt 2026-11-20");
  const Told before{"A", "2026-11-20T23:59:50Z"};
  const Told after{"B", "2026-11-21T00:00:05Z"};
  const Told listAfter{kDesktopList, "2026-11-21T00:00:05Z"};
  const Told listBefore{kDesktopList, "2026-11-20T23:59:50Z"};
  EXPECT_THAT(FiledAfter({before, after}), firstDay);
  EXPECT_THAT(FiledAfter({before, listAfter}), firstDay);
  EXPECT_THAT(FiledAfter({listBefore, after}), firstDay);
  EXPECT_THAT(FiledAtOnce({before, after}), firstDay);
  EXPECT_THAT(FiledAtOnce({after, before}), firstDay);
  EXPECT_THAT(FiledAtOnce({before, listAfter}), firstDay);
  EXPECT_THAT(FiledAtOnce({listBefore, after}), firstDay);
  EXPECT_THAT(FiledAfter({before, after, listAfter}), firstDay);
  // What is filed already stays where it is, but it is one opening all the same.
  EXPECT_THAT(FiledAfter({after, before}), ElementsAre("/home/ana/Report.odt 2026-11-21"));
  EXPECT_THAT(FiledAfter({listAfter, before}), ElementsAre("/home/ana/Report.odt 2026-11-21"));
}

TEST(RecentFolderSources, AnEarlierMomentOfAnOpeningThatWaitsTakesItsPlace) {
  RecentDesk desk;
  desk.m_sources["A"];
  desk.PutDocuments({});
  RecentFolder& folder = desk.Start();
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-21T00:00:05Z"}});
  folder.RememberOpenings();
  desk.Tell("A", kReport, "2026-11-20T23:59:50Z");
  folder.RememberOpenings();
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(RecentFolderSources, TheEarliestMomentThatSourcesTellOfCounts) {
  RecentDesk desk;
  desk.Tell("A", kReport, "2026-11-20T10:00:01Z");
  desk.PutDocuments({{kReport, "2026-11-20T10:00:03Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T10:00:01.000000000Z")));
}

TEST(RecentFolderSources, TheListSeesAnOpeningThatASourceHasToldOfBefore) {
  RecentDesk desk;
  desk.Tell("A", kReport, "2026-11-20T10:00:01Z");
  desk.PutDocuments({});
  desk.Poll();
  desk.PutDocuments({{kReport, "2026-11-20T10:00:03Z"}});
  desk.Start();  // what each source told is kept from one session to the next
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T10:00:01.000000000Z")));
}

TEST(RecentFolderSources, TheSameSourceTellingAgainTellsOfANewOpening) {
  const auto bothDays = ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21");
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:40Z"}, {"B", "2026-11-20T23:59:50Z"}, {"B", "2026-11-21T00:00:05Z"}}),
              ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:40Z"}, {"A", "2026-11-21T00:00:05Z"}}), bothDays);
  EXPECT_THAT(FiledAfter({{kDesktopList, "2026-11-20T23:59:40Z"}, {kDesktopList, "2026-11-21T00:00:05Z"}}), bothDays);
}

TEST(RecentFolderSources, OpeningsMoreThanAMinuteApartAreTwo) {
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:00Z"}, {"B", "2026-11-21T00:01:00Z"}}),
              ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
}

TEST(RecentFolderSources, SeveralAgentsOfOneSourceTellOfOneOpening) {
  RecentDesk desk;
  desk.Tell("KDE", kReport, "2026-11-20T23:59:50Z", "okular");
  desk.Poll();
  desk.Tell("KDE", kReport, "2026-11-21T00:00:05Z", "org.kde.okular");
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
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

TEST(RecentFolderSources, AnEditorClosedAfterMidnightMakesNoSecondDay) {
  RecentDesk desk;
  desk.m_sources["KDE"];
  desk.PutDocuments({{kReport, "2026-11-20T22:00:00Z"}});
  desk.Poll();
  desk.m_sources["KDE"].began = testing::At("2026-11-20T22:00:00Z");
  desk.PutDocuments({{kReport, "2026-11-21T00:10:00Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(RecentFolderSources, AUseThatIsToldOfAtItsEndIsFiledWhereItBegan) {
  RecentDesk desk;
  desk.m_sources["KDE"].began = testing::At("2026-11-20T22:00:00Z");
  desk.PutDocuments({{kReport, "2026-11-21T00:10:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T22:00:00.000000000Z")));
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
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
