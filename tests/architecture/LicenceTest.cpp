// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/architecture/SourceTree.h"

namespace dayvane::testing {
namespace {

using ::testing::IsEmpty;

TEST(Licence, EverySourceFileBeginsWithIt) {
  std::vector<std::string> unlicensed;
  for (const std::string folder : {"src", "tests", "bench"})
    for (const std::string& file : FilesBelow(folder, {".h", ".cpp"}))
      if (!ProjectFile(folder + "/" + file).starts_with("// SPDX-License-Identifier: MIT\n"))
        unlicensed.push_back(folder + "/" + file);
  EXPECT_THAT(unlicensed, IsEmpty());
}

}  // namespace
}  // namespace dayvane::testing
