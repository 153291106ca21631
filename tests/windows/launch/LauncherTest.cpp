// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "base/Text.h"
#include "platform/Shell.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/windows/RegistryTree.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"
#include "windows/launch/Launcher.h"

namespace dayvane::launch {
namespace {

using enum platform::OpenResult;
using ::testing::HasSubstr;
using testing::ReadFile;

using ChangeHandle = files::Handle<&FindCloseChangeNotification>;

constexpr const char* kCommandShell = "C:\\windows\\system32\\cmd.exe";

/// Documents ".dayvane-note", which a program opens that writes into its working folder what it was asked to open.
class LauncherTest : public ::testing::Test {
 protected:
  LauncherTest() {
    m_extension.SetText("", "", "Dayvane.Note");
    m_note.SetText("", "", "Note");
    m_note.SetText("shell\\open\\command", "", std::string(kCommandShell) + " /c echo %1> opened.txt");
  }

  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }

  /// What a program writes into a file, once it has.
  std::string Arrives(const std::string& name) {
    constexpr DWORD kChanges = FILE_NOTIFY_CHANGE_FILE_NAME | FILE_NOTIFY_CHANGE_SIZE | FILE_NOTIFY_CHANGE_LAST_WRITE;
    constexpr DWORD kLongest = 20000;
    const auto native = files::ToNative(m_folder.Path()).value();
    const ChangeHandle changes(FindFirstChangeNotificationW(native.c_str(), FALSE, kChanges));
    for (;;) {
      const bool isThere = std::filesystem::exists(testing::PathOf(m_folder / name));
      const std::string text = isThere ? ReadFile(m_folder / name) : "";
      if (text.ends_with('\n')) return std::string(text::Trim(text.substr(0, text.find('\r'))));
      if (WaitForSingleObject(changes.Get(), kLongest) != WAIT_OBJECT_0) return "nothing came";
      FindNextChangeNotification(changes.Get());
    }
  }

  testing::TemporaryFolder m_folder;
  testing::ClassTree m_extension{".dayvane-note"};
  testing::ClassTree m_note{"Dayvane.Note"};
};

TEST_F(LauncherTest, ADocumentIsOpenedWithItsProgramInItsWorkingFolder) {
  m_folder.Write("\u0391 note.dayvane-note", "");
  m_folder.Write("work/a", "");
  EXPECT_GT(Open(Path("\u0391 note.dayvane-note"), m_folder.Path(), SW_SHOWNORMAL), 32);
  EXPECT_THAT(Arrives("opened.txt"), HasSubstr("note.dayvane-note"));
}

TEST_F(LauncherTest, TheWorkingFolderOfAProgramIsTheFolderThatItLiesIn) {
  m_folder.Write("note.dayvane-note", "");
  EXPECT_GT(Open(Path("note.dayvane-note"), Path("note.dayvane-note"), SW_SHOWNORMAL), 32);
  EXPECT_THAT(Arrives("opened.txt"), HasSubstr("note.dayvane-note"));
}

TEST_F(LauncherTest, WhatIsNotThereIsToldAsThat) {
  EXPECT_EQ(Open(Path("gone.dayvane-note"), "", SW_SHOWNORMAL), kSeFileNotFound);
  EXPECT_EQ(Open(Path("gone\\gone.dayvane-note"), "", SW_SHOWNORMAL), kSePathNotFound);
  EXPECT_EQ(Open("Q:\\gone.dayvane-note", "", SW_SHOWNORMAL), kSePathNotFound);
}

TEST_F(LauncherTest, ADocumentThatNoProgramOpensIsToldAsThat) {
  m_folder.Write("a.dayvane-nobody", "");
  EXPECT_EQ(Open(Path("a.dayvane-nobody"), m_folder.Path(), SW_SHOWNORMAL), kSeNoAssociation);
}

TEST_F(LauncherTest, AWorkingFolderThatIsGoneDoesNotCount) {
  m_note.SetText("shell\\open\\command", "",
                 std::string(kCommandShell) + " /c echo yes> \"" + Path("opened.txt") + "\"");
  m_folder.Write("note.dayvane-note", "");
  EXPECT_GT(Open(Path("note.dayvane-note"), Path("gone"), SW_SHOWNORMAL), 32);
  EXPECT_EQ(Arrives("opened.txt"), "yes");
}

TEST_F(LauncherTest, WhatIsNoPathIsNotLookedForAmongPrograms) {
  for (const char* target : {"", "cmd.exe", "cmd", "..\\a.doc", "C:a.doc"})
    EXPECT_EQ(Open(target, m_folder.Path(), SW_SHOWNORMAL), kSePathNotFound) << target;
}

TEST_F(LauncherTest, APathThatTheShellWouldTakeForAnothersIsNotOpened) {
  m_folder.Write("note.dayvane-note", "");
  const auto native = files::ToNative(Path("note.dayvane-note.")).value();
  files::FileHandle(CreateFileW(native.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr)).CloseNow();
  const int result = Open(Path("note.dayvane-note."), m_folder.Path(), SW_SHOWNORMAL);
  EXPECT_TRUE(result == kSeAssociationIncomplete || result == kSeNoAssociation) << result;
  DeleteFileW(native.c_str());
}

TEST_F(LauncherTest, ACommandLineIsRun) {
  launch::Run(std::string(kCommandShell) + " /c echo yes> \"" + Path("ran.txt") + "\"");
  EXPECT_EQ(Arrives("ran.txt"), "yes");
}

TEST_F(LauncherTest, ACommandLineOfNoProgramIsAnError) {
  EXPECT_THROW(launch::Run(Path("gone") + "\\EXPLORER.EXE /n," + m_folder.Path()), Error);
  EXPECT_THROW(launch::Run("\xFF"), Error);
}

TEST_F(LauncherTest, TheExplorerIsShownAFoldersPathAsItIsAndTheFolderOfAFile) {
  m_folder.Write("prog.exe", "");
  for (const std::string explorer : {"C:\\windows\\EXPLORER.EXE /n,/e,/root,", "C:\\windows\\EXPLORER.EXE /n,"}) {
    EXPECT_EQ(ForFolder(explorer + m_folder.Path()), explorer + m_folder.Path());
    EXPECT_EQ(ForFolder(explorer + Path("prog.exe")), explorer + m_folder.Path());
    EXPECT_EQ(ForFolder(explorer + Path("gone")), explorer + Path("gone"));
    EXPECT_EQ(ForFolder(explorer + "\\\\nobody-there\\share\\a"), explorer + "\\\\nobody-there\\share\\a");
  }
  EXPECT_EQ(ForFolder("notepad.exe"), "notepad.exe");
}

}  // namespace
}  // namespace dayvane::launch
