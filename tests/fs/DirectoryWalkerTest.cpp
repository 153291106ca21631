// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "fs/DirectoryWalker.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestFiles.h"

namespace dayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class DirectoryWalkerTest : public ::testing::Test {
 protected:
  DirectoryWalkerTest() {
    walker.ItemFound.Connect([this](const std::string& path, const std::string& name, bool& cancel) {
      found.push_back(path.substr(folder.Path().size()) + name);
      cancel = found.size() == cancelAfter;
    });
  }

  std::string Root() const { return folder.Path() + "\\"; }

  testing::TemporaryFolder folder;
  testing::TestFiles files;
  DirectoryWalker walker{files};
  std::vector<std::string> found;
  std::size_t cancelAfter = 0;
};

TEST_F(DirectoryWalkerTest, FilesOfTheWholeTreeAreReportedWithTheirFolder) {
  folder.Write("a.lnk", "");
  folder.Write("2026/May/05/b.lnk", "");
  folder.Write("2026/May/05/c.txt", "");
  walker.WalkDirectoryTree(Root(), "*.lnk");
  EXPECT_THAT(found, ElementsAre("\\a.lnk", "\\2026\\May\\05\\b.lnk"));
}

TEST_F(DirectoryWalkerTest, AFoldersOwnItemsComeBeforeThoseOfItsSubFolders) {
  folder.Write("a/b/c.lnk", "");
  walker.WalkDirectoryTree(Root(), "*.*", kWalkReportFolders);
  EXPECT_THAT(found, ElementsAre("\\a", "\\a\\b"));
}

TEST_F(DirectoryWalkerTest, FoldersAreReportedWithoutFilesAndWithoutDotNames) {
  folder.Write("05/x.lnk", "");
  folder.Write(".hidden/06/x.lnk", "");
  testing::Hide(folder / ".hidden");
  walker.WalkDirectoryTree(Root(), "*.*", kWalkReportFolders);
  EXPECT_THAT(found, ElementsAre("\\05"));
}

TEST_F(DirectoryWalkerTest, WithoutSubFoldersOnlyTheImmediateOnesThatMatchAreReported) {
  folder.Write("May/05/x.lnk", "");
  folder.Write("March/x.lnk", "");
  folder.Write("June/x.lnk", "");
  walker.WalkDirectoryTree(Root(), "Ma*", kWalkReportFolders | kWalkNoSubFolders);
  EXPECT_THAT(found, UnorderedElementsAre("\\May", "\\March"));
}

TEST_F(DirectoryWalkerTest, ACancelOnTheFirstItemOfADeepTreeEndsTheWholeWalk) {
  folder.Write("a/b/c/1.lnk", "");
  folder.Write("a/b/2.lnk", "");
  folder.Write("a/3.lnk", "");
  cancelAfter = 1;
  walker.WalkDirectoryTree(Root(), "*.lnk");
  EXPECT_EQ(found.size(), 1U);
}

TEST_F(DirectoryWalkerTest, ACancelInsideAFolderLeavesTheFoldersBesideItUnwalked) {
  for (const char* name : {"a/a/1.lnk", "a/b/2.lnk", "b/3.lnk", "b/a/4.lnk"}) folder.Write(name, "");
  cancelAfter = 1;
  walker.WalkDirectoryTree(Root(), "*.lnk");
  EXPECT_THAT(found, ElementsAre("\\a\\a\\1.lnk"));
}

TEST_F(DirectoryWalkerTest, ACancelAtAFolderLeavesWhatIsInAndBesideItUnwalked) {
  for (const char* name : {"a/a/1.lnk", "a/b/2.lnk", "b/3.lnk"}) folder.Write(name, "");
  cancelAfter = 2;
  walker.WalkDirectoryTree(Root(), "*.*", kWalkReportFolders);
  EXPECT_THAT(found, ElementsAre("\\a", "\\b"));
}

TEST_F(DirectoryWalkerTest, ACancelledWalkerCanWalkAgain) {
  folder.Write("1.lnk", "");
  folder.Write("2.lnk", "");
  cancelAfter = 1;
  walker.WalkDirectoryTree(Root(), "*.lnk");
  cancelAfter = 0;
  walker.WalkDirectoryTree(Root(), "*.lnk");
  EXPECT_EQ(found.size(), 3U);
}

TEST_F(DirectoryWalkerTest, WithoutATrailingSeparatorThePatternIsGluedToTheFoldersName) {
  folder.Write("Daily/inside.lnk", "");
  folder.Write("Daily of May.lnk", "");
  walker.WalkDirectoryTree(Root() + "Daily", "*.lnk", kWalkNoSubFolders);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(found[0].ends_with("Daily of May.lnk")) << found[0];
}

TEST_F(DirectoryWalkerTest, SymbolicLinksAreNeitherReportedNorEntered) {
  if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  const testing::TemporaryFolder outside;
  outside.Write("secret.lnk", "");
  testing::MakeFolderLink(outside.Native(), folder / "way out");
  walker.WalkDirectoryTree(Root(), "*.lnk");
  walker.WalkDirectoryTree(Root(), "*.*", kWalkReportFolders);
  EXPECT_THAT(found, IsEmpty());
}

TEST_F(DirectoryWalkerTest, AFolderThatDoesNotExistHasNoItems) {
  walker.WalkDirectoryTree(Root() + "none\\", "*.lnk");
  EXPECT_THAT(found, IsEmpty());
}

TEST_F(DirectoryWalkerTest, AListenersErrorEndsTheWalk) {
  folder.Write("1.lnk", "");
  folder.Write("2.lnk", "");
  walker.ItemFound.Connect([](const std::string&, const std::string&, bool&) { throw Error(kDiskFull, "Disk full"); });
  EXPECT_THROW(walker.WalkDirectoryTree(Root(), "*.lnk"), Error);
  EXPECT_EQ(found.size(), 1U);
}

}  // namespace
}  // namespace dayvane
