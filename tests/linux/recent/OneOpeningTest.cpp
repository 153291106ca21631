// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <set>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// Openings that several sources tell of, each with a moment of its own.
namespace dayvane::recent {
namespace {

using ::testing::ElementsAre;
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

TEST(OneOpening, OneOpeningAtMidnightIsOnTheFirstDayWhoeverTellsOfItFirst) {
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

TEST(OneOpening, AnEarlierMomentOfAnOpeningThatWaitsTakesItsPlace) {
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

TEST(OneOpening, TheEarliestMomentThatSourcesTellOfCounts) {
  RecentDesk desk;
  desk.Tell("A", kReport, "2026-11-20T10:00:01Z");
  desk.PutDocuments({{kReport, "2026-11-20T10:00:03Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T10:00:01.000000000Z")));
}

TEST(OneOpening, TheListSeesAnOpeningThatASourceHasToldOfBefore) {
  RecentDesk desk;
  desk.Tell("A", kReport, "2026-11-20T10:00:01Z");
  desk.PutDocuments({});
  desk.Poll();
  desk.PutDocuments({{kReport, "2026-11-20T10:00:03Z"}});
  desk.Start();  // what each source told is kept from one session to the next
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T10:00:01.000000000Z")));
}

TEST(OneOpening, TheSameSourceTellingAgainTellsOfANewOpening) {
  const auto bothDays = ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21");
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:40Z"}, {"B", "2026-11-20T23:59:50Z"}, {"B", "2026-11-21T00:00:05Z"}}),
              ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:40Z"}, {"A", "2026-11-21T00:00:05Z"}}), bothDays);
  EXPECT_THAT(FiledAfter({{kDesktopList, "2026-11-20T23:59:40Z"}, {kDesktopList, "2026-11-21T00:00:05Z"}}), bothDays);
}

TEST(OneOpening, OpeningsMoreThanAMinuteApartAreTwo) {
  EXPECT_THAT(FiledAfter({{"A", "2026-11-20T23:59:00Z"}, {"B", "2026-11-21T00:01:00Z"}}),
              ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
}

TEST(OneOpening, SeveralAgentsOfOneSourceTellOfOneOpening) {
  RecentDesk desk;
  desk.Tell("KDE", kReport, "2026-11-20T23:59:50Z", "okular");
  desk.Poll();
  desk.Tell("KDE", kReport, "2026-11-21T00:00:05Z", "org.kde.okular");
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(OneOpening, AnEditorClosedAfterMidnightMakesNoSecondDay) {
  RecentDesk desk;
  desk.m_sources["KDE"];
  desk.PutDocuments({{kReport, "2026-11-20T22:00:00Z"}});
  desk.Poll();
  desk.m_sources["KDE"].began = testing::At("2026-11-20T22:00:00Z");
  desk.PutDocuments({{kReport, "2026-11-21T00:10:00Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(OneOpening, AUseThatIsToldOfAtItsEndIsFiledWhereItBegan) {
  RecentDesk desk;
  desk.m_sources["KDE"].began = testing::At("2026-11-20T22:00:00Z");
  desk.PutDocuments({{kReport, "2026-11-21T00:10:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T22:00:00.000000000Z")));
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

}  // namespace
}  // namespace dayvane::recent
