// SPDX-License-Identifier: MIT
#include <array>
#include <gtest/gtest.h>

#include "app/Date.h"
#include "base/Error.h"
#include "tests/support/Random.h"

namespace dayvane {
namespace {

const platform::DateConventions kEnglish;

platform::DateConventions German() {
  platform::DateConventions german;
  german.monthNames = {"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                       "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
  german.shortDate = "dd.mm.yy";
  return german;
}

/// Any moment of the years 1000 … 9999, whose four digits every short date can show.
Date RandomDate(testing::Random& random) {
  const unsigned month = 1 + random.UnsignedBelow(12);
  return Date::Of(1000 + random.Below(9000), month, 1 + random.UnsignedBelow(month == 2 ? 28 : 30), random.Below(24),
                  random.Below(60), random.Below(60));
}

constexpr int kRandomDates = 2000;

TEST(Date, TheZeroDateIsNoDate) {
  EXPECT_TRUE(Date().IsZero());
  EXPECT_EQ(Format(Date(), "yyyy-mm-dd", kEnglish), "1899-12-30");
}

TEST(Date, PatternsOfTheRepositoryFolders) {
  const Date day = Date::Of(1998, 1, 5, 14, 3, 27);
  EXPECT_EQ(Format(day, "yyyy", kEnglish), "1998");
  EXPECT_EQ(Format(day, "mmmm", kEnglish), "January");
  EXPECT_EQ(Format(day, "dd", kEnglish), "05");
}

TEST(Date, MonthNamesAreTheUsers) {
  EXPECT_EQ(Format(Date::Of(2026, 3, 1), "mmmm", German()), "März");
}

TEST(Date, TwoMsAfterTheHoursAreMinutes) {
  EXPECT_EQ(Format(Date::Of(2026, 11, 5, 9, 7), "yyyy/mm/dd hh:mm", kEnglish), "2026/11/05 09:07");
}

TEST(Date, PurgeQuestionPatternHasNoLeadingZeros) {
  EXPECT_EQ(Format(Date::Of(1998, 5, 10), "m/d/yyyy", kEnglish), "5/10/1998");
}

TEST(Date, ShortTimeFollowsTheUser) {
  const Date afternoon = Date::Of(2026, 11, 5, 14, 7);
  EXPECT_EQ(Format(afternoon, "Short Time", kEnglish), "14:07");
  platform::DateConventions american;
  american.shortTime = "h:nn AM/PM";
  EXPECT_EQ(Format(afternoon, "Short Time", american), "2:07 PM");
  EXPECT_EQ(Format(Date::Of(2026, 11, 5, 0, 7), "Short Time", american), "12:07 AM");
  EXPECT_EQ(Format(Date::Of(2026, 11, 5, 11, 59), "Short Time", american), "11:59 AM");
  EXPECT_EQ(Format(Date::Of(2026, 11, 5, 12, 0), "Short Time", american), "12:00 PM");
}

TEST(Date, MonthFirstTextsAreReadMonthFirstWhateverTheShortDate) {
  EXPECT_EQ(ParseMonthFirst("5/10/1998", German()), Date::Of(1998, 5, 10));
  EXPECT_EQ(ParseMonthFirst("January/05/1998", German()), Date::Of(1998, 1, 5));
  EXPECT_EQ(ParseMonthFirst("märz/05/1998", German()), Date::Of(1998, 3, 5));
}

TEST(Date, MonthsOfOtherLanguagesAreReadWhereTheUsersOwnHasNoSuchName) {
  const std::vector<platform::MonthNames> others{German().monthNames};
  EXPECT_EQ(ParseMonthFirst("Mai/05/1998", kEnglish, others), Date::Of(1998, 5, 5));
  EXPECT_THROW(ParseMonthFirst("Mai/05/1998", kEnglish), Error);
  platform::DateConventions croatian;
  croatian.monthNames[9] = "listopad";
  std::vector<platform::MonthNames> polish(1);
  polish[0][10] = "listopad";
  EXPECT_EQ(ParseMonthFirst("listopad/05/1998", croatian, polish), Date::Of(1998, 10, 5));
}

TEST(Date, MonthAndYearAloneMeanTheFirstOfTheMonth) {
  EXPECT_EQ(Format(ParseMonthFirst("5/98", kEnglish), "mmmm", kEnglish), "May");
}

TEST(Date, TextsThatAreNoDateFail) {
  for (const char* text : {"", "0/1/1998", "1/0/1998", "13/1/1998", "2/30/1998", "Foo/01/1998", "1998", "1/1/1/1998"})
    EXPECT_THROW(ParseMonthFirst(text, kEnglish), Error) << text;
}

TEST(Date, TimesAndYearsThatAreNoneFail) {
  EXPECT_NO_THROW(Date::Of(100, 1, 1, 0, 0, 0));
  EXPECT_NO_THROW(Date::Of(9999, 12, 31, 23, 59, 59));
  EXPECT_THROW(Date::Of(99, 12, 31), Error);
  EXPECT_THROW(Date::Of(10000, 1, 1), Error);
  for (const auto& [hour, minute, second] :
       {std::array{24, 0, 0}, {0, 60, 0}, {0, 0, 60}, {-1, 0, 0}, {0, -1, 0}, {0, 0, -1}})
    EXPECT_THROW(Date::Of(2026, 11, 21, hour, minute, second), Error) << hour << ":" << minute << ":" << second;
}

TEST(Date, AYearOfTwoDigitsIsOneOf1930To2029) {
  EXPECT_EQ(ParseMonthFirst("1/1/30", kEnglish).Year(), 1930);
  EXPECT_EQ(ParseMonthFirst("1/1/99", kEnglish).Year(), 1999);
  EXPECT_EQ(ParseMonthFirst("1/1/00", kEnglish).Year(), 2000);
  EXPECT_EQ(ParseMonthFirst("1/1/29", kEnglish).Year(), 2029);
  EXPECT_EQ(ParseMonthFirst("1/1/100", kEnglish).Year(), 100);
}

TEST(Date, AShortYearHasTwoDigits) {
  EXPECT_EQ(Format(Date::Of(2005, 1, 1), "yy", kEnglish), "05");
}

TEST(Date, AShortDateIsSplitInTheUsersOrder) {
  const DateParts american = SplitShortDate("5/10/1998", kEnglish);
  EXPECT_EQ(american.month, 5);
  EXPECT_EQ(american.day, 10);
  EXPECT_EQ(american.year, 1998);
  const DateParts german = SplitShortDate("05.10.98", German());
  EXPECT_EQ(german.month, 10);
  EXPECT_EQ(german.day, 5);
  EXPECT_EQ(german.year, 98);
}

TEST(Date, AWrittenShortDateIsSplitBackIntoItsParts) {
  for (const char* pattern : {"m/d/yyyy", "dd.mm.yyyy", "yyyy-mm-dd", "d. m. yyyy", "yyyy. mm. dd."}) {
    platform::DateConventions conventions;
    conventions.shortDate = pattern;
    const DateParts parts = SplitShortDate(Format(Date::Of(2026, 11, 7), "Short Date", conventions), conventions);
    EXPECT_EQ(parts.month, 11) << pattern;
    EXPECT_EQ(parts.day, 7) << pattern;
    EXPECT_EQ(parts.year, 2026) << pattern;
  }
}

TEST(Date, AnyDayIsReadBackFromItsFoldersNamesInAnyLanguage) {
  testing::Random random(1);
  for (int i = 0; i < kRandomDates; ++i) {
    const Date date = RandomDate(random);
    for (const auto& dates : {kEnglish, German()})
      EXPECT_EQ(ParseMonthFirst(Format(date, "mmmm/dd/yyyy", dates), dates), date.Midnight())
          << Format(date, "yyyy-mm-dd", dates);
  }
}

TEST(Date, AnyDayIsReadBackFromAnyShortDate) {
  testing::Random random(2);
  for (const char* pattern : {"m/d/yyyy", "dd.mm.yyyy", "yyyy-mm-dd", "d. mmmm yyyy", "yyyy. mm. dd.",
                              "yyyy'y'm'm'd'd'", "d 'de' mmmm 'de' yyyy"}) {
    platform::DateConventions dates = German();
    dates.shortDate = pattern;
    for (int i = 0; i < kRandomDates; ++i) {
      const Date date = RandomDate(random);
      const std::string text = Format(date, "Short Date", dates);
      const DateParts parts = SplitShortDate(text, dates);
      EXPECT_EQ(Date::Of(parts.year, static_cast<unsigned>(parts.month), static_cast<unsigned>(parts.day)),
                date.Midnight())
          << text;
    }
  }
}

TEST(Date, TheOrderOfTheTextsInTheFavoritesListIsTheOrderOfTheMinutes) {
  testing::Random random(3);
  const auto text = [](const Date& date) { return Format(date, "yyyy/mm/dd hh:mm", kEnglish); };
  const auto minutes = [](const Date& date) { return (date.SecondsSinceDayZero() - date.Second()) / 60; };
  Date before = RandomDate(random);
  for (int i = 0; i < kRandomDates; ++i) {
    const Date date = RandomDate(random);
    EXPECT_EQ(text(before) < text(date), minutes(before) < minutes(date)) << text(before) << " and " << text(date);
    before = date;
  }
}

TEST(Date, ADayNumberOfDaysLaterAndThatManyEarlierIsTheSameMoment) {
  testing::Random random(4);
  for (int i = 0; i < kRandomDates; ++i) {
    const Date date = RandomDate(random);
    const std::int64_t days = random.Below(100000) - 50000;
    const Date moved = date.AddDays(days);
    EXPECT_EQ(moved.AddDays(-days), date);
    EXPECT_EQ(moved.Hour() * 3600 + moved.Minute() * 60 + moved.Second(),
              date.Hour() * 3600 + date.Minute() * 60 + date.Second());
  }
}

TEST(Date, ATextInApostrophesIsLiteral) {
  const Date day = Date::Of(2026, 11, 7, 14, 3);
  EXPECT_EQ(Format(day, "hh 'h' nn", kEnglish), "14 h 03");
  EXPECT_EQ(Format(day, "d 'de' m 'of 'yyyy", kEnglish), "7 de 11 of 2026");
}

TEST(Date, TwoApostrophesAreOne) {
  EXPECT_EQ(Format(Date::Of(2026, 11, 7), "d''yy", kEnglish), "7'26");
}

TEST(Date, AnApostropheThatIsNeverClosedQuotesTheRest) {
  EXPECT_EQ(Format(Date::Of(2026, 11, 7), "d 'dmy", kEnglish), "7 dmy");
}

TEST(Date, QuotedLettersAreNoFieldsOfAShortDate) {
  platform::DateConventions conventions;
  conventions.shortDate = "'day' d 'de' m 'my' yyyy";
  const DateParts parts = SplitShortDate("day 7 de 11 my 2026", conventions);
  EXPECT_EQ(parts.day, 7);
  EXPECT_EQ(parts.month, 11);
  EXPECT_EQ(parts.year, 2026);
}

TEST(Date, DaysCountAcrossMonthsAndKeepTheTime) {
  EXPECT_EQ(Date::Of(2026, 3, 1, 10, 0).AddDays(-1), Date::Of(2026, 2, 28, 10, 0));
}

TEST(UsableConventions, MonthNamesThatCanNameNoFolderAreTheEnglishOnes) {
  for (const char* name : {"", ".mai", "a/b", "a\\b", "\"mai\"", " mai"}) {
    platform::DateConventions conventions;
    conventions.monthNames[4] = name;
    EXPECT_EQ(Usable(conventions).monthNames, kEnglish.monthNames) << name;
  }
}

TEST(UsableConventions, MonthsOfOneNameAreTheEnglishOnes) {
  platform::DateConventions conventions;
  conventions.monthNames[5] = "MAY";
  EXPECT_EQ(Usable(conventions).monthNames, kEnglish.monthNames);
}

TEST(UsableConventions, SoundConventionsStayAsTheyAre) {
  platform::DateConventions conventions;
  conventions.monthNames[0] = "J\xC3\xA4nner";
  conventions.shortDate = "dd.mm.yy";
  conventions.shortTime = "h:nn AM/PM";
  const auto usable = Usable(conventions);
  EXPECT_EQ(usable.monthNames, conventions.monthNames);
  EXPECT_EQ(usable.shortDate, conventions.shortDate);
  EXPECT_EQ(usable.shortTime, conventions.shortTime);
}

TEST(UsableConventions, AShortDateThatIsNotReadBackIsInternational) {
  for (const char* pattern : {"", "dd.mm.", "d", "m/m/yyyy", "d/m/d"}) {
    platform::DateConventions conventions;
    conventions.shortDate = pattern;
    EXPECT_EQ(Usable(conventions).shortDate, "yyyy-mm-dd") << pattern;
  }
}

TEST(UsableConventions, AShortTimeNeedsHoursAndMinutes) {
  for (const char* pattern : {"", "h", "nn", "AM/PM"}) {
    platform::DateConventions conventions;
    conventions.shortTime = pattern;
    EXPECT_EQ(Usable(conventions).shortTime, "hh:nn") << pattern;
  }
}

}  // namespace
}  // namespace dayvane
