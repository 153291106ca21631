// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/MonthLanguages.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::settings {
namespace {

using platform::MonthNames;
using ::testing::ElementsAre;
using ::testing::Pair;

const MonthNames kEnglish = platform::DateConventions().monthNames;
const MonthNames kGerman{"Januar", "Februar", "März",      "April",   "Mai",      "Juni",
                         "Juli",   "August",  "September", "Oktober", "November", "Dezember"};
constexpr const char* kEnglishText =
    "January/February/March/April/May/June/July/August/September/October/November/December";
constexpr const char* kGermanText =
    "Januar/Februar/März/April/Mai/Juni/Juli/August/September/Oktober/November/Dezember";

class MonthLanguagesTest : public ::testing::Test {
 protected:
  std::map<std::string, std::string>& Stored() { return registry.Settings("Month Names"); }
  testing::TestRegistry registry;
};

TEST_F(MonthLanguagesTest, TheFirstRunRemembersTheUsersLanguage) {
  EXPECT_THAT(RememberMonthNames(registry, kGerman), ElementsAre(kGerman));
  EXPECT_THAT(Stored(), ElementsAre(Pair("1", kGermanText)));
}

TEST_F(MonthLanguagesTest, EveryLanguageIsRememberedOnce) {
  for (const MonthNames& names : {kGerman, kEnglish, kGerman}) RememberMonthNames(registry, names);
  EXPECT_THAT(RememberMonthNames(registry, kEnglish), ElementsAre(kGerman, kEnglish));
  EXPECT_THAT(Stored(), ElementsAre(Pair("1", kGermanText), Pair("2", kEnglishText)));
}

TEST_F(MonthLanguagesTest, ATextThatIsNotTwelveNamesIsNoLanguage) {
  Stored() = {{"1", "Januar/Februar"},
              {"2", std::string(kEnglishText) + "/Undecimber"},
              {"3", "//////////////"},
              {"4", ""},
              {"5", kGermanText}};
  EXPECT_THAT(RememberMonthNames(registry, kEnglish), ElementsAre(kGerman, kEnglish));
  EXPECT_EQ(Stored()["6"], kEnglishText);
}

TEST_F(MonthLanguagesTest, SettingsThatCannotBeStoredAreNoError) {
  registry.refusesValues = true;
  EXPECT_THAT(RememberMonthNames(registry, kGerman), ElementsAre(kGerman));
  registry.unwritable = "\\HKEY_CURRENT_USER\\Software";
  EXPECT_THAT(RememberMonthNames(registry, kEnglish), ElementsAre(kEnglish));
}

}  // namespace
}  // namespace dayvane::settings
