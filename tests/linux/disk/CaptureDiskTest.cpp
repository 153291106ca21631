// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "tests/capture/CaptureFixture.h"
#include "tests/linux/disk/FullDisk.h"
#include "tests/linux/disk/UnprivilegedUser.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using testing::CaptureTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::ReadFile;

TEST_F(CaptureTest, ANamedPipeIsNoShortcut) {
  ASSERT_EQ(mkfifo((desktop.NativeRecent() + "/pipe.lnk").c_str(), 0600), 0);
  Load();
  EXPECT_FALSE(fs::exists(Daily("2026")));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, ANamedPipeWhereADocumentIsDueIsReplacedAndNeverWrittenInto) {
  desktop.folder.Write("program/Daily/2026/November/21/a.lnk", "");
  const std::string due = Daily("2026/November/21/Report.odt.lnk");
  ASSERT_EQ(mkfifo(due.c_str(), 0600), 0);
  const std::string shortcut = Open("2026-11-21 09:15:00");
  Load();
  EXPECT_EQ(ReadFile(due), ReadFile(shortcut));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(CaptureTest, AnUnreadableShortcutEndsThePollWithAReport) {
  Load();
  fs::permissions(Open("2026-11-21 09:15:00"), fs::perms::none);
  fs::permissions(desktop.folder.Native(), fs::perms::all);
  fs::permissions(desktop.NativeFolder(), fs::perms::all);
  {
    const testing::UnprivilegedUser user;
    Tick();
  }
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  EXPECT_THAT(desktop.LogLines("ErrorLog.txt")[0], HasSubstr("Permission denied"));
}

TEST_F(CaptureTest, ADiskThatFillsLeavesNoHalfFiledShortcut) {
  Load();
  Open("2026-11-21 09:15:00");
  Tick();
  const std::string before = ReadFile(Daily("2026/November/21/Report.odt.lnk"));
  Open("2026-11-21 10:00:00");
  {
    const testing::FullDisk full;
    Tick();
  }
  EXPECT_EQ(ReadFile(Daily("2026/November/21/Report.odt.lnk")), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(Daily("2026/November/21")), fs::directory_iterator()), 1);
  EXPECT_THAT(desktop.windowing.Texts(), ElementsAre("An error occurred checking for new documents."));
  window.PollRecentFolder();
  EXPECT_NE(fs::last_write_time(Daily("2026/November/21/Report.odt.lnk")), fs::file_time_type{});
  EXPECT_TRUE(window.tmrMain.Enabled());
}

}  // namespace
}  // namespace dayvane
