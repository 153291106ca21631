// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include "linux/files/NativePath.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::files {
namespace {

namespace fs = std::filesystem;

/// An environment variable with a value of the test's own.
class Variable {
 public:
  Variable(const char* name, const std::string& value) : m_name(name) {
    if (const char* before = std::getenv(name)) m_before = before;
    setenv(name, value.c_str(), 1);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() {
    if (m_before)
      setenv(m_name, m_before->c_str(), 1);
    else
      unsetenv(m_name);
  }

 private:
  const char* m_name;
  std::optional<std::string> m_before;
};

TEST(NativePath, DriveZIsTheRootOfTheFileSystem) {
  EXPECT_EQ(ToNative("Z:\\home\\ana\\Report.odt"), "/home/ana/Report.odt");
  EXPECT_EQ(ToNative("z:\\home"), "/home");
  EXPECT_EQ(ToNative("Z:\\"), "/");
  EXPECT_EQ(ToNative("Z:"), "/");
}

TEST(NativePath, ATextThatIsNoFullPathHasNoNativeForm) {
  for (const char* path :
       {"", "Z", "\\home", "home", "Z:home", "1:\\a", "[:\\a", "\xC3\x9C:\\a", "\\\\server\\share\\a", "%A%\\b"})
    EXPECT_EQ(ToNative(path), std::nullopt) << path;
}

TEST(NativePath, ANullCharacterDoesNotCutAPathShort) {
  EXPECT_EQ(ToNative(std::string_view("Z:\\a\0b", 6)), std::nullopt);
}

TEST(NativePath, ANativePathComesBackAsItWas) {
  for (const char* native :
       {"/", "/home/ana/Report.odt", "/tmp/back\\slash", "/tmp/\"quoted\"", "/tmp/two\nlines", "/tmp/a:b*c?"}) {
    const auto path = FromNative(native);
    ASSERT_TRUE(path) << native;
    EXPECT_EQ(path->find('"'), std::string::npos) << *path;
    EXPECT_EQ(ToNative(*path), native);
  }
}

TEST(NativePath, ABackslashInANameIsNoSeparator) {
  EXPECT_EQ(FromNative("/tmp/a\\b"),
            "Z:\\tmp\\a\xEF\x81\x9C"
            "b");
  EXPECT_EQ(NameFromNative("a\"b"),
            "a\xEF\x80\xA2"
            "b");
}

TEST(NativePath, APersonReadsTheCharactersThatTheStandInsStandFor) {
  for (const char* name : {"plain", "say \"yes\"", "back\\slash", "\"\\\"\\", ""})
    EXPECT_EQ(ForReading(NameFromNative(name).value()), name);
  EXPECT_EQ(ForReading("The document /a \"b\" was not found."), "The document /a \"b\" was not found.");
}

TEST(NativePath, ANameWithoutAFaithfulFormHasNone) {
  EXPECT_EQ(FromNative("/tmp/a\xFF"), std::nullopt);
  EXPECT_EQ(FromNative("/tmp/a\xEF\x81\x9C"), std::nullopt) << "it would come back as a backslash";
  EXPECT_EQ(NameFromNative("\xEF\x80\xA2"), std::nullopt) << "it would come back as a quotation mark";
  EXPECT_EQ(FromNative("relative/path"), std::nullopt);
}

TEST(NativePath, ADriveOfTheWindowsEnvironmentLeadsToItsFolder) {
  const testing::TemporaryFolder folder;
  fs::create_directories(folder / "dosdevices");
  fs::create_symlink("../drive_c", folder / "dosdevices/c:");
  fs::create_symlink("/mnt/data/", folder / "dosdevices/d:");
  fs::create_symlink("/", folder / "dosdevices/e:");
  const Variable prefix("WINEPREFIX", folder.Native());
  EXPECT_EQ(ToNative("C:\\users\\ana"), folder / "drive_c/users/ana");
  EXPECT_EQ(ToNative("d:\\a.txt"), "/mnt/data/a.txt");
  EXPECT_EQ(ToNative("E:\\a.txt"), "/a.txt");
  EXPECT_EQ(ToNative("F:\\a.txt"), std::nullopt);
}

TEST(NativePath, TheWindowsEnvironmentIsInTheHomeFolderWhereNoOtherIsNamed) {
  const testing::TemporaryFolder folder;
  fs::create_directories(folder / ".wine/dosdevices");
  fs::create_symlink("../drive_c", folder / ".wine/dosdevices/c:");
  const Variable prefix("WINEPREFIX", "");
  const Variable home("HOME", folder.Native());
  EXPECT_EQ(ToNative("C:\\a"), folder / ".wine/drive_c/a");
}

TEST(NativePath, WithoutAWindowsEnvironmentThereIsDriveZAlone) {
  const testing::TemporaryFolder folder;
  const Variable prefix("WINEPREFIX", folder.Native());
  EXPECT_EQ(ToNative("C:\\a"), std::nullopt);
  EXPECT_EQ(ToNative("Z:\\a"), "/a");
}

class ResolvedPath : public ::testing::Test {
 protected:
  std::optional<std::string> Resolve(const std::string& rest) const {
    return ResolveNative(m_folder.Path() + "\\" + rest);
  }

  testing::TemporaryFolder m_folder;
};

TEST_F(ResolvedPath, AnExactNameWins) {
  m_folder.Write("docs/report.odt", "");
  m_folder.Write("docs/Report.odt", "");
  EXPECT_EQ(Resolve("docs\\report.odt"), m_folder / "docs/report.odt");
  EXPECT_EQ(Resolve("docs\\Report.odt"), m_folder / "docs/Report.odt");
}

TEST_F(ResolvedPath, ANameIsFoundThatDiffersInLetterCaseAlone) {
  m_folder.Write(
      "My Documents/\xC3\x9C"
      "bung.odt",
      "");
  EXPECT_EQ(Resolve("my documents\\\xC3\xBC"
                    "BUNG.ODT"),
            m_folder /
                "My Documents/\xC3\x9C"
                "bung.odt");
}

TEST_F(ResolvedPath, WhatDoesNotExistKeepsItsName) {
  m_folder.Write("Docs/a.txt", "");
  EXPECT_EQ(Resolve("missing\\a.txt"), m_folder / "missing/a.txt");
  EXPECT_EQ(ResolveNative("1:\\a"), std::nullopt);
}

TEST_F(ResolvedPath, ANameWithABackslashIsFound) {
  m_folder.Write("Back\\Slash", "");
  EXPECT_EQ(Resolve("back\xEF\x81\x9C"
                    "slash"),
            m_folder / "Back\\Slash");
}

}  // namespace
}  // namespace dayvane::files
