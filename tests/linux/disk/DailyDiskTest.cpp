// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/MainWindow.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using testing::TextsOf;

class DailyDiskTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  DailyDiskTest() {
    desktop.registry.keys["\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options"]["Purge Age"] = "3650";
  }
};

TEST_F(DailyDiskTest, AnUnreadableFolderIsALeafAndIsLogged) {
  File("2025/May/05", "Z:\\a.odt", "2025-05-05 10:00:00");
  File("2026/May/05", "Z:\\a.odt", "2026-05-05 10:00:00");
  Load();
  fs::permissions(desktop.folder.Native(), fs::perms::all);
  fs::permissions(desktop.NativeFolder(), fs::perms::all);
  fs::permissions(Daily("2025"), fs::perms::none);
  {
    const testing::UnprivilegedUser user;
    window.RefreshDaily();
  }
  EXPECT_THAT(TextsOf(window.tvwMain), Contains("   05"));
  EXPECT_THAT(TextsOf(window.tvwMain), Contains(" 2025"));
  EXPECT_EQ(desktop.LogLines("EventLog.txt").size(), 1U);
}

}  // namespace
}  // namespace dayvane
