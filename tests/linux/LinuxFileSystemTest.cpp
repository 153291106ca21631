// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/UnfinishedFile.h"
#include "tests/linux/disk/BrokenDisk.h"
#include "tests/linux/disk/FullDisk.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::files {
namespace {

namespace fs = std::filesystem;
using platform::EntryKind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::ReadFile;
using testing::SetWritten;
using ::testing::UnorderedElementsAre;

class LinuxFileSystemTest : public ::testing::Test {
 protected:
  std::string Path(const std::string& name) const { return m_folder.Path() + "\\" + name; }
  std::string Unfinished() const { return m_folder / kUnfinishedName; }

  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& entry : m_files.List(m_folder.Path())) names.push_back(entry.name);
    return names;
  }

  testing::TemporaryFolder m_folder;
  LinuxFileSystem m_files;
};

/// The number of the Error that an action fails with; 0 when it does not fail. The error must be about `path`.
template <class Action>
int ErrorOf(const std::string& path, Action action) {
  try {
    action();
  } catch (const Error& error) {
    EXPECT_EQ(error.Path(), path);
    return error.Number();
  }
  return 0;
}

TEST_F(LinuxFileSystemTest, AReplacedFileIsANewOneSoThatWhoReadsTheOldOneReadsItWhole) {
  const std::string native = m_folder.Write("a.dat", "old");
  fs::create_hard_link(native, m_folder / "reader");
  m_files.Replace(Path("a.dat"), "new");
  EXPECT_EQ(ReadFile(native), "new");
  EXPECT_EQ(ReadFile(m_folder / "reader"), "old");
}

TEST_F(LinuxFileSystemTest, ReplacingLeavesNoOtherFileBehind) {
  m_files.Replace(Path("a.dat"), "new");
  m_files.ReplaceUnflushed(Path("b.dat"), "new");
  EXPECT_THAT(Names(), UnorderedElementsAre("a.dat", "b.dat"));
}

TEST_F(LinuxFileSystemTest, AFileReplacedUnflushedIsWholeAndWrittenNow) {
  const std::string native = m_folder.Write("a.lnk", "old and longer");
  SetWritten(native, "2001-01-01 00:00:00");
  const std::string reference = m_folder.Write("reference", "");
  m_files.ReplaceUnflushed(Path("a.lnk"), "new");
  EXPECT_EQ(ReadFile(native), "new");
  EXPECT_GE(m_files.Status(Path("a.lnk"))->written.nanoseconds, m_files.Status(Path("reference"))->written.nanoseconds);
}

TEST_F(LinuxFileSystemTest, ACopyThatSomebodyKeepsUnderAnotherNameKeepsItsTime) {
  const std::string kept = m_folder.Write("backup.lnk", "the same bytes");
  SetWritten(kept, "2001-01-01 00:00:00");
  fs::create_hard_link(kept, m_folder / "a.lnk");
  const auto before = fs::last_write_time(kept);
  m_files.ReplaceUnflushed(Path("a.lnk"), "the same bytes");
  EXPECT_EQ(fs::last_write_time(kept), before);
  EXPECT_NE(fs::last_write_time(m_folder / "a.lnk"), before);
}

TEST_F(LinuxFileSystemTest, AFileReplacedWithATimeHasItToTheNanosecond) {
  for (const std::int64_t time :
       {std::int64_t{1'795'000'000'123'456'789}, std::int64_t{-1'500'000'001}, std::int64_t{0}}) {
    ReplaceWithTime(m_folder / "a.lnk", "new", time);
    EXPECT_EQ(m_files.Status(Path("a.lnk"))->written.nanoseconds, time);
  }
}

TEST_F(LinuxFileSystemTest, ACopyKeepsTheLastWrittenTimeToTheNanosecond) {
  const std::string native = m_folder.Write("a.lnk", "bytes");
  SetWritten(native, "2026-11-20 14:03:27", 987'654'321);
  m_files.Copy(Path("a.lnk"), Path("b.lnk"));
  EXPECT_EQ(ReadFile(m_folder / "b.lnk"), "bytes");
  EXPECT_EQ(m_files.Status(Path("b.lnk"))->written, m_files.Status(Path("a.lnk"))->written);
  EXPECT_EQ(m_files.Status(Path("b.lnk"))->written.nanoseconds % 1'000'000'000, 987'654'321);
}

TEST_F(LinuxFileSystemTest, ACopyReplacesItsDestinationAsAWhole) {
  m_folder.Write("a.lnk", "new");
  const std::string native = m_folder.Write("b.lnk", "old and longer");
  fs::create_hard_link(native, m_folder / "reader");
  m_files.Copy(Path("a.lnk"), Path("b.lnk"));
  EXPECT_EQ(ReadFile(native), "new");
  EXPECT_EQ(ReadFile(m_folder / "reader"), "old and longer");
}

TEST_F(LinuxFileSystemTest, ACopyOfASparseFileIsSparse) {
  constexpr std::uintmax_t kSize = std::uintmax_t{1} << 30;
  const std::string native = m_folder.Write("a.lnk", "head");
  std::fstream file(native, std::ios::in | std::ios::out | std::ios::binary);
  file.seekp(kSize / 2).write("middle", 6).flush();
  fs::resize_file(native, kSize);
  m_files.Copy(Path("a.lnk"), Path("b.lnk"));
  struct stat copy {};
  ASSERT_EQ(stat((m_folder / "b.lnk").c_str(), &copy), 0);
  EXPECT_EQ(static_cast<std::uintmax_t>(copy.st_size), kSize);
  EXPECT_LT(copy.st_blocks * 512, 1 << 20);
  std::ifstream read(m_folder / "b.lnk", std::ios::binary);
  std::string head(4, ' '), middle(6, ' ');
  read.read(head.data(), 4).seekg(kSize / 2).read(middle.data(), 6);
  EXPECT_EQ(head + middle, "headmiddle");
}

TEST_F(LinuxFileSystemTest, AFileThatAKillLeftUnfinishedIsReused) {
  m_folder.Write(kUnfinishedName, std::string(1000, 'x'));
  m_files.Replace(Path("a.dat"), "new");
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "new");
  EXPECT_THAT(Names(), ElementsAre("a.dat"));
}

TEST_F(LinuxFileSystemTest, ALinkInPlaceOfTheUnfinishedFileIsNotWrittenThrough) {
  const std::string document = m_folder.Write("document", "the user's");
  fs::create_symlink(document, Unfinished());
  m_files.Replace(Path("a.dat"), "new");
  EXPECT_EQ(ReadFile(document), "the user's");
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "new");
}

TEST_F(LinuxFileSystemTest, RemovingAFolderClearsWhatAKillLeftUnfinished) {
  m_folder.Write("day/" + std::string(kUnfinishedName), "half");
  m_files.RemoveFolder(Path("day"));
  EXPECT_FALSE(fs::exists(m_folder / "day"));
}

TEST_F(LinuxFileSystemTest, AFolderThatHoldsAFileIsNotRemoved) {
  const std::string native = m_folder.Write("day/a.lnk", "bytes");
  EXPECT_EQ(ErrorOf(Path("day"), [&] { m_files.RemoveFolder(Path("day")); }), kPathFileAccess);
  EXPECT_EQ(ReadFile(native), "bytes");
}

TEST_F(LinuxFileSystemTest, ALinkToAFolderIsNotRemovedAsAFolder) {
  const std::string elsewhere = m_folder.Write("elsewhere/" + std::string(kUnfinishedName), "half");
  fs::create_symlink(m_folder / "elsewhere", m_folder / "day");
  EXPECT_EQ(ErrorOf(Path("day"), [&] { m_files.RemoveFolder(Path("day")); }), kPathNotFound);
  EXPECT_TRUE(fs::exists(elsewhere));
}

TEST_F(LinuxFileSystemTest, ASymbolicLinkIsReportedAsOne) {
  m_folder.Write("file", "bytes");
  fs::create_symlink(m_folder / "file", m_folder / "link");
  fs::create_symlink(m_folder / "nothing", m_folder / "dangling");
  EXPECT_EQ(m_files.Status(Path("link"))->kind, EntryKind::Link);
  EXPECT_EQ(m_files.Status(Path("dangling"))->kind, EntryKind::Link);
  for (const auto& entry : m_files.List(m_folder.Path()))
    EXPECT_EQ(entry.kind, entry.name == "file" ? EntryKind::File : EntryKind::Link) << entry.name;
}

TEST_F(LinuxFileSystemTest, ASymbolicLinkIsNotReadCopiedOrAppendedThrough) {
  const std::string document = m_folder.Write("document", "the user's");
  fs::create_symlink(document, m_folder / "link");
  EXPECT_EQ(ErrorOf(Path("link"), [&] { m_files.Read(Path("link"), 100); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf(Path("link"), [&] { m_files.Copy(Path("link"), Path("copy")); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf(Path("link"), [&] { m_files.Append(Path("link"), "more"); }), kPathFileAccess);
  EXPECT_EQ(ReadFile(document), "the user's");
}

TEST_F(LinuxFileSystemTest, ReplacingOrDeletingASymbolicLinkLeavesItsTarget) {
  const std::string document = m_folder.Write("document", "the user's");
  fs::create_symlink(document, m_folder / "replaced");
  fs::create_symlink(document, m_folder / "deleted");
  m_files.Replace(Path("replaced"), "new");
  m_files.Delete(Path("deleted"));
  EXPECT_EQ(ReadFile(document), "the user's");
  EXPECT_EQ(m_files.Status(Path("replaced"))->kind, EntryKind::File);
  EXPECT_FALSE(m_files.Status(Path("deleted")));
}

TEST_F(LinuxFileSystemTest, AFolderIsNotListedThroughASymbolicLink) {
  m_folder.Write("elsewhere/document", "the user's");
  fs::create_symlink(m_folder / "elsewhere", m_folder / "link");
  EXPECT_THAT(m_files.List(Path("link")), IsEmpty());
}

TEST_F(LinuxFileSystemTest, ANamedPipeIsRefusedWithoutWaiting) {
  ASSERT_EQ(mkfifo((m_folder / "pipe").c_str(), 0666), 0);
  EXPECT_EQ(ErrorOf(Path("pipe"), [&] { m_files.Read(Path("pipe"), 100); }), kPathFileAccess);
  EXPECT_EQ(ErrorOf(Path("pipe"), [&] { m_files.Copy(Path("pipe"), Path("copy")); }), kPathFileAccess);
  EXPECT_NE(ErrorOf(Path("pipe"), [&] { m_files.Append(Path("pipe"), "text"); }), 0);
  EXPECT_EQ(m_files.Status(Path("pipe"))->kind, EntryKind::Other);
}

TEST_F(LinuxFileSystemTest, AFullDiskLeavesTheOldFileWholeAndNoUnfinishedOne) {
  m_folder.Write("a.dat", "old");
  m_folder.Write("source", std::string(1000, 's'));
  {
    const testing::FullDisk disk(100);
    const std::string bytes(1000, 'x');
    EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Replace(Path("a.dat"), bytes); }), kDiskFull);
    EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.ReplaceUnflushed(Path("a.dat"), bytes); }), kDiskFull);
    EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Copy(Path("source"), Path("a.dat")); }), kDiskFull);
  }
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "old");
  EXPECT_THAT(Names(), UnorderedElementsAre("a.dat", "source"));
}

TEST_F(LinuxFileSystemTest, AnUnreadableFolderIsNotAnEmptyOne) {
  fs::permissions(m_folder.Native(), fs::perms::all);
  fs::create_directory(m_folder / "private");
  fs::permissions(m_folder / "private", fs::perms::none);
  const testing::UnprivilegedUser user;
  EXPECT_EQ(ErrorOf(Path("private"), [&] { m_files.List(Path("private")); }), kPermissionDenied);
}

TEST_F(LinuxFileSystemTest, AFolderThatMayNotBeWrittenRefusesEveryChange) {
  m_folder.Write("a.dat", "old");
  fs::permissions(m_folder.Native(), fs::perms(0555));
  fs::permissions(m_folder / "a.dat", fs::perms(0644));
  {
    const testing::UnprivilegedUser user;
    EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Replace(Path("a.dat"), "new"); }), kPermissionDenied);
    EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Delete(Path("a.dat")); }), kPermissionDenied);
    EXPECT_EQ(ErrorOf(Path("day"), [&] { m_files.CreateFolder(Path("day")); }), kPermissionDenied);
  }
  fs::permissions(m_folder.Native(), fs::perms(0755));
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "old");
}

TEST_F(LinuxFileSystemTest, AFolderThatIsNotThereListsNothing) {
  m_folder.Write("file", "");
  EXPECT_THAT(m_files.List(Path("missing")), IsEmpty());
  EXPECT_THAT(m_files.List(Path("file")), IsEmpty());
  EXPECT_THAT(m_files.List("1:\\missing"), IsEmpty());
}

TEST_F(LinuxFileSystemTest, AListingIsInTheOrderOfTheNames) {
  for (const char* year : {"2026", "2019", "2024", "1999"}) m_files.CreateFolder(Path(year));
  std::vector<std::string> names;
  for (const auto& entry : m_files.List(m_folder.Path())) names.push_back(entry.name);
  EXPECT_THAT(names, ElementsAre("1999", "2019", "2024", "2026"));
}

TEST_F(LinuxFileSystemTest, AListingTellsHiddenFilesAndFolders) {
  m_folder.Write(".hidden", "");
  fs::create_directory(m_folder / "folder");
  for (const auto& entry : m_files.List(m_folder.Path())) {
    EXPECT_EQ(entry.hidden, entry.name == ".hidden");
    EXPECT_EQ(entry.kind, entry.name == "folder" ? EntryKind::Folder : EntryKind::File);
  }
}

TEST_F(LinuxFileSystemTest, NamesThatWindowsDoesNotKnowLeadBackToTheirFiles) {
  m_folder.Write("back\\slash \"quoted\"", "bytes");
  ASSERT_EQ(Names().size(), 1U);
  EXPECT_EQ(m_files.Read(Path(Names()[0]), 100).bytes, "bytes");
}

TEST_F(LinuxFileSystemTest, ANameThatTheProgramCannotSpellIsNotListed) {
  m_folder.Write("a\xFF.lnk", "bytes");
  m_folder.Write("good.lnk", "bytes");
  EXPECT_THAT(Names(), ElementsAre("good.lnk"));
}

TEST_F(LinuxFileSystemTest, ReadingStopsAtTheLimit) {
  m_folder.Write("a.dat", "0123456789");
  EXPECT_EQ(m_files.Read(Path("a.dat"), 4).bytes, "0123");
  EXPECT_EQ(m_files.Read(Path("a.dat"), 10).bytes, "0123456789");
  EXPECT_EQ(m_files.Read(Path("a.dat"), 11).bytes, "0123456789");
  EXPECT_EQ(m_files.Read(Path("a.dat"), 0).bytes, "");
}

TEST_F(LinuxFileSystemTest, AFileWhoseSizeIsUnknownIsReadToItsEnd) {
  EXPECT_GT(m_files.Read("Z:\\proc\\self\\status", 100'000).bytes.size(), 100U);
}

TEST_F(LinuxFileSystemTest, TextIsAddedToTheEnd) {
  m_files.Append(Path("log"), "one\n");
  m_files.Append(Path("log"), "two\n");
  EXPECT_EQ(ReadFile(m_folder / "log"), "one\ntwo\n");
}

TEST_F(LinuxFileSystemTest, AnExistingFolderIsNotMadeAgain) {
  m_files.CreateFolder(Path("day"));
  EXPECT_EQ(ErrorOf(Path("day"), [&] { m_files.CreateFolder(Path("day")); }), kFileAlreadyExists);
}

TEST_F(LinuxFileSystemTest, APathOnADriveThatIsNotThereIsNotFound) {
  EXPECT_EQ(ErrorOf("1:\\a", [&] { m_files.Read("1:\\a", 1); }), kPathNotFound);
  EXPECT_EQ(ErrorOf("", [&] { m_files.Replace("", "x"); }), kPathNotFound);
  EXPECT_FALSE(m_files.Status("1:\\a"));
}

TEST_F(LinuxFileSystemTest, AnErrorNamesThePathOfTheProgramNotTheNativeOne) {
  const std::string path = Path("missing\\a.dat");
  EXPECT_EQ(ErrorOf(path, [&] { m_files.Replace(path, "x"); }), kFileNotFound);
  EXPECT_EQ(ErrorOf(path, [&] { m_files.ReplaceUnflushed(path, "x"); }), kFileNotFound);
}

TEST_F(LinuxFileSystemTest, AFileInPlaceOfAFolderIsReplacedByNothing) {
  fs::create_directory(m_folder / "a.dat");
  EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Replace(Path("a.dat"), "x"); }), kPathFileAccess);
  EXPECT_THAT(Names(), ElementsAre("a.dat"));
}

TEST_F(LinuxFileSystemTest, ATimeBeyondTheReachOfNanosecondsIsTheLastOne) {
  const std::string native = m_folder.Write("a.lnk", "bytes");
  SetWritten(native, "2300-01-01 00:00:00");
  struct stat status {};
  ASSERT_EQ(stat(native.c_str(), &status), 0);
  if (status.st_mtim.tv_sec < 10'000'000'000) GTEST_SKIP() << "this disk does not know the year 2300";
  m_files.Copy(Path("a.lnk"), Path("b.lnk"));
  const auto written = m_files.Status(Path("a.lnk"))->written;
  EXPECT_EQ(written.nanoseconds, INT64_MAX);
  EXPECT_EQ(m_files.Status(Path("b.lnk"))->written.local, written.local);
}

TEST(LocalTime, TimesBeyondTheCalendarAreMovedToItsEnds) {
  const auto year = [](std::int64_t seconds) {
    return int(std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(LocalTime(seconds))).year());
  };
  EXPECT_NEAR(year(INT64_MIN), 1601, 1);
  EXPECT_NEAR(year(INT64_MAX), 9999, 1);
}

TEST_F(LinuxFileSystemTest, APathThatIsNoLinkResolvesToItself) {
  m_folder.Write("a.dat", "text");
  EXPECT_EQ(m_files.Resolve(Path("a.dat")), Path("a.dat"));
  EXPECT_EQ(m_files.Resolve(Path("missing")), Path("missing"));
}

TEST_F(LinuxFileSystemTest, ALinkResolvesToTheEndOfItsChain) {
  m_folder.Write("disk/Daily/a.lnk", "text");
  fs::create_directory_symlink("disk/../disk/Daily/", m_folder / "near");
  fs::create_directory_symlink(m_folder / "near", m_folder / "far");
  EXPECT_EQ(m_files.Resolve(Path("far")), Path("disk\\Daily"));
}

TEST_F(LinuxFileSystemTest, ALinkToNothingYetResolvesToWhereItWillBe) {
  fs::create_directory(m_folder / "disk");
  fs::create_symlink("disk/Favorites.dat", m_folder / "Favorites.dat");
  EXPECT_EQ(m_files.Resolve(Path("Favorites.dat")), Path("disk\\Favorites.dat"));
}

TEST_F(LinuxFileSystemTest, LinksThatGoRoundInACircleAreAnError) {
  fs::create_symlink("b", m_folder / "a");
  fs::create_symlink("a", m_folder / "b");
  EXPECT_EQ(ErrorOf(Path("a"), [&] { m_files.Resolve(Path("a")); }), kPathFileAccess);
}

TEST_F(LinuxFileSystemTest, ALinkToANameWithoutAFormIsAnError) {
  fs::create_symlink("a\xFF", m_folder / "a");
  EXPECT_EQ(ErrorOf(Path("a"), [&] { m_files.Resolve(Path("a")); }), kBadFileName);
}

TEST_F(LinuxFileSystemTest, ARenamedFileHasItsNewNameAlone) {
  m_folder.Write("a.dat", "text");
  m_files.Rename(Path("a.dat"), Path("b.dat"));
  EXPECT_THAT(Names(), ElementsAre("b.dat"));
  EXPECT_EQ(ReadFile(m_folder / "b.dat"), "text");
}

TEST_F(LinuxFileSystemTest, RenamingNeverReplacesWhatIsThere) {
  m_folder.Write("a.dat", "new");
  m_folder.Write("b.dat", "old");
  EXPECT_EQ(ErrorOf(Path("b.dat"), [&] { m_files.Rename(Path("a.dat"), Path("b.dat")); }), kFileAlreadyExists);
  EXPECT_EQ(ReadFile(m_folder / "b.dat"), "old");
  EXPECT_EQ(ReadFile(m_folder / "a.dat"), "new");
}

TEST_F(LinuxFileSystemTest, RenamingWhatIsNotThereIsAnErrorAboutIt) {
  EXPECT_EQ(ErrorOf(Path("a.dat"), [&] { m_files.Rename(Path("a.dat"), Path("b.dat")); }), kFileNotFound);
}

TEST_F(LinuxFileSystemTest, ADiskThatDoesNotAnswerIsNotTakenForOneWithoutTheFile) {
  m_folder.Write("a.dat", "text");
  EXPECT_TRUE(testing::OnABrokenDisk(
      [&] { return ErrorOf(Path("a.dat"), [&] { m_files.Status(Path("a.dat")); }) == kDeviceIoError; }));
}

TEST_F(LinuxFileSystemTest, NothingLiesWhereTheUserCannotLook) {
  const std::string longName(300, 'a');
  m_folder.Write("a.dat", "text");
  fs::create_symlink("link", m_folder / "link");
  for (const std::string& name : {std::string("missing"), std::string("a.dat\\b"), std::string("link\\b"), longName})
    EXPECT_FALSE(m_files.Status(Path(name))) << name;
}

}  // namespace
}  // namespace dayvane::files
