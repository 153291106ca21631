// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "app/Date.h"
#include "windows/WindowsDateConventions.h"
#include "windows/files/WideText.h"
#include "windows/files/Win32.h"

namespace dayvane {
namespace {

TEST(WindowsDateConventions, TheSystemsPatternsBecomeTheProgramsOwn) {
  EXPECT_EQ(ShortDatePattern(L"M/d/yyyy"), "m/d/yyyy");
  EXPECT_EQ(ShortDatePattern(L"dd.MM.yy"), "dd.mm.yy");
  EXPECT_EQ(ShortDatePattern(L"d 'de' M 'de' yyyy"), "d 'de' m 'de' yyyy");
  EXPECT_EQ(ShortTimePattern(L"h:mm tt"), "h:nn AM/PM");
  EXPECT_EQ(ShortTimePattern(L"HH:mm:ss"), "hh:nn");
}

TEST(WindowsDateConventions, AFieldThatTheProgramHasNoFormForLeavesNoPattern) {
  EXPECT_EQ(ShortDatePattern(L"dd-MMM-yyyy"), "");
  EXPECT_EQ(ShortDatePattern(L"ggy.M.d"), "");
}

/// As the system itself writes the day.
std::string WrittenBySystem(const wchar_t* localeName, WORD year, WORD month, WORD day) {
  const SYSTEMTIME date{year, month, 0, day, 0, 0, 0, 0};
  wchar_t text[80] = L"";
  GetDateFormatEx(localeName, DATE_SHORTDATE, &date, nullptr, text, static_cast<int>(std::size(text)), nullptr);
  return files::FromWide(text).value();
}

TEST(WindowsDateConventions, ADateIsWrittenAsTheSystemWritesIt) {
  for (const wchar_t* name : {L"de-DE", L"en-US", L"en-GB", L"fr-FR", L"el-GR", L"ja-JP", L"nl-NL"})
    EXPECT_EQ(Format(Date::Of(2026, 11, 7), "Short Date", DateConventionsOf(name)), WrittenBySystem(name, 2026, 11, 7));
}

TEST(WindowsDateConventions, MonthsAndWeeksAreThoseOfTheUsersLanguage) {
  const auto german = DateConventionsOf(L"de-DE");
  EXPECT_EQ(german.monthNames[2], "M\u00e4rz");
  EXPECT_EQ(german.firstDayOfWeek, 1);
  EXPECT_EQ(DateConventionsOf(L"en-US").firstDayOfWeek, 7);
}

TEST(WindowsDateConventions, ALanguageThatTheSystemDoesNotKnowIsWrittenSoThatItIsReadBack) {
  const auto unknown = DateConventionsOf(L"no-such-language");
  EXPECT_EQ(unknown.monthNames[0], "January");
  EXPECT_EQ(Format(Date::Of(2026, 11, 7), "Short Date", unknown), "2026-11-07");
}

}  // namespace
}  // namespace dayvane
