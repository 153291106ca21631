// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "base/Error.h"
#include "linux/files/NativeFile.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::files {
namespace {

TEST(NativeFile, AFileWhoseNameTheProgramCannotSpellIsReached) {
  const testing::TemporaryFolder folder;
  const std::string file = folder / "a\xFF\\\"b";
  ReplaceFile(file, "text");
  EXPECT_EQ(files::ReadFile(file, 100).bytes, "text");
  EXPECT_EQ(StatusOf(file)->size, 4U);
  const auto entries = ListFolder(folder.Native());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].name, "a\xFF\\\"b");
  DeleteFile(file);
  EXPECT_EQ(StatusOf(file), std::nullopt);
}

TEST(NativeFile, AnErrorIsAboutTheNativePathUnlessTheProgramHasItsOwn) {
  const auto pathOfError = [](const Place& place) -> std::string {
    try {
      DeleteFile(place);
    } catch (const Error& error) {
      return error.Path();
    }
    return "no error";
  };
  const testing::TemporaryFolder folder;
  EXPECT_EQ(pathOfError(folder / "missing"), folder / "missing");
  EXPECT_EQ(pathOfError({folder / "missing", "Z:\\missing"}), "Z:\\missing");
}

}  // namespace
}  // namespace dayvane::files
