// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "tests/architecture/SourceTree.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::testing {
namespace {

using ::testing::IsEmpty;

/// A build without a desktop, or for another system, leaves that desktop's tests out on purpose.
bool IsMeantToRun(const std::string& file) {
  if (file.starts_with("windows/")) return DAYVANE_IS_WINDOWS != 0;
  return DAYVANE_HAS_DESKTOP != 0 ||
         (!file.starts_with("linux/") && !file.starts_with("faults/") && !file.starts_with("session/") &&
          !file.starts_with("programs/") && !file.starts_with("packages/") && !file.starts_with("scripts/"));
}

/// The test files with the ending that are meant to run and that the text does not name.
std::vector<std::string> NotNamedIn(const std::string& text, const std::string& ending) {
  std::vector<std::string> forgotten;
  for (const std::string& file : FilesBelow("tests", {ending}))
    if (IsMeantToRun(file) && text.find("/tests/" + file + "\"") == std::string::npos) forgotten.push_back(file);
  return forgotten;
}

/// The texts of the build's own files for the tests that end so.
std::string BuildFiles(const std::string& ending) {
  std::string texts;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(DAYVANE_BUILD_FOLDER "/tests"))
    if (entry.path().string().ends_with(ending)) texts += ReadFile(entry.path().string());
  return texts;
}

TEST(Registered, EveryTestFileIsCompiled) {
  const std::string oneByOne = ReadFile(DAYVANE_BUILD_FOLDER "/compile_commands.json");
  EXPECT_THAT(NotNamedIn(oneByOne + BuildFiles("_cxx.cxx"), "Test.cpp"), IsEmpty());
}

TEST(Registered, EveryScriptedTestIsRun) {
  // "FooTest.py" where it tests the program, "foo_test.py" where it tests a script of that name.
  EXPECT_THAT(NotNamedIn(BuildFiles("/CTestTestfile.cmake"), "est.py"), IsEmpty());
}

}  // namespace
}  // namespace dayvane::testing
