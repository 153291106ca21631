// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "windows/WindowsFileSystem.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"
#include "windows/files/UnfinishedFile.h"

namespace dayvane::files {
namespace {

namespace fs = std::filesystem;
using platform::EntryKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;

class WindowsFileSystemTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }
  std::wstring Native(const std::string& name) const { return ToNative(Path(name)).value(); }

  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : m_files.List(m_folder.Path())) names.push_back(entry.name);
    return names;
  }

  /// Opens a file as another program would that shares it so.
  FileHandle OpenedByAnother(const std::string& name, DWORD sharing) const {
    return FileHandle(CreateFileW(Native(name).c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr));
  }

  testing::TemporaryFolder m_folder;
  WindowsFileSystem m_files;
};

/// The number of the Error that an action fails with; 0 when it does not fail. The error must be about `path`.
template <class Action>
int NumberOfError(const std::string& path, Action action) {
  try {
    action();
  } catch (const Error& error) {
    EXPECT_EQ(error.Path(), path);
    EXPECT_NE(error.Description(), "");
    return error.Number();
  }
  return 0;
}

TEST_F(WindowsFileSystemTest, ReplacingLeavesNoOtherFileBehind) {
  m_files.Replace(Path("a.dat"), "old and longer");
  m_files.Replace(Path("a.dat"), "new");
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "new");
  EXPECT_THAT(Names(), ElementsAre("a.dat"));
}

TEST_F(WindowsFileSystemTest, NamesOfAnyScriptAreListedReadAndDeleted) {
  const std::string name = "\u0391\u03bb\u03c6\u03b1 \u6587\u66f8 \U0001F4C4.lnk";
  m_files.Replace(Path(name), "bytes");
  EXPECT_THAT(Names(), ElementsAre(name));
  EXPECT_EQ(m_files.Read(Path(name), 100).bytes, "bytes");
  m_files.Delete(Path(name));
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(WindowsFileSystemTest, AFolderDeeperThanOldProgramsReachIsOneLikeAnyOther) {
  std::string folder = m_folder.Path();
  for (int i = 0; i < 4; ++i) m_files.CreateFolder(folder += "\\" + std::string(100, 'x'));
  m_files.Replace(folder + "\\a.dat", "bytes");
  EXPECT_EQ(m_files.Read(folder + "\\a.dat", 100).bytes, "bytes");
  EXPECT_EQ(m_files.List(folder).size(), 1U);
}

TEST_F(WindowsFileSystemTest, AFileThatMustNotBeWrittenIsReplacedAndDeletedAllTheSame) {
  for (const char* name : {"replaced.lnk", "deleted.lnk"}) {
    m_folder.Write(name, "old");
    SetFileAttributesW(Native(name).c_str(), FILE_ATTRIBUTE_READONLY);
  }
  m_files.Replace(Path("replaced.lnk"), "new");
  EXPECT_EQ(ReadFile(m_folder / "replaced.lnk"), "new");
  m_files.Delete(Path("deleted.lnk"));
  EXPECT_THAT(Names(), ElementsAre("replaced.lnk"));
}

TEST_F(WindowsFileSystemTest, AFileThatAnotherProgramKeepsForItselfIsToldWithItsPathAndLeftWhole) {
  m_folder.Write("a.dat", "old");
  const FileHandle another = OpenedByAnother("a.dat", 0);
  ASSERT_TRUE(another.IsOpen());
  EXPECT_EQ(NumberOfError(Path("a.dat"), [&] { m_files.Read(Path("a.dat"), 100); }), kPermissionDenied);
  EXPECT_EQ(NumberOfError(Path("a.dat"), [&] { m_files.Replace(Path("a.dat"), "new"); }), kPermissionDenied);
  EXPECT_EQ(NumberOfError(Path("a.dat"), [&] { m_files.Delete(Path("a.dat")); }), kPermissionDenied);
  EXPECT_THAT(Names(), ElementsAre("a.dat"));
}

TEST_F(WindowsFileSystemTest, ACopyKeepsTheMomentThatItsSourceWasWritten) {
  testing::SetWritten(m_folder.Write("a.lnk", "bytes"), "2026-11-20 14:03:27", 987'654'300);
  m_files.Copy(Path("a.lnk"), Path("b.lnk"));
  EXPECT_EQ(ReadFile(m_folder / "b.lnk"), "bytes");
  EXPECT_EQ(m_files.Status(Path("b.lnk"))->written.nanoseconds % 1'000'000'000, 987'654'300);
  EXPECT_EQ(m_files.Status(Path("b.lnk"))->written, m_files.Status(Path("a.lnk"))->written);
}

TEST_F(WindowsFileSystemTest, WhatAKillLeftUnfinishedIsHiddenAndReusedAndGoesWithItsFolder) {
  m_files.CreateFolder(Path("day"));
  m_folder.Write("day/" + std::string(kUnfinishedNameText), "half");
  EXPECT_TRUE(m_files.List(Path("day")).at(0).hidden);
  m_files.Replace(Path("day\\a.lnk"), "new");
  EXPECT_EQ(m_files.List(Path("day")).size(), 1U);
  m_files.Delete(Path("day\\a.lnk"));
  m_folder.Write("day/" + std::string(kUnfinishedNameText), "half");
  m_files.RemoveFolder(Path("day"));
  EXPECT_THAT(Names(), IsEmpty());
}

TEST_F(WindowsFileSystemTest, AFileIsHiddenByItsAttributeAndNotByADot) {
  m_folder.Write(".a", "");
  m_folder.Write("b", "");
  testing::Hide(m_folder / "b");
  const auto entries = m_files.List(m_folder.Path());
  EXPECT_FALSE(entries.at(0).hidden);
  EXPECT_TRUE(entries.at(1).hidden);
}

TEST_F(WindowsFileSystemTest, FailuresHaveTheNumbersThatTheProgramKnows) {
  m_files.CreateFolder(Path("folder"));
  m_folder.Write("a", "");
  m_folder.Write("b", "");
  EXPECT_EQ(NumberOfError(Path("none"), [&] { m_files.Read(Path("none"), 1); }), kFileNotFound);
  EXPECT_EQ(NumberOfError(Path("none"), [&] { m_files.Delete(Path("none")); }), kFileNotFound);
  EXPECT_EQ(NumberOfError(Path("folder"), [&] { m_files.Read(Path("folder"), 1); }), kPathFileAccess);
  EXPECT_EQ(NumberOfError(Path("folder"), [&] { m_files.CreateFolder(Path("folder")); }), kFileAlreadyExists);
  EXPECT_EQ(NumberOfError(Path("b"), [&] { m_files.Rename(Path("a"), Path("b")); }), kFileAlreadyExists);
}

TEST_F(WindowsFileSystemTest, AFolderWithFilesIsNotRemoved) {
  m_files.CreateFolder(Path("day"));
  m_folder.Write("day/a.lnk", "");
  EXPECT_EQ(NumberOfError(Path("day"), [&] { m_files.RemoveFolder(Path("day")); }), kPathFileAccess);
  EXPECT_TRUE(fs::exists(m_folder / "day/a.lnk"));
}

TEST_F(WindowsFileSystemTest, NothingLiesWhereNoPathLeads) {
  EXPECT_EQ(m_files.Status(Path("none")), std::nullopt);
  EXPECT_EQ(m_files.Status(Path("a*b")), std::nullopt);
  EXPECT_EQ(m_files.Status("relative"), std::nullopt);
  EXPECT_THAT(m_files.List(Path("none")), IsEmpty());
  EXPECT_EQ(m_files.Status(m_folder.Path())->kind, EntryKind::Folder);
}

}  // namespace
}  // namespace dayvane::files
