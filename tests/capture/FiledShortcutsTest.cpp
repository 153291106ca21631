// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gtest/gtest.h>

#include "capture/FiledShortcuts.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane {
namespace {

using testing::SetWritten;

class FiledShortcutsTest : public ::testing::Test {
 protected:
  FiledShortcutsTest() {
    for (const char* name : {"a.lnk", "copy.lnk"}) SetWritten(m_folder.Write(name, "x"), "2026-11-21 09:00:00", 700);
    m_filed.Remember(Path("a.lnk"), Path("copy.lnk"), m_files.Status(Path("a.lnk"))->written);
  }
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }

  testing::TemporaryFolder m_folder;
  testing::TestFiles m_files;
  FiledShortcuts m_filed{m_files};
};

TEST_F(FiledShortcutsTest, AShortcutThatIsFiledAsItIsNeedsNoReading) {
  EXPECT_TRUE(m_filed.IsUnchanged(Path("a.lnk")));
}

TEST_F(FiledShortcutsTest, AShortcutThatIsNotKnownDoes) {
  EXPECT_FALSE(m_filed.IsUnchanged(Path("copy.lnk")));
}

TEST_F(FiledShortcutsTest, AShortcutThatWasRewrittenDoes) {
  SetWritten(m_folder / "a.lnk", "2026-11-21 09:00:00", 800);
  EXPECT_FALSE(m_filed.IsUnchanged(Path("a.lnk")));
  m_filed.Remember(Path("a.lnk"), Path("a.lnk"), m_files.Status(Path("a.lnk"))->written);
  EXPECT_TRUE(m_filed.IsUnchanged(Path("a.lnk"))) << "the newer knowledge counts";
}

TEST_F(FiledShortcutsTest, AShortcutWhoseCopyWasPurgedOrReplacedDoes) {
  SetWritten(m_folder / "copy.lnk", "2026-11-21 09:00:00", 800);
  EXPECT_FALSE(m_filed.IsUnchanged(Path("a.lnk")));
  std::filesystem::remove(m_folder / "copy.lnk");
  EXPECT_FALSE(m_filed.IsUnchanged(Path("a.lnk")));
}

}  // namespace
}  // namespace dayvane
