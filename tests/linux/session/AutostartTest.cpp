// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gio/gdesktopappinfo.h>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/glib/GlibHandles.h"
#include "linux/session/Autostart.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::session {
namespace {

namespace fs = std::filesystem;
using dayvane::testing::ReadFile;
using dayvane::testing::TemporaryFolder;
using ::testing::HasSubstr;
using ::testing::UnorderedElementsAre;

constexpr const char* kEntry = "autostart/example.dayvane.Dayvane.desktop";

std::string EntryOf(const std::string& command, const std::string& more = {}) {
  return "[Desktop Entry]\nType=Application\nName=Something\nExec=" + command + "\n" + more;
}

/// A user's configuration folder without a folder for what starts with the session.
class AutostartTest : public ::testing::Test {
 protected:
  std::vector<std::string> Entries() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(m_folder / "autostart")) names.push_back(entry.path().filename());
    return names;
  }
  Autostart For(const std::string& program) { return {m_files, m_folder / "autostart", program}; }

  TemporaryFolder m_folder;
  files::LinuxFileSystem m_files;
  Autostart m_autostart = For("/usr/bin/dayvane");
};

TEST_F(AutostartTest, NothingStartsWithTheSessionBeforeTheUserSaysSo) {
  EXPECT_FALSE(m_autostart.IsOn());
}

TEST_F(AutostartTest, TheEntryIsMadeWithItsFolderAndGoesAgain) {
  m_autostart.TurnOn();
  EXPECT_TRUE(m_autostart.IsOn());
  EXPECT_THAT(Entries(), UnorderedElementsAre("example.dayvane.Dayvane.desktop"));

  m_autostart.TurnOff();
  EXPECT_FALSE(m_autostart.IsOn());
  EXPECT_THAT(Entries(), UnorderedElementsAre());
}

TEST_F(AutostartTest, ADesktopReadsTheProgramsPathWhateverItsCharacters) {
  const std::string program = m_folder.Write("an \"odd\" `place` of $HOME\\/dayvane", "#!/bin/sh\n");
  fs::permissions(program, fs::perms(0755));
  For(program).TurnOn();

  const glib::Object<GDesktopAppInfo> entry(g_desktop_app_info_new_from_filename((m_folder / kEntry).c_str()));
  ASSERT_TRUE(entry);
  const glib::Text key(g_desktop_app_info_get_string(entry.get(), "TryExec"));
  EXPECT_EQ(std::string(key.get()), program);
  EXPECT_TRUE(For(program).IsOn());
}

TEST_F(AutostartTest, AnEntryThatADesktopsSettingsCopiedCounts) {
  m_folder.Write(kEntry, EntryOf("dayvane"));

  EXPECT_TRUE(m_autostart.IsOn());
}

TEST_F(AutostartTest, AnEntryThatADesktopSwitchedOffDoesNotCountAndIsSwitchedOnAgain) {
  for (const char* off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
    m_folder.Write(kEntry, EntryOf("dayvane", off));
    EXPECT_FALSE(m_autostart.IsOn()) << off;

    m_autostart.TurnOn();
    EXPECT_TRUE(m_autostart.IsOn()) << off;
  }
}

TEST_F(AutostartTest, AnotherProgramsEntryIsNeitherWrittenNorRemoved) {
  for (const std::string& foreign : {EntryOf("/usr/bin/other --with dayvane.ini"), std::string("no entry at all"),
                                     std::string(100000, 'x'), std::string()}) {
    m_folder.Write(kEntry, foreign);
    EXPECT_THROW(m_autostart.TurnOn(), Error);
    m_autostart.TurnOff();
    EXPECT_EQ(ReadFile(m_folder / kEntry), foreign);
  }
}

TEST_F(AutostartTest, AFolderInTheWayIsLeftAlone) {
  m_folder.Write(std::string(kEntry) + "/something", "");

  EXPECT_THROW(m_autostart.TurnOn(), Error);
  m_autostart.TurnOff();

  EXPECT_TRUE(fs::exists(m_folder / (std::string(kEntry) + "/something")));
}

TEST_F(AutostartTest, AnEntryThatTheUserKeepsElsewhereStaysALink) {
  m_folder.Write("dotfiles/entry", EntryOf("dayvane", "Hidden=true\n"));
  fs::create_directories(m_folder / "autostart");
  fs::create_symlink(m_folder / "dotfiles/entry", m_folder / kEntry);

  m_autostart.TurnOn();

  EXPECT_TRUE(fs::is_symlink(m_folder / kEntry));
  EXPECT_TRUE(m_autostart.IsOn());
  EXPECT_THAT(ReadFile(m_folder / "dotfiles/entry"), HasSubstr("/usr/bin/dayvane"));

  m_autostart.TurnOff();
  EXPECT_FALSE(fs::is_symlink(m_folder / kEntry));
  EXPECT_TRUE(fs::exists(m_folder / "dotfiles/entry"));
}

TEST_F(AutostartTest, EntriesOfOldNamesBecomeOneThatStartsWhatTheyDid) {
  for (const char* old : {"autostart/dayvane.desktop", "autostart/dayvane-autostart.desktop"}) {
    m_folder.Write(old, EntryOf("env LANG=de_DE.UTF-8 /opt/dayvane/bin/dayvane"));

    m_autostart.TakeOverOldNames();

    EXPECT_THAT(Entries(), UnorderedElementsAre("example.dayvane.Dayvane.desktop")) << old;
    EXPECT_THAT(ReadFile(m_folder / kEntry), HasSubstr("/opt/dayvane/bin/dayvane"));
    m_autostart.TurnOff();
  }
}

TEST_F(AutostartTest, AnEntryThatIsThereAlreadyIsKeptWhereOldOnesGo) {
  m_folder.Write(kEntry, EntryOf("/home/ana/dayvane"));
  m_folder.Write("autostart/dayvane.desktop", EntryOf("dayvane"));

  m_autostart.TakeOverOldNames();

  EXPECT_THAT(Entries(), UnorderedElementsAre("example.dayvane.Dayvane.desktop"));
  EXPECT_THAT(ReadFile(m_folder / kEntry), HasSubstr("/home/ana/dayvane"));
}

TEST_F(AutostartTest, OldNamesOfOthersAndThoseSwitchedOffStay) {
  m_folder.Write("autostart/dayvane.desktop", EntryOf("dayvane", "Hidden=true\n"));
  m_folder.Write("autostart/dayvane-autostart.desktop", EntryOf("other"));

  m_autostart.TakeOverOldNames();

  EXPECT_THAT(Entries(), UnorderedElementsAre("dayvane.desktop", "dayvane-autostart.desktop"));
  EXPECT_FALSE(m_autostart.IsOn());
}

TEST_F(AutostartTest, WhoTurnsItOffIsRidOfTheOldNamesToo) {
  m_folder.Write("autostart/dayvane.desktop", EntryOf("dayvane"));

  m_autostart.TurnOff();

  EXPECT_THAT(Entries(), UnorderedElementsAre());
}

TEST_F(AutostartTest, ALinkInACircleIsToldAndLeftAlone) {
  fs::create_directories(m_folder / "autostart");
  fs::create_symlink(m_folder / kEntry, m_folder / kEntry);

  EXPECT_THROW(m_autostart.TurnOn(), Error);
  EXPECT_TRUE(fs::is_symlink(m_folder / kEntry));
}

}  // namespace
}  // namespace dayvane::session
