// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Error.h"
#include "tests/support/MainWindow.h"
#include "tests/support/System.h"

namespace dayvane {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A user who keeps the record on another disk, with a symbolic link in its place.
class LinkedDesktop : public ::testing::Test {
 protected:
  LinkedDesktop() {
    fs::create_directories(Disk());
    if (testing::CanMakeLinks()) testing::MakeFolderLink(Disk(), Link());
  }

  void SetUp() override {
    if (!testing::CanMakeLinks()) GTEST_SKIP() << testing::kNoLinks;
  }

  std::string Disk() const { return desktop.folder / "disk/Record"; }
  std::string Link() const { return desktop.NativeFolder() + "/Daily"; }

  testing::TestDesktop desktop;
};

class LinkedRepositoryTest : public LinkedDesktop {
 protected:
  LinkedRepositoryTest() {
    desktop.registry.Settings("Options") = {
        {"Favorites Threshold", "2"}, {"Purge Age", "30"}, {"Timer Interval", "60"}};
  }

  void File(const std::string& day, const std::string& name, const std::string& localTime) const {
    fs::create_directories(Disk() + "/" + day);
    platform::ShellLink link;
    link.target = "Z:\\home\\ana\\" + name;
    testing::WriteShortcut(Disk() + "/" + day + "/" + name + ".lnk", link, localTime);
  }
  std::string Key(const std::string& path) const { return "K" + desktop.Folder() + "\\Daily\\" + path; }
  void Select(const std::string& path) {
    window.tvwMain.SetSelectedItem(&window.tvwMain.Node(Key(path)));
    window.tvwMain.NodeClick.Raise(window.tvwMain.Node(Key(path)));
  }

  Application application{desktop.desktop, desktop.Folder()};
  CRepository repository{application};
  FMain window{application, repository};
};

TEST_F(LinkedRepositoryTest, WhatIsOpenedIsFiledOnTheOtherDiskAndShown) {
  desktop.OpenDocument("Z:\\home\\ana\\a.odt", "2026-11-20 09:15:00");
  window.Form_Load();
  EXPECT_TRUE(fs::exists(Disk() + "/2026/November/20/a.odt.lnk"));
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   20"));
  window.form.Activate.Raise();
  EXPECT_THAT(testing::ColumnOf(window.lvwDaily, 0), ElementsAre("a.odt"));
  EXPECT_TRUE(window.calMain.Highlight(20));
}

TEST_F(LinkedRepositoryTest, TheLatestDayIsFound) {
  File("2026/May/05", "a.odt", "2026-05-05 10:00:00");
  EXPECT_EQ(repository.FindLatestDay(), Date::Of(2026, 5, 5));
}

TEST_F(LinkedRepositoryTest, FavoritesAreCountedFromIt) {
  File("2026/November/19", "a.odt", "2026-11-19 10:00:00");
  File("2026/November/20", "a.odt", "2026-11-20 10:00:00");
  window.Form_Load();
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 3), ElementsAre("    2"));
}

TEST_F(LinkedRepositoryTest, OldDaysArePurgedAndWhatTheyEmptyIsSweptButNotTheRecordItself) {
  File("2026/May/05", "a.odt", "2026-05-05 10:00:00");
  window.Form_Load();
  EXPECT_EQ(desktop.windowing.messages.size(), 1U);
  EXPECT_TRUE(fs::is_empty(Disk()));
  EXPECT_TRUE(fs::is_symlink(Link()));
}

TEST_F(LinkedRepositoryTest, ADayCanBePurgedFromTheTree) {
  File("2026/November/19", "a.odt", "2026-11-19 10:00:00");
  File("2026/November/20", "b.odt", "2026-11-20 10:00:00");
  window.Form_Load();
  window.PurgeDay(&window.tvwMain.Node(Key("2026\\November\\19")));
  EXPECT_FALSE(fs::exists(Disk() + "/2026/November/19"));
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   20"));
}

TEST_F(LinkedRepositoryTest, AFavoriteThatWasRecordedBeforeTheMoveCanBeRemovedFromBothLists) {
  File("2026/November/20", "a.odt", "2026-11-20 10:00:00");
  desktop.folder.Write("program/Favorites.dat", "5,#2026-11-20 10:00:00#,\"" +
                                                    Key("2026\\November\\20\\a.odt.lnk").substr(1) +
                                                    "\",\"a.odt\",\"z:\\home\\ana\",\"Text\",\"\",0\r\n");
  window.Form_Load();
  Select("2026\\November\\20");
  ASSERT_EQ(window.lvwDaily.Count(), 1U);
  window.RemoveLink(&window.lvwFavorites.Row(0));
  EXPECT_EQ(window.lvwDaily.Count(), 0U);
  EXPECT_TRUE(fs::is_empty(Disk()));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(LinkedRepositoryTest, LinksBelowTheRecordAreNeitherShownNorCountedNorPurged) {
  const std::string mine = desktop.folder.Write("mine/05/a.odt.lnk", "");
  File("2026/November/20", "a.odt", "2026-11-20 10:00:00");
  for (const char* name : {"/2025", "/2026/May", "/2026/November/19"})
    testing::MakeFolderLink(desktop.folder / "mine", Disk() + name);
  window.Form_Load();
  EXPECT_TRUE(fs::exists(mine));
  EXPECT_TRUE(fs::is_symlink(Disk() + "/2025"));
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily", " 2026", "  November", "   20"));
  EXPECT_THAT(testing::ColumnOf(window.lvwFavorites, 0), IsEmpty());
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

TEST_F(LinkedRepositoryTest, ADiskThatGoesAwayWhileTheProgramRunsShowsNothingAndPurgesNothing) {
  File("2026/November/20", "a.odt", "2026-11-20 10:00:00");
  window.Form_Load();
  fs::rename(desktop.folder / "disk", desktop.folder / "away");
  window.RefreshDaily();
  EXPECT_FALSE(repository.PurgeEmptyFolders());
  EXPECT_TRUE(repository.FindLatestDay().IsZero());
  EXPECT_THAT(testing::TextsOf(window.tvwMain), ElementsAre("Daily"));
  EXPECT_THAT(desktop.windowing.Texts(), IsEmpty());
}

/// The start, with the link as a test puts it.
class RecordLinkTest : public LinkedDesktop {
 protected:
  void LinkTo(const std::string& native) const {
    fs::remove(Link());
    testing::MakeFileLink(native, Link());
  }
  std::string ErrorOfStart() {
    try {
      const CRepository repository(application);
    } catch (const Error& error) {
      return error.what();
    }
    return {};
  }

  Application application{desktop.desktop, desktop.Folder()};
};

TEST_F(RecordLinkTest, AFolderThatIsMissingAtTheLinksEndIsMade) {
  fs::remove(Disk());
  EXPECT_EQ(ErrorOfStart(), "");
  EXPECT_TRUE(fs::is_directory(Disk()));
}

TEST_F(RecordLinkTest, AMissingDiskIsToldAndNothingIsMadeInItsPlace) {
  fs::remove_all(desktop.folder / "disk");
  EXPECT_THAT(ErrorOfStart(), HasSubstr("leads to no folder"));
  EXPECT_FALSE(fs::exists(desktop.folder / "disk"));
}

TEST_F(RecordLinkTest, ALinkToAFileIsTold) {
  LinkTo(desktop.folder.Write("file", ""));
  EXPECT_THAT(ErrorOfStart(), HasSubstr("leads to no folder"));
}

TEST_F(RecordLinkTest, ALinkToItselfIsTold) {
  LinkTo(Link());
  EXPECT_THAT(ErrorOfStart(), HasSubstr("symbolic links"));
}

TEST_F(RecordLinkTest, ALinkToALinkIsFollowedToItsEnd) {
  testing::MakeFolderLink(Disk(), desktop.folder / "second");
  LinkTo("../second");
  EXPECT_EQ(ErrorOfStart(), "");
  fs::create_directories(Disk() + "/2026/May/05");
  EXPECT_EQ(CRepository(application).FindLatestDay(), Date::Of(2026, 5, 5));
}

}  // namespace
}  // namespace dayvane
