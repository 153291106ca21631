// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/Text.h"
#include "linux/LinuxFileSystem.h"
#include "linux/LinuxShell.h"
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

}  // namespace
}  // namespace dayvane
