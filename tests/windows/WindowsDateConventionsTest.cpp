// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "app/Date.h"
#include "windows/WindowsDateConventions.h"

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

TEST(WindowsDateConventions, ADateIsWrittenAsTheUsersLanguageHasIt) {
  const auto german = DateConventionsOf(L"de-DE");
  EXPECT_EQ(german.monthNames[2], "M\u00e4rz");
  EXPECT_EQ(Format(Date::Of(2026, 11, 7), "Short Date", german), "07.11.2026");
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
