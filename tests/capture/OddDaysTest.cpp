// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::LocalZone;
using ::testing::SizeIs;
using ::testing::StartsWith;

/// A user on whose desktop days are not what they usually are. Only what is filed tells what is captured.
class OddDaysTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  /// A document was opened at a moment, in seconds since 1970.
  void Open(const std::string& name, std::int64_t moment) {
    testing::SetWritten(desktop.OpenDocument("Z:\\home\\ana\\" + name, "2026-11-21 09:15:00"), moment);
  }

  /// What is filed, "2026/November/21/a.odt.lnk", in the order of the names.
  std::vector<std::string> Filed() const {
    std::vector<std::string> filed;
    for (const auto& entry : fs::recursive_directory_iterator(Daily("")))
      if (entry.is_regular_file()) filed.push_back(fs::relative(entry.path(), Daily("")).generic_string());
    std::sort(filed.begin(), filed.end());
    return filed;
  }

  /// How often each document was counted, whatever the threshold.
  std::vector<std::string> Counts() {
    std::vector<std::string> counts;
    for (const auto& record : window.Favorites()->GetFavorites())
      counts.push_back(favorites::TextOf(record[favorites::kTargetFileName]) + " " +
                       favorites::TextOf(record[favorites::kDaysAccessed]));
    return counts;
  }
};

// 2026-10-25 in Berlin: 02:00 to 03:00 comes twice.
constexpr std::int64_t kFirstHalfPastTwo = 1792888200;
constexpr std::int64_t kHour = 3600;

TEST_F(OddDaysTest, AnOpeningThatWasFiledOnAJourneyIsNotFiledAgainAtHome) {
  constexpr std::int64_t kThreeInLondon = 1795230000;  // on 21 November 2026, still the day before in New York
  desktop.clock.Set(2026, 11, 21, 5);
  {
    const LocalZone zone("Europe/London");
    Open("home.odt", kThreeInLondon);
    Load();
  }
  {
    const LocalZone zone("America/New_York");
    Open("away.odt", kThreeInLondon + kHour);
    Tick();
  }
  const LocalZone zone("Europe/London");
  Tick();
  EXPECT_THAT(Filed(), ElementsAre("2026/November/20/away.odt.lnk", "2026/November/21/home.odt.lnk"));
}

TEST_F(OddDaysTest, AnOpeningIsFiledOnceAlsoOnAJourneyBetweenTheOutermostZones) {
  constexpr std::int64_t kHalfPastTen =
      1795257000;  // UTC on 21 November 2026: the 22nd in the one, the 20th in the other
  using Zones = std::pair<const char*, const char*>;
  for (const auto& [first, second] :
       {Zones("Pacific/Kiritimati", "Etc/GMT+12"), Zones("Etc/GMT+12", "Pacific/Kiritimati")}) {
    testing::MainWindow user;
    user.desktop.clock.Set(2026, 11, 22, 23);
    const LocalZone before(first);
    testing::SetWritten(user.desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00"), kHalfPastTen);
    user.Load();
    const LocalZone after(second);
    user.Tick();
    const auto filed = fs::recursive_directory_iterator(user.Daily(""));
    EXPECT_EQ(std::count_if(begin(filed), end(filed), [](const auto& entry) { return entry.is_regular_file(); }), 1)
        << first;
  }
}

TEST_F(OddDaysTest, BothHoursThatAClockSetBackShowsTwiceBelongToTheirDay) {
  const LocalZone zone("Europe/Berlin");
  Open("first.odt", kFirstHalfPastTwo);
  Open("second.odt", kFirstHalfPastTwo + kHour);
  Open("before.odt", kFirstHalfPastTwo - 2 * kHour - 1801);
  Open("after.odt", kFirstHalfPastTwo + 22 * kHour + 1800);
  desktop.clock.Set(2026, 10, 26);
  Load();
  EXPECT_THAT(Filed(), ElementsAre("2026/October/24/before.odt.lnk", "2026/October/25/first.odt.lnk",
                                   "2026/October/25/second.odt.lnk", "2026/October/26/after.odt.lnk"));
  Tick();
  EXPECT_THAT(Counts(), SizeIs(4));
  EXPECT_THAT(Filed(), SizeIs(4));
}

TEST_F(OddDaysTest, ADocumentOpenedAgainInTheHourThatComesTwiceIsFiledAgainAndCountedOnce) {
  const LocalZone zone("Europe/Berlin");
  desktop.clock.Set(2026, 10, 25);
  Open("a.odt", kFirstHalfPastTwo);
  Load();
  Open("a.odt", kFirstHalfPastTwo + kHour);
  Tick();
  EXPECT_THAT(Counts(), ElementsAre("a.odt 1"));
  const auto copy = desktop.files.Status(desktop.Folder() + "\\Daily\\2026\\October\\25\\a.odt.lnk");
  EXPECT_EQ(copy->written.nanoseconds, (kFirstHalfPastTwo + kHour) * 1'000'000'000);
}

TEST_F(OddDaysTest, ADayWithoutAMidnightIsADayLikeAnyOther) {
  const LocalZone zone("Asia/Beirut");  // 2026-03-29 begins at 01:00.
  constexpr std::int64_t kBeginning = 1774735200;
  Open("before.odt", kBeginning - 1);
  Open("first.odt", kBeginning);
  desktop.clock.Set(2026, 3, 29, 1);
  Load();
  EXPECT_THAT(Filed(), ElementsAre("2026/March/28/before.odt.lnk", "2026/March/29/first.odt.lnk"));
  window.form.Activate.Raise();
  EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre("first.odt"));
  EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 3), ElementsAre("01:00"));
}

TEST_F(OddDaysTest, ADayThatALandLeftOutIsNotFiledUnder) {
  const LocalZone zone("Pacific/Apia");  // After 29 December 2011 came the 31st.
  constexpr std::int64_t kMidnight = 1325239200;
  Open("before.odt", kMidnight - 1);
  Open("after.odt", kMidnight);
  desktop.clock.Set(2011, 12, 31);
  Load();
  EXPECT_THAT(Filed(), ElementsAre("2011/December/29/before.odt.lnk", "2011/December/31/after.odt.lnk"));
}

TEST_F(OddDaysTest, OneMomentIsTwoDaysOnTheTwoSidesOfTheDateLine) {
  constexpr std::int64_t kNoonInGreenwich = 1795262400;  // 2026-11-21 12:00 UTC
  for (const auto& [zone, day] : {std::pair("Pacific/Kiritimati", "2026/November/22/Pacific.lnk"),
                                  std::pair("Pacific/Pago_Pago", "2026/November/21/Pacific.lnk")}) {
    const LocalZone here(zone);
    MainWindow user;
    testing::SetWritten(user.desktop.OpenDocument("Z:\\home\\ana\\Pacific", "2026-11-21 12:00:00"), kNoonInGreenwich);
    user.Load();
    EXPECT_TRUE(fs::exists(user.Daily(day))) << zone;
  }
}

TEST_F(OddDaysTest, AClockSetBackADayLosesAndDoublesNothing) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00");
  Load();
  desktop.clock.Set(2026, 11, 20);
  Tick();
  desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-11-20 09:30:00");
  Tick();
  desktop.clock.Set(2026, 11, 21);
  Tick();
  EXPECT_THAT(Filed(), ElementsAre("2026/November/20/b.odt.lnk", "2026/November/21/a.odt.lnk"));
  EXPECT_THAT(Counts(), ElementsAre("a.odt 1", "b.odt 1"));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(OddDaysTest, AClockThatWasAMonthAheadForAWhileLosesAndDoublesNothing) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-21 09:15:00");
  Load();
  desktop.clock.Set(2026, 12, 22);
  Tick();
  desktop.OpenDocument("Z:\\home\\ana\\b.odt", "2026-12-22 09:30:00");
  Tick();
  desktop.clock.Set(2026, 11, 21, 13);
  Tick();
  EXPECT_THAT(Filed(), ElementsAre("2026/December/22/b.odt.lnk", "2026/November/21/a.odt.lnk"));
  EXPECT_THAT(Counts(), ElementsAre("a.odt 1", "b.odt 1"));
}

TEST_F(OddDaysTest, AStartWithTheClockAMonthAheadRemovesNothingWithoutAsking) {
  File("2026/November/20", "Z:\\home\\ana\\a.odt", "2026-11-20 10:00:00");
  desktop.clock.Set(2026, 12, 22);
  desktop.windowing.answer = platform::MessageAnswer::No;
  Load();
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre(StartsWith("There are shortcuts to programs and documents")));
  EXPECT_THAT(Filed(), ElementsAre("2026/November/20/a.odt.lnk"));
}

TEST_F(OddDaysTest, AStartWithTheClockADayBackAsksNothingAndShowsTheDayAhead) {
  File("2026/November/21", "Z:\\home\\ana\\a.odt", "2026-11-21 10:00:00");
  desktop.clock.Set(2026, 11, 20);
  Load();
  window.form.Activate.Raise();
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre("a.odt"));
}

TEST_F(OddDaysTest, AStartWithTheClockSetBackOverTheNewYearTellsOfNoError) {
  File("2027/January/01", "Z:\\home\\ana\\a.odt", "2027-01-01 10:00:00");
  desktop.clock.Set(2026, 12, 31);
  Load();
  window.form.Activate.Raise();
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2027", "  January", "   01"));
}

}  // namespace
}  // namespace dayvane
