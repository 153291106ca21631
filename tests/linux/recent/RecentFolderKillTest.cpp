// SPDX-License-Identifier: MIT
#include <filesystem>
#include <functional>
#include <gmock/gmock.h>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// The program may be killed between any two changes that it makes to the disk.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using testing::RecentDesk;

/// What the folder holds in the end, what was filed, and how many changes that took.
struct Outcome {
  std::map<std::string, std::string> shortcuts;
  std::set<std::string> filed;
  int changes = 0;
};

using Step = std::function<void(RecentDesk&)>;

/// A fortnight of a user's: documents of one name, openings on many days with and without captures between, unknown
/// and future times, a link removed, a list that loses entries and one that is emptied.
std::vector<Step> Fortnight() {
  const auto open = [](std::map<std::string, std::string> documents) {
    return [documents = std::move(documents)](RecentDesk& desk) { desk.PutDocuments(documents); };
  };
  const auto refresh = [](RecentDesk& desk) { desk.Start().Refresh(); };
  const auto poll = [](RecentDesk& desk) { desk.Poll(); };
  return {
      open({{"/a/Report.odt", "2026-11-20T08:00:00.1Z"},
            {"/b/Report.odt", "2026-11-20T08:01:00Z"},
            {"/c/x", "2030-01-01T00:00:00Z"}}),
      refresh,
      open({{"/a/Report.odt", "2026-11-21T08:00:00.1Z"},
            {"/b/Report.odt", "2026-11-20T08:01:00Z"},
            {"/c/x", "2030-01-01T00:00:00Z"}}),
      refresh,
      open({{"/a/Report.odt", "2026-11-22T08:00:00.1Z"}, {"/d/y", "2026-11-22T08:00:00Z"}}),
      poll,
      poll,
      poll,
      [](RecentDesk& desk) { fs::remove(desk.Shortcut("Report.odt (2).lnk")); },
      [](RecentDesk& desk) {
        desk.PutBookmarks(RecentDesk::Bookmark("file:///b/Report.odt", "2026-11-20T08:01:00Z") +
                          RecentDesk::Bookmark("file:///c/x", "2030-01-01T00:00:00Z") +
                          "<bookmark href=\"file:///e/z\"/>" +
                          RecentDesk::Bookmark("file:///c/Report.odt", "2026-11-23T08:00:00Z"));
      },
      poll,
      open({}),
      poll,
      open({{"/a/Report.odt", "2026-11-22T08:00:00.1Z"}, {"/d/y", "2026-11-24T08:00:00Z"}}),
      poll,
  };
}

/// Lives through the steps. A session that ends is followed by one that begins with a poll, at whatever time.
Outcome Live(int changesUntilEnd) {
  RecentDesk desk;
  desk.m_disk.changesUntilEnd = changesUntilEnd;
  for (const Step& step : Fortnight()) {
    try {
      step(desk);
    } catch (const testing::SessionEnds&) {
      desk.Start();
      desk.Poll();
    }
  }
  return {desk.Shortcuts(), desk.Filed(), desk.m_disk.changes};
}

TEST(RecentFolderKill, NoKillMissesAnOpeningOrDoublesOrBringsBackAShortcut) {
  const Outcome whole = Live(-1);
  ASSERT_GT(whole.changes, 20);
  for (int change = 0; change < whole.changes; ++change) {
    const Outcome interrupted = Live(change);
    EXPECT_EQ(interrupted.shortcuts, whole.shortcuts) << "killed before change " << change;
    EXPECT_EQ(interrupted.filed, whole.filed) << "killed before change " << change;
  }
}

TEST(RecentFolderKill, TheFortnightsOpeningsAreAllFiled) {
  EXPECT_THAT(Live(-1).filed,
              ::testing::ElementsAre("/a/Report.odt 2026-11-20", "/a/Report.odt 2026-11-21", "/a/Report.odt 2026-11-22",
                                     "/b/Report.odt 2026-11-20", "/c/Report.odt 2026-11-23", "/c/x 2026-12-01",
                                     "/d/y 2026-11-22", "/d/y 2026-11-24", "/e/z 2026-12-01"));
}

TEST(RecentFolderKill, AKillWithinAWriteLeavesNoHalfShortcut) {
  RecentDesk desk;
  desk.m_folder.Write("Recent/.dayvane-unfinished", "half a li");
  desk.PutDocuments({{"/a/Report.odt", "2026-11-20T08:00:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ::testing::ElementsAre(::testing::Pair("Report.odt.lnk", ::testing::_)));
}

}  // namespace
}  // namespace dayvane::recent
