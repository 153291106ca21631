// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/support/MainWindow.h"
#include "tests/support/System.h"
#include "views/NewestLink.h"

namespace dayvane {
namespace {

class NewestLinkTest : public ::testing::Test, protected testing::MainWindow {
 protected:
  NewestLinkTest() {
    File("2026/November/19", "Z:\\a.odt", "2026-11-19 10:00:00");
    File("2026/November/20", "Z:\\b.odt", "2026-11-20 10:00:00");
  }
  std::string Find(const std::string& document, std::size_t most = kMostLinksSearched) {
    return NewestLinkTo(application, repository.DailyPath(), document, most);
  }
};

TEST_F(NewestLinkTest, NoMoreLinksAreReadThanTheLimit) {
  EXPECT_EQ(Find("Z:\\a.odt", 1), "");
  EXPECT_EQ(Find("Z:\\a.odt", 2), repository.DailyPath() + "\\2026\\November\\19\\a.odt.lnk");
}

TEST_F(NewestLinkTest, ADocumentThatWasNeverFiledHasNone) {
  EXPECT_EQ(Find("Z:\\c.odt"), "");
}

TEST_F(NewestLinkTest, WhatIsNoDayIsPassedOver) {
  desktop.folder.Write("program/Daily/zzz.txt", "");
  desktop.folder.Write("program/Daily/2026/zzz.txt", "");
  desktop.folder.Write("program/Daily/2026/November/99", "");
  EXPECT_EQ(Find("z:\\B.ODT"), repository.DailyPath() + "\\2026\\November\\20\\b.odt.lnk");
}

TEST_F(NewestLinkTest, ARecordThatLiesOnAnotherDiskBehindALinkIsSearched) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  std::filesystem::rename(desktop.NativeFolder() + "/Daily", desktop.folder / "disk");
  testing::MakeFolderLink(desktop.folder / "disk", desktop.NativeFolder() + "/Daily");
  EXPECT_EQ(Find("Z:\\a.odt"), repository.DailyPath() + "\\2026\\November\\19\\a.odt.lnk");
}

}  // namespace
}  // namespace dayvane
