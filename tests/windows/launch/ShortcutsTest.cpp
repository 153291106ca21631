// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <random>
#include <thread>

#include "base/Error.h"
#include "links/ShellLinkFormat.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"
#include "tests/windows/RecentDocuments.h"
#include "windows/files/Handle.h"
#include "windows/files/NativePath.h"
#include "windows/launch/ShellsLinks.h"
#include "windows/launch/Shortcuts.h"
#include "windows/launch/SpecialFolders.h"

namespace dayvane::launch {
namespace {

using platform::ShellLink;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;
using ::testing::SizeIs;

ShellLink LinkTo(const std::string& target) {
  ShellLink link;
  link.target = target;
  return link;
}

/// Does something where there is no shell: on a thread that has not asked for its objects.
template <class Action>
void WithoutShell(Action action) {
  std::thread(action).join();
}

class ShortcutsTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }
  std::string TargetOfFile(const std::string& name) { return m_shortcuts.Read(Path(name)).link.target; }

  /// What a link reads as after it was written.
  ShellLink Written(const ShellLink& link) {
    m_shortcuts.Write(Path("written.lnk"), link);
    return m_shortcuts.Read(Path("written.lnk")).link;
  }
  /// A link that the shell has made to a document.
  std::string Saved(const std::string& document) {
    testing::SaveShellsLink(document, Path("saved.lnk"));
    return TargetOfFile("saved.lnk");
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(testing::PathOf(m_folder.Native())))
      names.push_back(entry.path().filename().string());
    return names;
  }

  testing::TemporaryFolder m_folder;
  testing::TestFiles m_files;
  std::vector<std::string> m_events;
  Shortcuts m_shortcuts{m_files, [this](const std::string& event) { m_events.push_back(event); }};
};

TEST_F(ShortcutsTest, ALinkThatTheShellMadeLeadsToItsDocument) {
  for (const std::string& document :
       {std::string("C:\\Docs\\Report.odt"), std::string("C:\\Docs\\No extension"), std::string("Q:\\gone\\a.doc"),
        std::string("\\\\nobody-there\\share\\a.doc"), std::string("C:\\windows"), std::string("C:\\a")})
    EXPECT_EQ(Saved(document), document);
}

TEST_F(ShortcutsTest, NamesOutsideTheCodePageAreWhole) {
  for (const std::string document :
       {"C:\\Docs\\\u0391\u03bb\u03c6\u03b1.odt", "C:\\\u6587\u66f8\\\u0391 \u6587\u66f8 \u00e9.txt"})
    EXPECT_EQ(Saved(document), document);
}

/// A link to a file on the user's desktop, which the shell names by one item, without the folders above.
std::string LinkToDesktop(const std::string& name) {
  constexpr std::size_t kHeader = 76;
  constexpr std::size_t kItemsAbove = 20 + 25;  // this computer, the drive
  const std::string whole = links::WriteShellLink(LinkTo("C:\\" + name));
  const auto word = [](std::size_t value) {
    return std::string{static_cast<char>(value & 0xFFU), static_cast<char>(value >> 8U)};
  };
  const auto byte = [&](std::size_t at) { return static_cast<std::size_t>(static_cast<unsigned char>(whole[at])); };
  const std::size_t size = byte(kHeader) + byte(kHeader + 1) * 256;
  std::string header = whole.substr(0, kHeader);
  header[20] = '\x81';  // items and texts in Unicode, no more
  return header + word(size - kItemsAbove) + whole.substr(kHeader + 2 + kItemsAbove, size - kItemsAbove) +
         std::string(4, '\0');
}

TEST_F(ShortcutsTest, ADocumentThatIsNamedByItsPlaceInTheShellIsFoundByTheShell) {
  const std::string name = "\u0391 \u6587\u66f8.odt";
  m_folder.Write("a.lnk", LinkToDesktop(name));
  EXPECT_EQ(TargetOfFile("a.lnk"), SpecialFolder(CSIDL_DESKTOPDIRECTORY) + "\\" + name);
}

TEST_F(ShortcutsTest, WhatTheShellFoundInALinkIsRememberedUntilTheLinkChanges) {
  m_folder.Write("a.lnk", LinkToDesktop("first.odt"));
  const std::string first = TargetOfFile("a.lnk");
  int reads = 0;
  m_files.beforeRead = [&](const std::string&) { ++reads; };
  EXPECT_EQ(TargetOfFile("a.lnk"), first);
  EXPECT_EQ(reads, 1);
  m_folder.Write("a.lnk", LinkToDesktop("other.odt"));
  testing::SetWritten(m_folder / "a.lnk", "2020-01-01 00:00:00");
  EXPECT_THAT(TargetOfFile("a.lnk"), ::testing::EndsWith("\\other.odt"));
}

TEST_F(ShortcutsTest, WithoutAShellALinkIsReadAsFarAsTheProgramCan) {
  testing::SaveShellsLink("C:\\Docs\\Report.odt", Path("plain.lnk"));
  testing::SaveShellsLink("C:\\Docs\\\u6587\u66f8.odt", Path("lost.lnk"));
  WithoutShell([&] {
    EXPECT_EQ(TargetOfFile("plain.lnk"), "C:\\Docs\\Report.odt");
    EXPECT_NO_THROW(TargetOfFile("lost.lnk"));
  });
}

TEST_F(ShortcutsTest, ALinkToNoFileLeadsNowhereAndIsNoEvent) {
  m_shortcuts.Write(Path("settings.lnk"), {});
  EXPECT_EQ(TargetOfFile("settings.lnk"), "");
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(ShortcutsTest, VariablesInATargetAreExpanded) {
  ShellLink link = LinkTo("%SystemRoot%\\notepad.exe");
  m_folder.Write("a.lnk", links::WriteShellLink(link));
  wchar_t windows[MAX_PATH];
  GetWindowsDirectoryW(windows, MAX_PATH);
  EXPECT_EQ(TargetOfFile("a.lnk"), files::FromNative(windows).value() + "\\notepad.exe");
}

TEST_F(ShortcutsTest, ATargetInTheSystemsLiteralFormIsTheSamePathWithoutIt) {
  m_folder.Write("a.lnk", links::WriteShellLink(LinkTo("\\\\?\\C:\\Docs\\a.doc")));
  EXPECT_EQ(TargetOfFile("a.lnk"), "C:\\Docs\\a.doc");
}

TEST_F(ShortcutsTest, AFileThatIsNoLinkIsEmptyAndReportedOnce) {
  m_folder.Write("empty.lnk", "");
  m_folder.Write("text.lnk", std::string(91000, 'x'));
  for (int poll = 0; poll < 2; ++poll)
    for (const char* name : {"empty.lnk", "text.lnk"}) EXPECT_EQ(m_shortcuts.Read(Path(name)).link, ShellLink{});
  EXPECT_THAT(m_events, SizeIs(2));
}

TEST_F(ShortcutsTest, TheShellIsAskedForNoPathByAListThatWasCut) {
  const std::string bytes = LinkToDesktop("a.odt");
  ASSERT_NE(PathByShell(bytes), "");
  for (std::size_t size = 0; size + 4 < bytes.size(); ++size) EXPECT_EQ(PathByShell(bytes.substr(0, size)), "") << size;
}

TEST_F(ShortcutsTest, TheShellStandsAnyBytesInALinksItems) {
  testing::SaveShellsLink("C:\\Docs\\\u6587\u66f8.odt", Path("whole.lnk"));
  std::mt19937 random(20261122);
  for (const std::string& whole : {LinkToDesktop("a.odt"), ReadFile(m_folder / "whole.lnk")})
    for (std::size_t i = 0; i < 1500; ++i) {
      std::string bytes = whole;
      for (std::size_t change = 0; change < 1 + i % 8; ++change)
        bytes[78 + random() % (bytes.size() - 78)] = static_cast<char>(random());
      PathByShell(bytes);
    }
}

TEST_F(ShortcutsTest, ALinkOfNinetyThousandBytesIsALink) {
  std::string bytes = links::WriteShellLink(LinkTo("C:\\Docs\\a.doc"));
  m_folder.Write("long.lnk", bytes + std::string(91000, '\0'));
  EXPECT_EQ(TargetOfFile("long.lnk"), "C:\\Docs\\a.doc");
}

TEST_F(ShortcutsTest, ALinkThatAnotherProgramKeepsForItselfIsAnError) {
  testing::SaveShellsLink("C:\\Docs\\a.doc", Path("a.lnk"));
  const files::FileHandle another(
      CreateFileW(files::ToNative(Path("a.lnk")).value().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  try {
    TargetOfFile("a.lnk");
    FAIL() << "nothing was reported";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kPermissionDenied);
    EXPECT_EQ(error.Path(), Path("a.lnk"));
  }
}

TEST_F(ShortcutsTest, AllThatALinkHoldsIsWritten) {
  ShellLink link = LinkTo("C:\\Docs\\Report.odt");
  link.workingDirectory = "C:\\Docs";
  link.arguments = "/a \"b c\"";
  link.iconFile = "C:\\windows\\system32\\shell32.dll";
  link.iconIndex = -3;
  link.showCommand = 7;
  EXPECT_EQ(Written(link), link);
  WithoutShell([&] { EXPECT_EQ(Written(link), link); });
}

TEST_F(ShortcutsTest, EveryTargetIsWrittenAsItWasGiven) {
  std::string deep = "C:\\deep";
  for (int i = 0; i < 30; ++i) deep += "\\folder-of-some-depth";
  for (const std::string& target :
       {std::string("C:\\PROGRA~1\\Office\\Winword.exe"), std::string("c:\\docs\\report.odt"),
        std::string("C:\\Docs\\\u0391\u03bb\u03c6\u03b1 \u6587\u66f8 \U0001F4C4.odt"), std::string("Q:\\gone\\a.doc"),
        std::string("\\\\nobody-there\\share\\a.doc"), deep, std::string("C:\\Docs\\con"),
        std::string("C:\\Docs\\Report. "), std::string("C:\\"), std::string("C:\\windows\\notepad.exe")})
    EXPECT_EQ(Written(LinkTo(target)).target, target);
}

TEST_F(ShortcutsTest, ALinkToAFolderStaysOne) {
  ShellLink link = LinkTo("C:\\no-such-folder");
  link.targetIsFolder = true;
  EXPECT_EQ(Written(link), link);
}

TEST_F(ShortcutsTest, LinksAreWrittenByTheShellsOwnWhereItKeepsWhatItIsGiven) {
  const ShellLink plain = LinkTo("C:\\windows\\notepad.exe");
  m_shortcuts.Write(Path("plain.lnk"), plain);
  EXPECT_EQ(ReadFile(m_folder / "plain.lnk"), WriteByShell(plain));
  EXPECT_NE(ReadFile(m_folder / "plain.lnk"), links::WriteShellLink(plain));
}

TEST_F(ShortcutsTest, TheDiskOfATargetInTheNetworkIsNotAskedInWriting) {
  const ShellLink link = LinkTo("\\\\nobody-there\\share\\a.doc");
  m_shortcuts.Write(Path("a.lnk"), link);
  EXPECT_EQ(ReadFile(m_folder / "a.lnk"), links::WriteShellLink(link));
}

TEST_F(ShortcutsTest, ALinkReplacesAnyFileThatWasThereAndLeavesNoOther) {
  m_folder.Write("a.lnk", "no link");
  SetFileAttributesW(files::ToNative(Path("a.lnk")).value().c_str(), FILE_ATTRIBUTE_READONLY);
  m_shortcuts.Write(Path("a.lnk"), LinkTo("C:\\Docs\\a.doc"));
  EXPECT_EQ(TargetOfFile("a.lnk"), "C:\\Docs\\a.doc");
  EXPECT_THAT(Names(), ElementsAre("a.lnk"));
}

TEST_F(ShortcutsTest, WhereNoLinkCanBeWrittenNothingChanges) {
  m_folder.Write("a.lnk/inside", "");
  EXPECT_THROW(m_shortcuts.Write(Path("a.lnk"), LinkTo("C:\\Docs\\a.doc")), Error);
  EXPECT_THROW(m_shortcuts.Write(Path("gone\\a.lnk"), LinkTo("C:\\Docs\\a.doc")), Error);
  EXPECT_THAT(Names(), ElementsAre("a.lnk"));
}

TEST_F(ShortcutsTest, ALinkMayHaveTheNameOfADeviceAndLieDeep) {
  const std::string deep = std::string(120, 'd') + "\\" + std::string(120, 'e');
  std::filesystem::create_directories(
      testing::PathOf(m_folder / (std::string(120, 'd') + "/" + std::string(120, 'e'))));
  for (const std::string& name : {std::string("con.lnk"), deep + "\\a.lnk"}) {
    m_shortcuts.Write(Path(name), LinkTo("C:\\Docs\\a.doc"));
    EXPECT_EQ(TargetOfFile(name), "C:\\Docs\\a.doc") << name;
    m_files.Delete(Path(name));  // by its own name, which the test's library takes for the device's
  }
}

}  // namespace
}  // namespace dayvane::launch
