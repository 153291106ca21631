// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/MDayvane.h"
#include "base/Error.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

class PathToDateTest : public ::testing::Test {
 protected:
  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
};

TEST_F(PathToDateTest, ADayFoldersPathIsItsDateWhateverTheOrderOfDayAndMonth) {
  for (const char* order : {"m/d/yyyy", "dd.mm.yyyy", "yyyy-mm-dd"}) {
    desktop.dates.shortDate = order;
    EXPECT_EQ(PathToDate(application, "C:\\Dayvane\\Daily\\1998\\January\\05"), Date::Of(1998, 1, 5)) << order;
  }
}

TEST_F(PathToDateTest, AMonthInTheUsersLanguageIsRead) {
  desktop.dates.monthNames[4] = "Mai";
  EXPECT_EQ(PathToDate(application, "C:\\Daily\\2026\\Mai\\05"), Date::Of(2026, 5, 5));
}

TEST_F(PathToDateTest, APathWithTooFewPartsFails) {
  EXPECT_THROW(PathToDate(application, "January\\05"), Error);
}

TEST_F(PathToDateTest, PartsThatFormNoDateFail) {
  EXPECT_THROW(PathToDate(application, "C:\\Daily\\1998\\January\\32"), Error);
}

TEST_F(PathToDateTest, AnEmptyPathIsLoggedUnderTheNameItHasAlwaysHad) {
  EXPECT_THROW(PathToDate(application, "  "), Error);
  EXPECT_EQ(desktop.LogLines("EventLog.txt"),
            std::vector<std::string>{"2\tMDayvane.DailyImageListIndex: Path is missing"});
}

}  // namespace
}  // namespace dayvane
