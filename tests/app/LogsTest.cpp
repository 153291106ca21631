// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/ReportErrors.h"
#include "base/Error.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

using testing::TestDesktop;

class LogsTest : public ::testing::Test {
 protected:
  TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
};

TEST_F(LogsTest, AFailedAssertionIsAppendedToTheEventLogAndItsCallerGoesOn) {
  application.asserts.Assert(false, "FMain.GetShortcuts: Recent folder is missing");
  EXPECT_EQ(desktop.LogLines("EventLog.txt"),
            std::vector<std::string>{"2\tFMain.GetShortcuts: Recent folder is missing"});
}

TEST_F(LogsTest, AnAssertionThatHoldsWritesNothing) {
  application.asserts.Assert(true, "never seen");
  EXPECT_TRUE(desktop.LogLines("EventLog.txt").empty());
}

TEST_F(LogsTest, EntriesAreAppendedInTheOrderOfTheirCalls) {
  application.eventLog.Append("first", EventKind::Information);
  application.eventLog.Append("second", EventKind::Warning);
  EXPECT_EQ(desktop.LogLines("EventLog.txt"), (std::vector<std::string>{"1\tfirst", "3\tsecond"}));
}

TEST_F(LogsTest, AnEntryStaysOnOneLineWhateverItsText) {
  application.eventLog.Append("a\r\nb\tc\\d", EventKind::Information);
  EXPECT_EQ(desktop.LogLines("EventLog.txt"), std::vector<std::string>{"1\ta\\r\\nb\\tc\\\\d"});
}

TEST_F(LogsTest, AnEntryBearsTheUsersDateAndTime) {
  desktop.clock.Set(2026, 3, 4, 5, 6, 7);
  application.eventLog.Append("x", EventKind::Information);
  EXPECT_EQ(testing::ReadFile(desktop.NativeFolder() + "/EventLog.txt"), "2026-03-04 05:06:07\t1\tx\n");
}

TEST_F(LogsTest, AReportedErrorIsLoggedAndTheUserIsToldThePhrase) {
  const bool finished = ReportErrors(application, kCheckingForDocuments, "FMain", "PollRecentFolder",
                                     [] { throw Error(kPermissionDenied, "Permission denied", "Z:\\x"); });
  EXPECT_FALSE(finished);
  EXPECT_EQ(desktop.LogLines("ErrorLog.txt"),
            std::vector<std::string>{"FMain.PollRecentFolder\t70\tPermission denied: Z:\\\\x\t"
                                     "An error occurred checking for new documents."});
  ASSERT_EQ(desktop.windowing.messages.size(), 1U);
  EXPECT_EQ(desktop.windowing.messages[0].text, "An error occurred checking for new documents.");
  EXPECT_EQ(desktop.windowing.messages[0].title, "Dayvane");
}

TEST_F(LogsTest, TheRestOfAFailedProcedureIsSkipped) {
  bool reached = false;
  ReportErrors(application, kSavingSettings, "FMain", "Form_Unload", [&] {
    [] { throw Error(kDiskFull, "Disk full"); }();
    reached = true;
  });
  EXPECT_FALSE(reached);
}

TEST_F(LogsTest, ALogThatCannotBeWrittenIsNotReported) {
  std::filesystem::create_directory(desktop.NativeFolder() + "/EventLog.txt");
  EXPECT_NO_THROW(application.eventLog.Append("lost", EventKind::Information));
  EXPECT_TRUE(desktop.windowing.messages.empty());
}

}  // namespace
}  // namespace dayvane
