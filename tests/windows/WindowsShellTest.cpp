// SPDX-License-Identifier: MIT
#include <algorithm>
#include <gmock/gmock.h>

#include "app/IgnoreErrors.h"
#include "base/Error.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/windows/RecentDocuments.h"
#include "windows/WindowsFileSystem.h"
#include "windows/WindowsShell.h"

namespace dayvane {
namespace {

using ::testing::EndsWith;
using ::testing::IsEmpty;

/// Shortcuts that a test puts into the user's Recent folder, gone when it ends.
class WindowsShellTest : public ::testing::Test {
 protected:
  ~WindowsShellTest() override {
    for (const std::string& shortcut : m_added) IgnoreErrors([&] { m_files.Delete(shortcut); });
  }

  /// Returns the name of the shortcut.
  std::string Add(const std::string& document, std::optional<std::int64_t> written = {}) {
    const std::string shortcut = testing::AddRecentDocument(document, written);
    if (std::find(m_added.begin(), m_added.end(), shortcut) == m_added.end()) m_added.push_back(shortcut);
    return shortcut.substr(shortcut.rfind('\\') + 1);
  }
  platform::ReadLink Read(const std::string& name) {
    return m_shell.ReadShellLink(m_shell.SpecialFolderPath(platform::kRecentFolder) + "\\" + name);
  }

  std::vector<std::string> m_added;
  std::vector<std::string> m_events;
  files::WindowsFileSystem m_files;
  WindowsShell m_shell{m_files, [this](const std::string& event) { m_events.push_back(event); }};
};

TEST_F(WindowsShellTest, DocumentsThatTheShellRecordedAreFoundInTheRecentFolderWithTheirMoments) {
  const std::string name = Add("C:\\Docs\\Dayvane test \u0391 \u6587.odt", 1763647407);
  EXPECT_EQ(Read(name).link.target, "C:\\Docs\\Dayvane test \u0391 \u6587.odt");
  EXPECT_EQ(Read(name).written.nanoseconds, 1763647407 * std::int64_t{1000000000});
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(WindowsShellTest, TwoDocumentsOfOneNameHaveTwoShortcutsAndOneOpenedAgainHasOne) {
  EXPECT_EQ(Add("C:\\d1\\Dayvane test.doc"), "Dayvane test.doc.lnk");
  EXPECT_EQ(Add("C:\\d2\\Dayvane test.doc"), "Dayvane test.doc (2).lnk");
  EXPECT_EQ(Add("c:\\D1\\Dayvane test.doc"), "Dayvane test.doc.lnk");
  EXPECT_EQ(Read("Dayvane test.doc (2).lnk").link.target, "C:\\d2\\Dayvane test.doc");
}

TEST_F(WindowsShellTest, SpecialFoldersHaveNoSeparatorAtTheirEnd) {
  EXPECT_THAT(m_shell.SpecialFolderPath(platform::kRecentFolder), EndsWith("Recent"));
  EXPECT_EQ(m_shell.SpecialFolderPath(CSIDL_WINDOWS), m_shell.WindowsFolder());
}

TEST_F(WindowsShellTest, AFolderThatTheShellDoesNotHaveIsAnError) {
  for (const int number : {-1, CSIDL_DRIVES, 0x3F, 256 + CSIDL_WINDOWS, CSIDL_WINDOWS | CSIDL_FLAG_CREATE}) try {
      m_shell.SpecialFolderPath(number);
      ADD_FAILURE() << number;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), kPathNotFound);
    }
}

TEST_F(WindowsShellTest, PathsAreShownAsTheyAre) {
  for (const std::string path : {"C:\\Docs\\a.doc", "\\\\server\\share\\a.doc", "c:\\docs", "", "\\\\?"})
    EXPECT_EQ(m_shell.DisplayPath(path), path);
  EXPECT_EQ(m_shell.DisplayPath("\\\\?\\C:\\Docs\\a.doc"), "C:\\Docs\\a.doc");
  EXPECT_EQ(m_shell.DisplayPath("\\\\?\\UNC\\server\\share\\a.doc"), "\\\\server\\share\\a.doc");
}

}  // namespace
}  // namespace dayvane
