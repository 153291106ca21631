// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "fs/DirectoryWalker.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane {
namespace {

TEST(DirectoryWalkerDiskTest, AFolderThatCannotBeReadIsAnErrorForTheCaller) {
  const testing::TemporaryFolder folder;
  folder.Write("closed/1.lnk", "");
  std::filesystem::permissions(folder.Native(), std::filesystem::perms(0755));
  std::filesystem::permissions(folder / "closed", std::filesystem::perms::none);
  testing::TestFiles files;
  DirectoryWalker walker(files);
  const testing::UnprivilegedUser user;
  EXPECT_THROW(walker.WalkDirectoryTree(folder.Path() + "\\", "*.lnk"), Error);
}

}  // namespace
}  // namespace dayvane
