#include <gtest/gtest.h>

#include "app/Date.h"
#include "base/Error.h"

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
}

TEST(Date, MonthFirstTextsAreReadMonthFirstWhateverTheShortDate) {
  EXPECT_EQ(ParseMonthFirst("5/10/1998", German()), Date::Of(1998, 5, 10));
  EXPECT_EQ(ParseMonthFirst("January/05/1998", German()), Date::Of(1998, 1, 5));
  EXPECT_EQ(ParseMonthFirst("märz/05/1998", German()), Date::Of(1998, 3, 5));
}

TEST(Date, MonthAndYearAloneMeanTheFirstOfTheMonth) {
  EXPECT_EQ(Format(ParseMonthFirst("5/98", kEnglish), "mmmm", kEnglish), "May");
}

TEST(Date, TextsThatAreNoDateFail) {
  for (const char* text : {"", "0/1/1998", "1/0/1998", "13/1/1998", "2/30/1998", "Foo/01/1998", "1998", "1/1/1/1998"})
    EXPECT_THROW(ParseMonthFirst(text, kEnglish), Error) << text;
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

}  // namespace
}  // namespace dayvane
