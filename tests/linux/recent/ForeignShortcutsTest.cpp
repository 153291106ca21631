// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "linux/recent/ForeignShortcuts.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

/// A Recent folder of which nothing is remembered.
struct UnknownFolder {
  UnknownFolder() : disk(folder / "Recent", folder / "state"), foreign(disk) {}

  void See() {
    foreign.Clear();
    for (const FolderItem& item : disk.List()) foreign.Add(item);
  }

  testing::TemporaryFolder folder;
  RecentDisk disk;
  ForeignShortcuts foreign;
};

TEST(ForeignShortcuts, AShortcutIsAdoptedOnceByItsBytes) {
  UnknownFolder recent;
  recent.folder.Write("Recent/Report.odt.lnk", "to the report");
  recent.See();
  EXPECT_EQ(recent.foreign.Adopt("to another document"), std::nullopt);
  const auto adopted = recent.foreign.Adopt("to the report");
  ASSERT_TRUE(adopted.has_value());
  EXPECT_EQ(adopted->name, "Report.odt.lnk");
  EXPECT_TRUE(recent.foreign.IsEmpty());
  EXPECT_EQ(recent.foreign.Adopt("to the report"), std::nullopt);
}

TEST(ForeignShortcuts, ANameIsTakenInAnyLetterCaseUntilItsShortcutIsAdopted) {
  UnknownFolder recent;
  recent.folder.Write("Recent/Report.odt.lnk", "to the report");
  recent.See();
  EXPECT_TRUE(recent.foreign.Has("REPORT.ODT.lnk"));
  recent.foreign.Adopt("to the report");
  EXPECT_FALSE(recent.foreign.Has("REPORT.ODT.lnk"));
}

TEST(ForeignShortcuts, OnlyAShortcutOfOurSizeIsAdopted) {
  UnknownFolder recent;
  recent.folder.Write("Recent/notes.txt", "notes");
  recent.folder.Write("Recent/huge.lnk", std::string(100'000, 'x'));
  std::filesystem::create_directory(recent.folder / "Recent/folder.lnk");
  recent.See();
  EXPECT_FALSE(recent.foreign.IsEmpty());
  EXPECT_FALSE(recent.foreign.HasShortcuts());
}

TEST(ForeignShortcuts, WhatIsSeenAnewIsReadAnew) {
  UnknownFolder recent;
  recent.See();
  EXPECT_FALSE(recent.foreign.HasShortcuts());
  recent.folder.Write("Recent/Report.odt.lnk", "to the report");
  recent.See();
  EXPECT_TRUE(recent.foreign.HasShortcuts());
}

}  // namespace
}  // namespace dayvane::recent
