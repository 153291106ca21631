// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "linux/recent/Exclusions.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ExclusionsTest : public ::testing::Test {
 protected:
  /// The user saves the file.
  void Save(const std::string& rules) {
    m_folder.Write("config/dayvane/exclude", rules);
    testing::SetWritten(m_file, ++m_saved);
  }

  /// Whether the document would be left out after the next look.
  bool IsLeftOut(const std::string& path) {
    m_exclusions->Refresh();
    return m_exclusions->Covers({path, 0, "", ""});
  }

  void Start() {
    m_exclusions = std::make_unique<Exclusions>(m_file, m_folder / "home",
                                                [this](const std::string& event) { m_events.push_back(event); });
    m_exclusions->Refresh();
  }

  testing::TemporaryFolder m_folder;
  const std::string m_file = m_folder / "config/dayvane/exclude";
  std::vector<std::string> m_events;
  std::unique_ptr<Exclusions> m_exclusions;

 private:
  std::int64_t m_saved = 1795251600;
};

TEST_F(ExclusionsTest, TheFirstStartMakesAFileThatExplainsItself) {
  Start();
  const std::string text = testing::ReadFile(m_file);
  EXPECT_THAT(text, HasSubstr("\n#~/Downloads\n"));
  EXPECT_THAT(m_events, IsEmpty());
  EXPECT_FALSE(IsLeftOut(m_folder / "home/Downloads/a.pdf")) << "it leaves out nothing";
}

TEST_F(ExclusionsTest, TheExampleSaysWhatItShowsOnceItsMarksAreTakenAway) {
  Start();
  std::string text = testing::ReadFile(m_file);
  for (auto mark = text.find("\n#"); mark != std::string::npos; mark = text.find("\n#", mark + 1))
    if (text[mark + 2] != ' ') text.erase(mark + 1, 1);
  Save(text);
  for (const char* path : {"home/Private/a", "home/Downloads/a.pdf", "home/Letters/2026/Drafts/a", "home/a.iso"})
    EXPECT_TRUE(IsLeftOut(m_folder / path)) << path;
  EXPECT_FALSE(IsLeftOut(m_folder / "home/Letters/a.odt"));
  EXPECT_TRUE(m_exclusions->Covers({"/a", 0, "", "image/png"}));
  EXPECT_TRUE(m_exclusions->Covers({"/a", 0, "org.kde.okular", ""}));
  EXPECT_THAT(m_events, IsEmpty());
}

TEST_F(ExclusionsTest, TheUsersOwnFileIsNeverWritten) {
  Save("");
  Start();
  EXPECT_EQ(testing::ReadFile(m_file), "");
}

TEST_F(ExclusionsTest, ALinkToNowhereIsTheUsersOwnToo) {
  fs::create_directories(m_folder / "config/dayvane");
  fs::create_symlink(m_folder / "nowhere", m_file);
  Start();
  EXPECT_FALSE(fs::exists(m_folder / "nowhere"));
}

TEST_F(ExclusionsTest, UntilWhatIsThereCanBeReadNobodyKnowsWhatIsExcluded) {
  fs::create_directories(m_folder / "config/dayvane");
  fs::create_symlink(m_folder / "disk/exclude", m_file);
  Start();
  m_exclusions->Refresh();
  EXPECT_FALSE(m_exclusions->AreKnown()) << "the disk is not there yet";
  EXPECT_THAT(m_events, ElementsAre(AllOf(HasSubstr(m_file), HasSubstr("nothing new is recorded until it can"),
                                          HasSubstr("No such file"))));
  m_folder.Write("disk/exclude", "*.iso\n");
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_TRUE(m_exclusions->AreKnown());
  fs::rename(m_folder / "disk", m_folder / "elsewhere");
  m_exclusions->Refresh();
  EXPECT_FALSE(m_exclusions->AreKnown());
  EXPECT_THAT(m_events, SizeIs(2)) << "a new failure is told anew";
  fs::rename(m_folder / "elsewhere", m_folder / "disk");
  m_exclusions->Refresh();
  EXPECT_TRUE(m_exclusions->AreKnown());
}

TEST_F(ExclusionsTest, AFileWithoutPermissionAtTheStartIsNotKnown) {
  Save("*.iso\n");
  fs::permissions(m_folder.Native(), fs::perms::all);
  fs::permissions(m_file, fs::perms::none);
  {
    const testing::UnprivilegedUser user;
    Start();
    EXPECT_FALSE(m_exclusions->AreKnown());
  }
  EXPECT_THAT(m_events, SizeIs(1));
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_TRUE(m_exclusions->AreKnown());
}

TEST_F(ExclusionsTest, AFolderInItsPlaceMayMeanAnything) {
  fs::create_directories(m_file);
  Start();
  EXPECT_FALSE(m_exclusions->AreKnown());
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("it is no file")));
  fs::remove(m_file);
  m_exclusions->Refresh();
  EXPECT_FALSE(m_exclusions->AreKnown()) << "a program may be saving it";
  m_exclusions->Refresh();
  EXPECT_TRUE(m_exclusions->AreKnown());
  fs::create_directories(m_file);
  m_exclusions->Refresh();
  EXPECT_THAT(m_events, SizeIs(2)) << "a new failure is told anew";
}

TEST_F(ExclusionsTest, WhereThereIsNoFileItIsKnownThatNothingIsExcluded) {
  m_folder.Write("config", "in the way of the example");
  Start();
  EXPECT_TRUE(m_exclusions->AreKnown());
  EXPECT_THAT(m_events, ElementsAre(HasSubstr("the example cannot be written")));
}

TEST_F(ExclusionsTest, AChangedFileCountsFromTheNextLookOn) {
  Save("*.iso\n");
  Start();
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  Save("*.img\n");
  EXPECT_FALSE(IsLeftOut("/a.iso"));
  EXPECT_TRUE(IsLeftOut("/a.img"));
}

TEST_F(ExclusionsTest, WhatAFileSaidHoldsUntilItIsReallyGone) {
  Save("*.iso\n");
  Start();
  fs::remove(m_file);
  EXPECT_TRUE(IsLeftOut("/a.iso")) << "a program may be saving it";
  EXPECT_FALSE(IsLeftOut("/a.iso"));
  Save("*.iso\n");
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  fs::remove(m_file);
  EXPECT_TRUE(IsLeftOut("/a.iso")) << "and again";
}

TEST_F(ExclusionsTest, AFileThatCannotBeReadAnyMoreKeepsItsRulesAndIsToldOnce) {
  Save("*.iso\n");
  Start();
  fs::remove(m_file);
  fs::create_directory(m_file);
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_THAT(m_events, SizeIs(1));
  fs::remove(m_file);
  Save("*.img\n");
  EXPECT_FALSE(IsLeftOut("/a.iso"));
}

TEST_F(ExclusionsTest, WithoutPermissionItIsTriedAgainAtEachLook) {
  Save("*.iso\n");
  Start();
  fs::permissions(m_folder.Native(), fs::perms::all);
  Save("*.img\n");
  fs::permissions(m_file, fs::perms::none);
  {
    const testing::UnprivilegedUser user;
    EXPECT_TRUE(IsLeftOut("/a.iso"));
    EXPECT_TRUE(IsLeftOut("/a.iso"));
  }
  EXPECT_THAT(m_events, SizeIs(1));
  EXPECT_TRUE(IsLeftOut("/a.img"));
}

TEST_F(ExclusionsTest, APipeInItsPlaceDoesNotStopTheProgram) {
  fs::create_directories(m_folder / "config/dayvane");
  ASSERT_EQ(mkfifo(m_file.c_str(), 0600), 0);
  Start();
  EXPECT_THAT(m_events, SizeIs(1));
}

TEST_F(ExclusionsTest, AVeryLargeFileIsNotRead) {
  Save("*.iso\n");
  Start();
  fs::resize_file(m_file, 1ULL << 40U);
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_THAT(m_events, SizeIs(1));
}

TEST_F(ExclusionsTest, ABadLineIsToldWithItsNumberOncePerVersion) {
  Save("*.iso\nPrivate/letters\n");
  Start();
  EXPECT_TRUE(IsLeftOut("/a.iso"));
  EXPECT_THAT(m_events, ElementsAre("Exclusions: line 2 of " + m_file +
                                    " says nothing: a path begins with \"/\", \"~/\" or \"*\""));
}

TEST_F(ExclusionsTest, AFileOfNothingButBadLinesDoesNotFloodTheLog) {
  std::string rules;
  for (int i = 0; i < 1000; ++i) rules += "a/b\n";
  Save(rules);
  Start();
  EXPECT_THAT(m_events, SizeIs(10));
}

TEST_F(ExclusionsTest, AFolderThatCannotBeWrittenIsToldOnce) {
  constexpr auto kReadOnly =
      fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec;
  fs::create_directory(m_folder / "config");
  fs::permissions(m_folder / "config", kReadOnly);
  fs::permissions(m_folder.Native(), fs::perms::all);
  const testing::UnprivilegedUser user;
  Start();
  EXPECT_FALSE(IsLeftOut("/a.iso"));
  EXPECT_THAT(m_events, SizeIs(1));
}

TEST_F(ExclusionsTest, ADocumentIsLeftOutByTheRealPathOfALinkedHomeToo) {
  fs::create_directory(m_folder / "disk");
  fs::create_directory_symlink(m_folder / "disk", m_folder / "home");
  Save("~/Private\n");
  Start();
  EXPECT_TRUE(IsLeftOut(m_folder / "home/Private/a"));
  EXPECT_TRUE(IsLeftOut(fs::canonical(m_folder / "disk").string() + "/Private/a"));
}

}  // namespace
}  // namespace dayvane::recent
