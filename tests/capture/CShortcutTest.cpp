// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "capture/CShortcut.h"
#include "tests/support/System.h"
#include "tests/support/TestDesktop.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

/// A shell whose texts come in buffers that are longer than they.
class PaddingShell : public testing::TestShell {
 public:
  using TestShell::TestShell;
  platform::ReadLink ReadShellLink(const std::string& path) override {
    platform::ReadLink read = TestShell::ReadShellLink(path);
    for (std::string* text : {&read.link.target, &read.link.workingDirectory, &read.link.iconFile})
      text->append(" \0left over", 11);
    return read;
  }
};

class CShortcutTest : public ::testing::Test {
 protected:
  /// Reads a shortcut of this name with these contents, written on 5 January 2026.
  void Read(const platform::ShellLink& link, const std::string& name = "Report.odt.lnk") {
    testing::WriteShortcut(desktop.NativeFolder() + "/" + name, link, "2026-01-05 14:03:27");
    shortcut.SetFile(desktop.Folder() + "\\" + name);
  }
  void ReadTarget(const std::string& target) {
    platform::ShellLink link;
    link.target = target;
    Read(link);
  }

  /// What is done beside a document that this program, of a name in the test's folder, opens.
  void FileBesideDocument(const std::string& program) {
    desktop.registry.AddClass(".ODT", "Text", "", "\"" + Program(program) + "\" \"%1\"");
    Read({"Z:\\a.odt", "", "", "", 0, 1}, "a.odt.lnk");
    CShortcut document(application);
    document.SetFile(desktop.Folder() + "\\a.odt.lnk");
    document.CreateExecutableShortcut();
  }
  std::string Program(const std::string& name) const { return desktop.folder.Path() + "\\" + name; }
  platform::ShellLink LinkAt(const std::string& name) const {
    return application.shellServices.ReadShortcut(desktop.Folder() + "\\" + name).link;
  }
  std::vector<std::string> FilesInProgramFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(desktop.NativeFolder()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  testing::TestDesktop desktop;
  Application application{desktop.desktop, desktop.Folder()};
  CShortcut shortcut{application};
};

TEST_F(CShortcutTest, TheFileNameKeepsItsExtension) {
  ReadTarget("Z:\\home\\ana\\Report.odt");
  EXPECT_EQ(shortcut.File(), desktop.Folder() + "\\Report.odt.lnk");
  EXPECT_EQ(shortcut.FileName(), "Report.odt.lnk");
}

TEST_F(CShortcutTest, TheDateOfItsLastWritingGivesYearMonthAndDay) {
  ReadTarget("Z:\\home\\ana\\Report.odt");
  EXPECT_EQ(shortcut.Modified(), Date::Of(2026, 1, 5, 14, 3, 27));
  EXPECT_EQ(shortcut.Year(), "2026");
  EXPECT_EQ(shortcut.Month(), "January");
  EXPECT_EQ(shortcut.Day(), "05");
}

TEST_F(CShortcutTest, FieldsAreTrimmedAndTheWorkingFolderIsLowerCased) {
  platform::ShellLink link{"Z:\\home\\Ana\\Report.odt ", " Z:\\home\\ANA\\Work ", "", " icons.dll ", 7, 3};
  Read(link);
  EXPECT_EQ(shortcut.TargetFile(), "Z:\\home\\Ana\\Report.odt");
  EXPECT_EQ(shortcut.TargetFileName(), "Report.odt");
  EXPECT_EQ(shortcut.WorkingDirectory(), "z:\\home\\ana\\work");
  EXPECT_EQ(shortcut.IconFile(), "icons.dll");
  EXPECT_EQ(shortcut.IconIndex(), 7);
  EXPECT_EQ(shortcut.ShowCommand(), 3);
}

TEST_F(CShortcutTest, FieldsEndWhereTheirTextsEnd) {
  PaddingShell padding(desktop.files, desktop.shell.recentFolder);
  const platform::Desktop padded{desktop.files,     padding,      desktop.icons, desktop.registry,
                                 desktop.windowing, desktop.help, desktop.clock, desktop.dates};
  Application program(padded, desktop.Folder());
  Read({"Z:\\home\\a.odt", "Z:\\work", "", "icons.dll", 7, 3});
  CShortcut read(program);
  read.SetFile(shortcut.File());
  EXPECT_EQ(read.TargetFile(), "Z:\\home\\a.odt");
  EXPECT_EQ(read.TargetFileName(), "a.odt");
  EXPECT_EQ(read.WorkingDirectory(), "z:\\work");
  EXPECT_EQ(read.IconFile(), "icons.dll");
}

TEST_F(CShortcutTest, WithoutAWorkingFolderItIsTheTargetsFolder) {
  ReadTarget("Z:\\home\\ana\\Report.odt");
  EXPECT_EQ(shortcut.WorkingDirectory(), "Z:\\home\\ana");
}

TEST_F(CShortcutTest, AProgramIsAnApplicationWithoutALookUp) {
  desktop.registry.AddClass(".EXE", "never asked");
  ReadTarget("D:\\X\\Setup.EXE");
  EXPECT_EQ(shortcut.TargetClass(), "Application");
}

TEST_F(CShortcutTest, ATargetWithoutAnExtensionHasNoClass) {
  desktop.registry.AddClass(".", "never asked");
  ReadTarget("Z:\\home\\ana\\Makefile");
  EXPECT_EQ(shortcut.TargetClass(), "");
  ReadTarget("Z:\\home\\ana\\Report.");
  EXPECT_EQ(shortcut.TargetClass(), "");
}

TEST_F(CShortcutTest, TheClassDescribesTheDocumentAndGivesItsIcon) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text", "writer.dll,12");
  ReadTarget("Z:\\home\\ana\\report.odt");
  EXPECT_EQ(shortcut.TargetClass(), "OpenDocument Text");
  EXPECT_EQ(shortcut.IconFile(), "writer.dll");
  EXPECT_EQ(shortcut.IconIndex(), 12);
}

TEST_F(CShortcutTest, AnIconThatIsNoFileWithANumberKeepsTheShortcutsOwn) {
  for (const char* icon : {"writer.dll", "12", "writer.dll,", "writer.dll,x", "writer, the best.dll,12"}) {
    desktop.registry.AddClass(".ODT", "OpenDocument Text", icon);
    testing::WriteShortcut(desktop.NativeFolder() + "/a.lnk", {"Z:\\a.odt", "", "", "own.dll", 4, 1},
                           "2026-01-05 14:03:27");
    CShortcut fresh(application);
    fresh.SetFile(desktop.Folder() + "\\a.lnk");
    EXPECT_EQ(fresh.TargetClass(), "OpenDocument Text");
    EXPECT_EQ(fresh.IconFile(), "own.dll") << icon;
    EXPECT_EQ(fresh.IconIndex(), 4) << icon;
  }
}

TEST_F(CShortcutTest, AnIconsNumberMayBeBelowNothing) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text", "writer.dll,-12");
  ReadTarget("Z:\\a.odt");
  EXPECT_EQ(shortcut.IconIndex(), -12);
}

TEST_F(CShortcutTest, TheExtensionIsWhatFollowsTheLastDot) {
  desktop.registry.AddClass(".GZ", "Archive");
  ReadTarget("Z:\\a.tar.gz");
  EXPECT_EQ(shortcut.TargetClass(), "Archive");
}

TEST_F(CShortcutTest, AnUnknownExtensionKeepsWhatTheShortcutGave) {
  Read({"Z:\\a.zzq", "", "", "own.dll", 4, 1});
  EXPECT_EQ(shortcut.TargetClass(), "");
  EXPECT_EQ(shortcut.IconFile(), "own.dll");
}

TEST_F(CShortcutTest, AClassThatIsNotDescribedGivesNeitherIconNorProgram) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "", "writer.dll,12", desktop.folder.Path() + "\\bin\\writer %1");
  Read({"Z:\\a.odt", "", "", "own.dll", 4, 1});
  shortcut.CreateExecutableShortcut();
  EXPECT_EQ(shortcut.TargetClass(), "");
  EXPECT_EQ(shortcut.IconFile(), "own.dll");
  EXPECT_EQ(shortcut.IconIndex(), 4);
  EXPECT_FALSE(std::filesystem::exists(desktop.NativeFolder() + "/Writer.lnk"));
}

TEST_F(CShortcutTest, AnExtensionThatNamesNoClassIsNotDescribedByAKeyWithoutAName) {
  desktop.registry.keys["\\HKEY_CLASSES_ROOT\\.ODT"];
  desktop.registry.keys["\\HKEY_CLASSES_ROOT\\"][""] = "never asked";
  ReadTarget("Z:\\a.odt");
  EXPECT_EQ(shortcut.TargetClass(), "");
}

TEST_F(CShortcutTest, AnotherFileForgetsTheClassOfTheOneBefore) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text");
  ReadTarget("Z:\\a.odt");
  ReadTarget("Z:\\Makefile");
  EXPECT_EQ(shortcut.TargetClass(), "");
}

TEST_F(CShortcutTest, OneObjectReadsAClassOnce) {
  desktop.registry.AddClass(".ODT", "OpenDocument Text");
  ReadTarget("Z:\\a.odt");
  desktop.registry.AddClass(".ODT", "Another description");
  ReadTarget("Z:\\b.odt");
  EXPECT_EQ(shortcut.TargetClass(), "OpenDocument Text");
}

TEST_F(CShortcutTest, ASecondShortcutPointsAtTheProgramThatOpensTheDocument) {
  desktop.folder.Write("bin/WRITER", "");
  const std::string program = desktop.folder.Path() + "\\bin\\WRITER";
  desktop.registry.AddClass(".ODT", "OpenDocument Text", "", "\"" + program + "\" \"%1\"");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  const auto created = application.shellServices.ReadShortcut(desktop.Folder() + "\\Writer.lnk").link;
  EXPECT_EQ(created.target, program);
  EXPECT_EQ(created.workingDirectory, program);
  EXPECT_EQ(created.arguments, "");
  EXPECT_EQ(created.showCommand, 1);
}

TEST_F(CShortcutTest, AProgramWithoutQuotesIsFoundToo) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", desktop.folder.Path() + "\\bin\\writer %1");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_TRUE(std::filesystem::exists(desktop.NativeFolder() + "/Writer.lnk"));
}

TEST_F(CShortcutTest, QuotationMarksInsideAProgramsPathStay) {
  if (!testing::CanQuoteInNames()) GTEST_SKIP() << testing::kNoQuotes;
  desktop.folder.Write("bin/the \"best\" writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", desktop.folder.Path() + "\\bin\\the \"best\" writer %1");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_TRUE(std::filesystem::exists(desktop.NativeFolder() + "/The \"best\" writer.lnk"));
}

TEST_F(CShortcutTest, AProgramWithoutAPlaceHolderForTheDocumentIsFoundToo) {
  desktop.folder.Write("bin/writer", "");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\"");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_TRUE(std::filesystem::exists(desktop.NativeFolder() + "/Writer.lnk"));
}

TEST_F(CShortcutTest, TheFirstLetterOfAProgramsNameIsCapitalisedInAnyScript) {
  desktop.folder.Write("bin/\u00e9DITEUR", "");
  desktop.registry.AddClass(".ODT", "Text", "", desktop.folder.Path() + "\\bin\\\u00e9DITEUR %1");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_TRUE(std::filesystem::exists(testing::PathOf(desktop.NativeFolder() + "/\u00c9diteur.lnk")));
}

TEST_F(CShortcutTest, ACommandThatIsTheDocumentAloneNamesNoProgram) {
  desktop.registry.AddClass(".SH", "Script", "", "\"%1\" %*");
  ReadTarget("Z:\\a.sh");
  EXPECT_EQ(shortcut.TargetClass(), "Script");
  shortcut.CreateExecutableShortcut();
  EXPECT_FALSE(std::filesystem::exists(desktop.NativeFolder() + "/.lnk"));
}

TEST_F(CShortcutTest, AnEarlierShortcutToTheProgramIsReplaced) {
  desktop.folder.Write("bin/writer", "");
  desktop.folder.Write("program/Writer.lnk", "old");
  desktop.registry.AddClass(".ODT", "Text", "", "\"" + desktop.folder.Path() + "\\bin\\writer\" \"%1\"");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_NE(testing::ReadFile(desktop.NativeFolder() + "/Writer.lnk"), "old");
}

TEST_F(CShortcutTest, AProgramThatDoesNotExistGetsNoShortcut) {
  desktop.registry.AddClass(".ODT", "Text", "", "\"D:\\App\\app.exe\" \"%1\"");
  ReadTarget("Z:\\a.odt");
  shortcut.CreateExecutableShortcut();
  EXPECT_FALSE(std::filesystem::exists(desktop.NativeFolder() + "/App.exe.lnk"));
}

TEST_F(CShortcutTest, AProgramIsFoundBehindASymbolicLink) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  desktop.folder.Write("opt/writer-3", "");
  testing::MakeFileLink("opt/writer-3", desktop.folder / "writer");
  FileBesideDocument("writer");
  EXPECT_EQ(LinkAt("Writer.lnk").target, Program("writer"));
}

TEST_F(CShortcutTest, ALinkThatLeadsNowhereOrToAFolderIsNoProgram) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  fs::create_directory(desktop.folder / "folder");
  testing::MakeFileLink("nowhere", desktop.folder / "dangling");
  testing::MakeFileLink("folder", desktop.folder / "to-folder");
  testing::MakeFileLink("circle", desktop.folder / "circle");
  for (const char* name : {"folder", "dangling", "to-folder", "circle"}) FileBesideDocument(name);
  EXPECT_THAT(FilesInProgramFolder(), ElementsAre("a.odt.lnk"));
}

TEST_F(CShortcutTest, ADocumentThatIsCalledLikeTheProgramKeepsItsShortcut) {
  desktop.folder.Write("bin/writer", "");
  Read({"Z:\\home\\ana\\Writer", "", "", "", 0, 1}, "Writer.lnk");
  for (int filed = 0; filed < 2; ++filed) FileBesideDocument("bin\\writer");
  EXPECT_THAT(FilesInProgramFolder(), ElementsAre("Writer (2).lnk", "Writer.lnk", "a.odt.lnk"));
  EXPECT_EQ(LinkAt("Writer.lnk").target, "Z:\\home\\ana\\Writer");
  EXPECT_EQ(LinkAt("Writer (2).lnk").target, Program("bin\\writer"));
}

TEST_F(CShortcutTest, AFolderInTheWayOfAProgramsShortcutIsLeftAlone) {
  desktop.folder.Write("bin/writer", "");
  desktop.folder.Write("program/Writer.lnk/kept.txt", "kept");
  FileBesideDocument("bin\\writer");
  EXPECT_EQ(testing::ReadFile(desktop.NativeFolder() + "/Writer.lnk/kept.txt"), "kept");
  EXPECT_EQ(LinkAt("Writer (2).lnk").target, Program("bin\\writer"));
}

TEST_F(CShortcutTest, ASymbolicLinkInTheWayOfAProgramsShortcutIsReplacedAndNotFollowed) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  desktop.folder.Write("bin/writer", "");
  const std::string document = desktop.folder.Write("document.odt", "a document");
  testing::MakeFileLink(document, desktop.NativeFolder() + "/Writer.lnk");
  FileBesideDocument("bin\\writer");
  EXPECT_EQ(testing::ReadFile(document), "a document");
  EXPECT_EQ(LinkAt("Writer.lnk").target, Program("bin\\writer"));
}

TEST_F(CShortcutTest, OpeningPassesTargetWorkingFolderAndShowCommandToTheShell) {
  Read({"Z:\\home\\ana\\a.odt", "", "", "", 0, 3});
  desktop.shell.openResult = 31;
  EXPECT_EQ(shortcut.OpenDocument(), 31);
  EXPECT_EQ(desktop.shell.opened, std::vector<std::string>{"Z:\\home\\ana\\a.odt|Z:\\home\\ana|3"});
}

TEST_F(CShortcutTest, AFileThatIsNoShortcutReadsAsEmptyFieldsAndIsReportedOnce) {
  testing::SetWritten(desktop.folder.Write("program/broken.lnk", "not a link"), "2026-01-05 14:03:27");
  for (int poll = 0; poll < 3; ++poll) EXPECT_NO_THROW(shortcut.SetFile(desktop.Folder() + "\\broken.lnk"));
  EXPECT_EQ(shortcut.TargetFile(), "");
  EXPECT_EQ(shortcut.TargetClass(), "");
  EXPECT_EQ(shortcut.Modified(), Date::Of(2026, 1, 5, 14, 3, 27));
  EXPECT_EQ(desktop.shell.reported.size(), 1U);
}

TEST_F(CShortcutTest, AFileThatCannotBeOpenedIsAnError) {
  EXPECT_THROW(shortcut.SetFile(desktop.Folder() + "\\none.lnk"), Error);
}

TEST_F(CShortcutTest, AnEmptyPathIsLoggedAndThenFails) {
  EXPECT_THROW(shortcut.SetFile("  "), Error);
  EXPECT_EQ(desktop.LogLines("EventLog.txt"), std::vector<std::string>{"2\tCShortcut.File: Path is missing"});
}

}  // namespace
}  // namespace dayvane
