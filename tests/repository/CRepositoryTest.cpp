// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "repository/CRepository.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

class CRepositoryTest : public ::testing::Test {
 protected:
  void MakeDay(const std::string& day) const { std::filesystem::create_directories(Native(day)); }
  std::string Native(const std::string& day) const { return desktop.NativeFolder() + "/Daily/" + day; }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
};

TEST_F(CRepositoryTest, TheRootFolderIsCreatedBesideTheProgram) {
  EXPECT_EQ(repository.DailyPath(), desktop.Folder() + "\\Daily");
  EXPECT_TRUE(std::filesystem::is_directory(desktop.NativeFolder() + "/Daily"));
}

TEST_F(CRepositoryTest, ARootFolderThatExistsIsNoError) {
  EXPECT_NO_THROW(CRepository{application});
}

TEST_F(CRepositoryTest, ADayFolderHasFourYearDigitsTheFullMonthNameAndTwoDayDigits) {
  EXPECT_EQ(repository.DayFolder(Date::Of(1998, 1, 5, 23, 59)), repository.DailyPath() + "\\1998\\January\\05");
}

TEST_F(CRepositoryTest, AnEmptyRepositoryHasNoLatestDay) {
  EXPECT_TRUE(repository.FindLatestDay().IsZero());
}

TEST_F(CRepositoryTest, AMissingRootFolderHasNoLatestDay) {
  std::filesystem::remove(desktop.NativeFolder() + "/Daily");
  EXPECT_TRUE(repository.FindLatestDay().IsZero());
}

TEST_F(CRepositoryTest, TheLatestDayIsFoundAcrossTheTurnOfTheYear) {
  MakeDay("1998/December/31");
  MakeDay("1999/January/02");
  desktop.clock.Set(1999, 6, 1);
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(1999, 1, 2));
}

TEST_F(CRepositoryTest, TheSearchStepsBackOverYearsWithoutDays) {
  MakeDay("1999/May/04");
  desktop.clock.Set(2001, 6, 1);
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(1999, 5, 4));
}

TEST_F(CRepositoryTest, TheLatestMonthIsTakenByTheCalendarNotByName) {
  MakeDay("2026/March/09");
  MakeDay("2026/May/01");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 1));
}

TEST_F(CRepositoryTest, TheLatestDayOfAMonthIsTaken) {
  MakeDay("2026/May/09");
  MakeDay("2026/May/10");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 10));
}

TEST_F(CRepositoryTest, ADayFolderWithoutItsLeadingZeroIsNeverFound) {
  MakeDay("2026/May/05");
  MakeDay("2026/May/7");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 5));
}

TEST_F(CRepositoryTest, AYearFolderWithoutMonthsIsAnError) {
  MakeDay("2026");
  EXPECT_THROW(repository.FindLatestDay(), Error);
}

TEST_F(CRepositoryTest, AMonthFolderWithoutDaysIsAnError) {
  MakeDay("2026/May");
  EXPECT_THROW(repository.FindLatestDay(), Error);
}

TEST_F(CRepositoryTest, MonthNamesAreTheUsersSoATreeOfAnotherLanguageIsNotFound) {
  MakeDay("2026/May/10");
  desktop.dates.monthNames[4] = "Mai";
  EXPECT_THROW(repository.FindLatestDay(), Error);
  MakeDay("2026/Mai/03");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 3));
}

TEST_F(CRepositoryTest, AFileWhereADayFolderShouldBeIsNoDay) {
  MakeDay("2026/May/03");
  desktop.folder.Write("program/Daily/2026/May/30", "");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 3));
}

}  // namespace
}  // namespace dayvane
