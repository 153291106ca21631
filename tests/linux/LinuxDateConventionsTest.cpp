// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <set>

#include "app/Date.h"
#include "base/Text.h"
#include "linux/LinuxDateConventions.h"

namespace dayvane {
namespace {

using platform::DateConventions;

DateConventions Of(const char* locale) {
  return DateConventionsOf(QLocale(QLatin1String(locale)));
}

QList<QLocale> AllLocales() {
  return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

TEST(LinuxDateConventions, MonthNamesStandAlone) {
  EXPECT_EQ(Of("de_DE").monthNames[2], "März");
  EXPECT_EQ(Of("ru_RU").monthNames[0], "январь");
  EXPECT_EQ(Of("en_GB").monthNames[11], "December");
}

TEST(LinuxDateConventions, ShortDatesAreTheUsers) {
  EXPECT_EQ(Of("en_US").shortDate, "m/d/yy");
  EXPECT_EQ(Of("en_GB").shortDate, "dd/mm/yyyy");
  EXPECT_EQ(Of("de_DE").shortDate, "dd.mm.yy");
  EXPECT_EQ(Of("hu_HU").shortDate, "yyyy. mm. dd.");
  EXPECT_EQ(Of("ko_KR").shortDate, "yy. m. d.");
  EXPECT_EQ(Of("zh_CN").shortDate, "yyyy/m/d");
  EXPECT_EQ(Of("bg_BG").shortDate, "d.mm.yy г.");
}

TEST(LinuxDateConventions, ShortTimesAreTheUsers) {
  EXPECT_EQ(Of("en_US").shortTime, "h:nn AM/PM");
  EXPECT_EQ(Of("de_DE").shortTime, "hh:nn");
  EXPECT_EQ(Of("fr_CA").shortTime, "hh 'h' nn");
  EXPECT_EQ(Of("fi_FI").shortTime, "h.nn");
}

TEST(LinuxDateConventions, ATimeIsWrittenAsTheUserReadsIt) {
  const Date afternoon = Date::Of(2026, 11, 7, 14, 3);
  EXPECT_EQ(Format(afternoon, "Short Time", Of("en_US")), "2:03 PM");
  EXPECT_EQ(Format(afternoon, "Short Time", Of("fr_CA")), "14 h 03");
  EXPECT_EQ(Format(afternoon, "Short Time", Of("ko_KR")), "오후 2:03");
  EXPECT_EQ(Format(afternoon, "Short Time", Of("bg_BG")), "14:03 ч.");
}

TEST(LinuxDateConventions, TheWeekStartsOnTheUsersDay) {
  EXPECT_EQ(Of("en_US").firstDayOfWeek, 7);
  EXPECT_EQ(Of("de_DE").firstDayOfWeek, 1);
  EXPECT_EQ(Of("ar_EG").firstDayOfWeek, 6);
}

TEST(LinuxDateConventions, WithoutALanguageDatesAreInternational) {
  const DateConventions none = DateConventionsOf(QLocale::c());
  EXPECT_EQ(none.monthNames, DateConventions().monthNames);
  EXPECT_EQ(none.shortDate, "yyyy-mm-dd");
  EXPECT_EQ(none.shortTime, "hh:nn");
  EXPECT_EQ(none.firstDayOfWeek, 1);
}

TEST(LinuxDateConventions, InEveryLanguageAShortDateIsReadBackAsItWasWritten) {
  for (const QLocale& locale : AllLocales()) {
    const DateConventions conventions = DateConventionsOf(locale);
    for (unsigned month = 1; month <= 12; ++month) {
      const Date date = Date::Of(2026, month, 7 + month);
      const DateParts parts = SplitShortDate(Format(date, "Short Date", conventions), conventions);
      EXPECT_EQ(parts.month, static_cast<int>(month)) << locale.name().toStdString();
      EXPECT_EQ(parts.day, static_cast<int>(7 + month)) << locale.name().toStdString();
      EXPECT_EQ(parts.year % 100, 26) << locale.name().toStdString();
    }
  }
}

TEST(LinuxDateConventions, InEveryLanguageTheMonthFolderIsReadBackAsItWasWritten) {
  for (const QLocale& locale : AllLocales()) {
    const DateConventions conventions = DateConventionsOf(locale);
    std::set<std::string> names;
    for (unsigned month = 1; month <= 12; ++month) {
      const std::string name = Format(Date::Of(2026, month, 1), "mmmm", conventions);
      EXPECT_EQ(ParseMonthFirst(name + "/05/2026", conventions), Date::Of(2026, month, 5)) << name;
      EXPECT_EQ(name.find_first_of("/\\\""), std::string::npos) << name;
      EXPECT_NE(name[0], '.') << name;
      names.insert(text::ToLower(name));
    }
    EXPECT_EQ(names.size(), 12U) << locale.name().toStdString();
  }
}

TEST(LinuxDateConventions, InEveryLanguageHoursAndMinutesAreWrittenInPlainDigits) {
  const Date time = Date::Of(2026, 11, 7, 4, 37);
  for (const QLocale& locale : AllLocales()) {
    const std::string text = Format(time, "Short Time", DateConventionsOf(locale));
    EXPECT_NE(text.find('4'), std::string::npos) << text;
    EXPECT_NE(text.find("37"), std::string::npos) << text;
    EXPECT_EQ(text.find('\''), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace dayvane
