// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Text.h"
#include "linux/LinuxFileSystem.h"
#include "linux/LinuxShell.h"
#include "tests/linux/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane {
namespace {

class LinuxShellTest : public ::testing::Test {
 protected:
  /// The target of a link to a document of this folder once it is on the disk.
  std::string TargetOfLinkTo(const std::string& target) {
    platform::ShellLink link;
    link.target = target;
    m_shell.CreateShellLink(Path("made.lnk"), link);
    return m_shell.ReadShellLink(Path("made.lnk")).link.target;
  }
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }

  testing::TemporaryFolder m_folder;
  files::LinuxFileSystem m_files;
  LinuxShell m_shell{m_files, m_folder.Native(), [](const std::string&) {}};
};

TEST_F(LinuxShellTest, ALinkNamesItsDocumentInTheLettersThatTheDiskHas) {
  m_folder.Write("Papers/Plan.odt", "");
  EXPECT_EQ(TargetOfLinkTo(text::ToLower(Path("papers\\Plan.odt"))), Path("Papers\\Plan.odt"));
}

TEST_F(LinuxShellTest, ALinkToWhatIsNotThereStaysAsItIs) {
  EXPECT_EQ(TargetOfLinkTo(Path("gone.odt")), Path("gone.odt"));
  EXPECT_EQ(TargetOfLinkTo("Q:\\gone.odt"), "Q:\\gone.odt");
}

TEST_F(LinuxShellTest, TheFirstStartLeavesAFileInWhichTheUserCanSayWhatToLeaveOut) {
  const testing::EnvironmentVariable config("XDG_CONFIG_HOME", m_folder / "config");
  const LinuxShell shell(m_files, m_folder / "state", [](const std::string&) {});
  EXPECT_THAT(testing::ReadFile(m_folder / "config/dayvane/exclude"), ::testing::HasSubstr("#~/Downloads"));
}

TEST_F(LinuxShellTest, TheEventLogNamesThePlacesThatTellOfOpenings) {
  m_folder.Write("share/kactivitymanagerd/resources/database", "");
  m_folder.Write("config/libreoffice/4/user/registrymodifications.xcu", "");
  const testing::EnvironmentVariable config("XDG_CONFIG_HOME", m_folder / "config");
  const testing::EnvironmentVariable data("XDG_DATA_HOME", m_folder / "share");
  std::vector<std::string> events;
  LinuxShell shell(m_files, m_folder / "state", [&](const std::string& event) { events.push_back(event); });
  shell.RefreshRecentFolder();
  EXPECT_THAT(events,
              ::testing::Contains(::testing::AllOf(::testing::HasSubstr("KDE's record of activities"),
                                                   ::testing::HasSubstr("LibreOffice's list of recent documents"))));
}

TEST_F(LinuxShellTest, WhatTheUserExcludesNeverReachesTheRecentFolder) {
  m_folder.Write("config/dayvane/exclude", "/home/ana/Private\n");
  const auto bookmark = [](const std::string& path) {
    return "<bookmark href=\"file://" + path + "\" modified=\"2026-11-20T08:00:00Z\"/>";
  };
  m_folder.Write("share/recently-used.xbel",
                 "<xbel>" + bookmark("/home/ana/Private/Diary.odt") + bookmark("/home/ana/Report.odt") + "</xbel>");
  const testing::EnvironmentVariable config("XDG_CONFIG_HOME", m_folder / "config");
  const testing::EnvironmentVariable data("XDG_DATA_HOME", m_folder / "share");
  LinuxShell shell(m_files, m_folder / "state", [](const std::string&) {});
  shell.RefreshRecentFolder();
  EXPECT_TRUE(std::filesystem::exists(m_folder / "state/Recent/Report.odt.lnk"));
  EXPECT_FALSE(std::filesystem::exists(m_folder / "state/Recent/Diary.odt.lnk"));
  EXPECT_THAT(testing::ReadFile(m_folder / "state/Recent.state"), ::testing::Not(::testing::HasSubstr("Diary")));
}

TEST_F(LinuxShellTest, WhileNobodyKnowsWhatIsExcludedNothingIsRecordedAndNothingIsLost) {
  std::filesystem::create_directories(m_folder / "config/dayvane");
  std::filesystem::create_symlink(m_folder / "disk/exclude", m_folder / "config/dayvane/exclude");
  m_folder.Write("share/recently-used.xbel",
                 "<xbel>"
                 "<bookmark href=\"file:///home/ana/Private/Diary.odt\" modified=\"2026-11-20T08:00:00Z\"/>"
                 "<bookmark href=\"file:///home/ana/Report.odt\" modified=\"2026-11-20T08:00:00Z\"/>"
                 "</xbel>");
  const testing::EnvironmentVariable config("XDG_CONFIG_HOME", m_folder / "config");
  const testing::EnvironmentVariable data("XDG_DATA_HOME", m_folder / "share");
  LinuxShell shell(m_files, m_folder / "state", [](const std::string&) {});
  for (int poll = 0; poll < 3; ++poll) shell.RefreshRecentFolder();
  EXPECT_FALSE(std::filesystem::exists(m_folder / "state/Recent/Report.odt.lnk"));
  EXPECT_FALSE(std::filesystem::exists(m_folder / "state/Recent/Diary.odt.lnk"));
  m_folder.Write("disk/exclude", "/home/ana/Private\n");  // the disk that has the user's settings is there
  shell.RefreshRecentFolder();
  EXPECT_TRUE(std::filesystem::exists(m_folder / "state/Recent/Report.odt.lnk"));
  EXPECT_FALSE(std::filesystem::exists(m_folder / "state/Recent/Diary.odt.lnk"));
}

}  // namespace
}  // namespace dayvane
