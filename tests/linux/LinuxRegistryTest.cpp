// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "linux/LinuxRegistry.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane {
namespace {

using dayvane::testing::ReadFile;
using dayvane::testing::TemporaryFolder;
using platform::kHkeyCurrentUser;
using platform::kKeyExists;
using platform::kRegistryString;

constexpr const char* kOptionsPath = "\\HKEY_CURRENT_USER\\Software\\Korvath\\Dayvane\\Options";

class LinuxRegistryTest : public ::testing::Test {
 protected:
  LinuxRegistryTest() : m_registry(m_folder / "dayvane.ini", [](const std::string&) {}) {}

  /// Makes the key of the options as the program does: level by level, whatever is there already.
  void MakeOptions() {
    auto key = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
    for (const char* name : {"Korvath", "Dayvane", "Options"}) {
      key->AddSubKey(name);
      key = key->OpenSubKey(name);
    }
  }

  TemporaryFolder m_folder;
  LinuxRegistry m_registry;
};

template <class Action>
int NumberOfError(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

TEST_F(LinuxRegistryTest, AFirstRunFindsSoftwareAndNothingElse) {
  EXPECT_NO_THROW(m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software"));
  EXPECT_EQ(NumberOfError([&] { m_registry.KeyFromPath(kOptionsPath); }), kKeyMissing);
}

TEST_F(LinuxRegistryTest, AKeyJustAddedCanBeOpenedWhileItIsEmpty) {
  MakeOptions();
  EXPECT_NO_THROW(m_registry.KeyFromPath(kOptionsPath));
}

TEST_F(LinuxRegistryTest, AddingAKeyThatIsThereSaysSo) {
  MakeOptions();
  auto software = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
  EXPECT_EQ(NumberOfError([&] { software->AddSubKey("Korvath"); }), kKeyExists);
  EXPECT_EQ(NumberOfError([&] { software->AddSubKey("KORVATH"); }), kKeyExists);
}

TEST_F(LinuxRegistryTest, AKeyNameIsOneLevel) {
  auto software = m_registry.KeyFromRoot(kHkeyCurrentUser)->OpenSubKey("Software");
  for (const char* name : {"", "a\\b", "a\nb", "a[b", "a]b"})
    EXPECT_EQ(NumberOfError([&] { software->AddSubKey(name); }), kInvalidProcedureCall) << name;
}

TEST_F(LinuxRegistryTest, ValuesAreStoredAsTheyAreGiven) {
  MakeOptions();
  m_registry.KeyFromPath(kOptionsPath)->AddValue("Favorites Threshold", "3", kRegistryString);
  EXPECT_EQ(m_registry.KeyFromPath(kOptionsPath)->Value("Favorites Threshold"), "3");
  EXPECT_EQ(ReadFile(m_folder / "dayvane.ini"), "[Software\\Korvath\\Dayvane\\Options]\nFavorites Threshold=3\n");
}

TEST_F(LinuxRegistryTest, AValueThatExistsTakesANewText) {
  MakeOptions();
  auto key = m_registry.KeyFromPath(kOptionsPath);
  key->AddValue("Purge Age", "30", kRegistryString);
  key->SetValue("Purge Age", "31");
  EXPECT_EQ(m_registry.KeyFromPath(kOptionsPath)->Value("Purge Age"), "31");
}

TEST_F(LinuxRegistryTest, AddingAValueAgainGivesItTheText) {
  MakeOptions();
  auto key = m_registry.KeyFromPath(kOptionsPath);
  key->AddValue("Purge Age", "abc", kRegistryString);
  key->AddValue("Purge Age", "30", kRegistryString);
  EXPECT_EQ(key->Value("Purge Age"), "30");
}

TEST_F(LinuxRegistryTest, AMissingValueIsNeitherReadNorSet) {
  MakeOptions();
  auto key = m_registry.KeyFromPath(kOptionsPath);
  EXPECT_EQ(NumberOfError([&] { key->Value("Purge Age"); }), kKeyMissing);
  EXPECT_EQ(NumberOfError([&] { key->SetValue("Purge Age", "30"); }), kKeyMissing);
  EXPECT_FALSE(std::filesystem::exists(m_folder / "dayvane.ini"));
}

TEST_F(LinuxRegistryTest, SettingsSurviveARestart) {
  MakeOptions();
  m_registry.KeyFromPath(kOptionsPath)->AddValue("Purge Age", "30", kRegistryString);
  LinuxRegistry later(m_folder / "dayvane.ini", [](const std::string&) {});
  EXPECT_EQ(later.KeyFromPath(kOptionsPath)->Value("Purge Age"), "30");
}

TEST_F(LinuxRegistryTest, PathsAreTheSameWhateverTheirCase) {
  MakeOptions();
  EXPECT_NO_THROW(m_registry.KeyFromPath("\\hkey_current_user\\SOFTWARE\\korvath\\DAYVANE\\options\\"));
}

TEST_F(LinuxRegistryTest, OtherRootsDoNotExist) {
  for (const char* path : {"", "\\", "\\HKEY_LOCAL_MACHINE\\Software", "\\HKEY_CURRENT_USERS\\Software", "Software"})
    EXPECT_EQ(NumberOfError([&] { m_registry.KeyFromPath(path); }), kKeyMissing) << path;
  EXPECT_EQ(NumberOfError([&] { m_registry.KeyFromRoot(0x80000002U); }), kKeyMissing);
}

TEST_F(LinuxRegistryTest, ADocumentClassIsTheDefaultValueOfItsKey) {
  EXPECT_EQ(m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\.LETTER")->Value(""), "application/x-letter");
  auto type = m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\application/x-letter");
  EXPECT_EQ(type->Value(""), "Letter");
  EXPECT_EQ(type->OpenSubKey("DefaultIcon")->Value(""), "application-x-letter,0");
}

TEST_F(LinuxRegistryTest, AnUnknownDocumentClassIsAMissingKey) {
  EXPECT_EQ(NumberOfError([&] { m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\.NOBODY-KNOWS"); }), kKeyMissing);
  EXPECT_EQ(NumberOfError([&] { m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\.LETTER")->Value("PerceivedType"); }),
            kKeyMissing);
}

TEST_F(LinuxRegistryTest, DocumentClassesAreReadOnly) {
  auto key = m_registry.KeyFromPath("\\HKEY_CLASSES_ROOT\\.LETTER");
  EXPECT_EQ(NumberOfError([&] { key->SetValue("", "text"); }), kPermissionDenied);
  EXPECT_EQ(NumberOfError([&] { key->AddValue("new", "text", kRegistryString); }), kPermissionDenied);
  EXPECT_EQ(NumberOfError([&] { key->AddSubKey("shell"); }), kPermissionDenied);
}

TEST_F(LinuxRegistryTest, TheSettingsFileIsInTheUsersConfigurationFolder) {
  EXPECT_EQ(DefaultSettingsFile(), dayvane::testing::desktop::Folder() + "/config/dayvane/dayvane.ini");
}

}  // namespace
}  // namespace dayvane
