// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "linux/LinuxShellIcons.h"
#include "linux/files/NativePath.h"
#include "tests/linux/MainLoop.h"
#include "tests/linux/PrivateDesktop.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

namespace privateDesktop = dayvane::testing::desktop;
using dayvane::testing::MainLoopRunsUntil;
using ::testing::Contains;
using ::testing::Not;

constexpr std::uint32_t kArchive = 32;
constexpr std::uint32_t kDirectory = 16;
constexpr std::uint32_t kSmallIconOfAttributes = 0x111;

class LinuxShellIconsTest : public ::testing::Test {
 protected:
  /// The first icon that is tried for a file of this name in a day's folder.
  std::string IconOf(const std::string& name, std::uint32_t attributes = kArchive) {
    const auto names = IconsOf(name, attributes);
    return names.empty() ? "none" : names[0];
  }
  std::vector<std::string> IconsOf(const std::string& name, std::uint32_t attributes = kArchive) {
    return icons.FileInfo(PathOf(name), attributes, kSmallIconOfAttributes)->icon->iconNames;
  }
  std::string PathOf(const std::string& name) const { return desktop.Folder() + "\\" + name; }

  void Write(const std::string& name, const platform::ShellLink& link) const {
    testing::WriteShortcut(desktop.NativeFolder() + "/" + name, link, "2026-11-21 09:15:00");
  }
  void WriteDocument(const std::string& name, const std::string& target) const {
    platform::ShellLink link;
    link.target = target;
    Write(name, link);
  }
  /// As the program files one beside a document that it opens.
  void WriteProgram(const std::string& name, const std::string& nativeProgram) const {
    platform::ShellLink link;
    link.target = files::FromNative(nativeProgram).value();
    link.workingDirectory = link.target;
    Write(name, link);
  }

  testing::TestDesktop desktop;
  LinuxShellIcons icons{desktop.shell};
};

TEST_F(LinuxShellIconsTest, ADocumentHasTheIconOfItsType) {
  EXPECT_EQ(IconOf("Note.letter.lnk"), "application-x-letter");
}

TEST_F(LinuxShellIconsTest, ADocumentWhoseEndingFitsSeveralTypesHasTheIconOfTheLikeliest) {
  EXPECT_EQ(IconOf("Page.both.lnk"), "application-x-first");
}

TEST_F(LinuxShellIconsTest, ADocumentOfUnknownTypeDoesNotLookLikeAProgram) {
  for (const std::string name : {"Todo", "Page.nobody-knows"}) {
    WriteDocument(name + ".lnk", "Z:\\home\\ana\\" + name);
    EXPECT_EQ(IconOf(name + ".lnk"), "application-octet-stream") << name;
    EXPECT_THAT(IconsOf(name + ".lnk"), Not(Contains("application-x-executable"))) << name;
  }
}

TEST_F(LinuxShellIconsTest, AProgramHasTheIconOfItsApplication) {
  WriteProgram("Letter-writer.lnk", privateDesktop::Program("letter-writer"));
  EXPECT_EQ(IconOf("Letter-writer.lnk"), "letters");
  EXPECT_THAT(IconsOf("Letter-writer.lnk"), Contains("application-x-executable")) << "where the theme has no other";
}

TEST_F(LinuxShellIconsTest, AProgramWithAnEndingHasTheIconOfItsApplicationToo) {
  WriteProgram("Paint.sketch.lnk", privateDesktop::Program("paint.sketch"));
  EXPECT_EQ(IconOf("Paint.sketch.lnk"), "/opt/paint/paint.png");
}

TEST_F(LinuxShellIconsTest, ADocumentThatIsCalledLikeAProgramKeepsItsOwnIcon) {
  WriteDocument("Letter-writer.lnk", "Z:\\home\\ana\\Letter-writer");
  WriteDocument("paint.sketch.lnk", "Z:\\home\\ana\\paint.sketch");
  EXPECT_EQ(IconOf("Letter-writer.lnk"), "application-octet-stream");
  EXPECT_EQ(IconOf("paint.sketch.lnk"), "application-x-sketch");
}

TEST_F(LinuxShellIconsTest, AProgramOfNoApplicationStillLooksLikeAProgram) {
  WriteProgram("Tool.lnk", "/opt/tool/tool");
  EXPECT_EQ(IconOf("Tool.lnk"), "application-x-executable");
}

TEST_F(LinuxShellIconsTest, AnApplicationWithoutAPictureLooksLikeAProgram) {
  WriteProgram("Sketcher.lnk", privateDesktop::Program("sketcher"));
  EXPECT_EQ(IconOf("Sketcher.lnk"), "application-x-executable");
}

TEST_F(LinuxShellIconsTest, AProgramThatIsInstalledLaterIsNoticed) {
  const std::string program = desktop.folder.Write("bin/new-tool", "#!/bin/sh\n");
  std::filesystem::permissions(program, std::filesystem::perms(0755));
  WriteProgram("New-tool.lnk", program);
  ASSERT_EQ(IconOf("New-tool.lnk"), "application-x-executable");
  const std::string entry = privateDesktop::Applications() + "/new-tool.desktop";
  std::ofstream(entry) << "[Desktop Entry]\nType=Application\nName=New\nExec=" << program << "\nIcon=new-tool\n";
  EXPECT_TRUE(MainLoopRunsUntil([&] { return IconOf("New-tool.lnk") == "new-tool"; }));
  std::filesystem::remove(entry);
}

TEST_F(LinuxShellIconsTest, AFolderHasAFoldersIcon) {
  EXPECT_EQ(IconOf("Harbour", kDirectory), "inode-directory");
  EXPECT_EQ(IconOf("Harbour.lnk", kDirectory), "inode-directory");
}

TEST_F(LinuxShellIconsTest, AShortcutToAFolderHasAFoldersIconThoughTheFolderIsNotLookedAt) {
  platform::ShellLink link;
  link.target = "Z:\\nowhere\\Harbour";
  link.targetIsFolder = true;
  Write("Harbour.lnk", link);
  EXPECT_EQ(IconOf("Harbour.lnk"), "inode-directory");
}

TEST_F(LinuxShellIconsTest, WhatCannotBeReadHasTheIconOfItsName) {
  desktop.folder.Write("program/Broken.lnk", "not a shortcut");
  std::filesystem::create_directory(desktop.NativeFolder() + "/Folder.lnk");
  for (const char* name : {"Gone.lnk", "Broken.lnk", "Folder.lnk", "Note", ".lnk", ""})
    EXPECT_EQ(IconOf(name), "application-octet-stream") << name;
}

/// Counts the shortcuts that are read.
class CountingShell : public testing::TestShell {
 public:
  using TestShell::TestShell;
  platform::ReadLink ReadShellLink(const std::string& path) override {
    ++read;
    return TestShell::ReadShellLink(path);
  }
  int read = 0;
};

TEST_F(LinuxShellIconsTest, NoShortcutIsReadWhoseNameSaysEnough) {
  CountingShell shell(desktop.files, desktop.Folder());
  LinuxShellIcons countingIcons(shell);
  WriteDocument("Note.letter.lnk", "Z:\\home\\ana\\Note.letter");
  countingIcons.FileInfo(PathOf("Note.letter.lnk"), kArchive, kSmallIconOfAttributes);
  EXPECT_EQ(shell.read, 0);
}

}  // namespace
}  // namespace dayvane
