// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/RecentShortcuts.h"
#include "tests/linux/recent/RecentDesk.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using testing::kMorning;
using testing::kNoon;
using ::testing::Pair;
using testing::RecentDesk;

std::string Target(const RecentDesk& desk, const std::string& name) {
  const std::string link = testing::ReadFile(desk.Shortcut(name));
  return link.substr(0, link.find('\t'));
}

/// Documents "/d/0" and so on, opened a second after one another.
std::map<std::string, std::string> Series(int count) {
  std::map<std::string, std::string> documents;
  for (int i = 0; i < count; ++i)
    documents["/d/" + std::to_string(i)] = testing::Written(testing::At(kMorning) + i * kNanosecondsPerSecond);
  return documents;
}

TEST(RecentShortcuts, TheFirstInTheListGetsThePlainName) {
  RecentDesk desk;
  desk.PutBookmarks(RecentDesk::Bookmark("file:///z/Report.odt", kMorning) +
                    RecentDesk::Bookmark("file:///a/Report.odt", kNoon));
  desk.Poll();
  EXPECT_EQ(Target(desk, "Report.odt.lnk"), "Z:\\z\\Report.odt");
  EXPECT_EQ(Target(desk, "Report.odt (2).lnk"), "Z:\\a\\Report.odt");
}

TEST(RecentShortcuts, ADocumentKeepsItsNameWhateverHappensToTheOthers) {
  RecentDesk desk;
  desk.PutDocuments({{"/a/Report.odt", kMorning}, {"/b/Report.odt", kMorning}});
  desk.Poll();
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  desk.PutDocuments({{"/b/Report.odt", kNoon}, {"/c/REPORT.odt", kNoon}});
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
  EXPECT_EQ(Target(desk, "Report.odt (2).lnk"), "Z:\\b\\Report.odt");
  EXPECT_EQ(Target(desk, "REPORT.odt (3).lnk"), "Z:\\c\\REPORT.odt");
  desk.PutDocuments({{"/a/Report.odt", kNoon}});
  desk.Poll();
  EXPECT_EQ(Target(desk, "Report.odt.lnk"), "Z:\\a\\Report.odt");
}

TEST(RecentShortcuts, AFileOfTheUsersKeepsItsPlace) {
  RecentDesk desk;
  desk.m_folder.Write("Recent/REPORT.odt.lnk", "the user's own");
  fs::create_directory(desk.Shortcut("x.txt.lnk"));
  desk.PutDocuments({{"/a/Report.odt", kMorning}, {"/a/x.txt", kMorning}});
  desk.Poll();
  EXPECT_EQ(testing::ReadFile(desk.Shortcut("REPORT.odt.lnk")), "the user's own");
  EXPECT_EQ(Target(desk, "Report.odt (2).lnk"), "Z:\\a\\Report.odt");
  EXPECT_EQ(Target(desk, "x.txt (2).lnk"), "Z:\\a\\x.txt");
}

TEST(RecentShortcuts, AFileOfTheUsersSurvivesAClearing) {
  RecentDesk desk;
  desk.m_folder.Write("Recent/mine.lnk", "the user's own");
  desk.PutDocuments({{"/a/Report.odt", kMorning}});
  desk.Poll();
  desk.PutDocuments({});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("mine.lnk", ::testing::_)));
}

TEST(RecentShortcuts, AHiddenDocumentsShortcutIsVisible) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/.bashrc", kMorning}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("_.bashrc.lnk", ::testing::_)));
}

TEST(RecentShortcuts, LongNamesAreDistinctAndFitTheFileSystem) {
  RecentDesk desk;
  const std::string prefix(249, 'x');
  desk.PutDocuments({{"/a/" + prefix + "aaaa", kMorning}, {"/a/" + prefix + "aabb", kMorning}});
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
  EXPECT_EQ(Target(desk, prefix + "aa.lnk"), "Z:\\a\\" + prefix + "aaaa");
  EXPECT_EQ(Target(desk, prefix.substr(0, 247) + " (2).lnk"), "Z:\\a\\" + prefix + "aabb");
}

TEST(RecentShortcuts, TheNewestAreKeptOnceTheOthersAreCaptured) {
  RecentDesk desk;
  desk.m_limits.shortcuts = 10;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments(Series(15));
  folder.Refresh();
  EXPECT_EQ(desk.Shortcuts().size(), 15U) << "nothing goes before it is captured";
  folder.Captured();
  const auto kept = desk.Shortcuts();
  EXPECT_EQ(kept.size(), 10U);
  EXPECT_EQ(kept.count("4.lnk"), 0U);
  EXPECT_EQ(kept.count("5.lnk"), 1U);
}

TEST(RecentShortcuts, AThousandAreKept) {
  EXPECT_EQ(RecentShortcuts::Limits().shortcuts, 1000U);
}

TEST(RecentShortcuts, APrunedShortcutComesBackOnlyWhenItsDocumentIsOpenedAgain) {
  RecentDesk desk;
  desk.m_limits.shortcuts = 10;
  auto documents = Series(11);
  desk.PutDocuments(documents);
  desk.Poll();
  documents["/d/5"] = kNoon;
  desk.PutDocuments(documents);
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().count("0.lnk"), 0U);
  documents["/d/0"] = kNoon;
  desk.PutDocuments(documents);
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().count("0.lnk"), 1U);
  EXPECT_EQ(desk.Shortcuts().count("1.lnk"), 0U);
}

TEST(RecentShortcuts, AShortcutWrittenAnewIsNotPruned) {
  RecentDesk desk;
  desk.m_limits.shortcuts = 10;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments(Series(11));
  folder.Refresh();
  testing::SetWritten(desk.Shortcut("0.lnk"), "2026-11-28 09:00:00");
  folder.Captured();
  EXPECT_EQ(desk.Shortcuts().count("0.lnk"), 1U);
}

TEST(RecentShortcuts, AnEmptyShortcutThatAPowerCutLeftIsWrittenAgain) {
  RecentDesk desk;
  desk.PutDocuments({{"/a/Report.odt", kMorning}});
  desk.Poll();
  desk.m_folder.Write("Recent/Report.odt.lnk", "");
  desk.Start();
  desk.Poll();
  EXPECT_EQ(Target(desk, "Report.odt.lnk"), "Z:\\a\\Report.odt");
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T08:00:00.000000000Z")));
}

TEST(RecentShortcuts, TheStateHasABoundAndKeepsWhatIsListed) {
  RecentDesk desk;
  desk.m_limits = {10, 20};
  desk.PutDocuments({{"/keep/0", "2020-01-01T00:00:00Z"}, {"/lost/1", "2020-01-01T00:00:00Z"}});
  desk.Poll();
  fs::remove(desk.Shortcut("0.lnk"));
  fs::remove(desk.Shortcut("1.lnk"));
  auto documents = Series(30);
  documents["/keep/0"] = "2020-01-01T00:00:00Z";
  desk.PutDocuments(documents);
  desk.Poll();
  desk.PutDocuments({{"/keep/0", "2020-01-01T00:00:00Z"}});
  desk.Poll();
  const StateReading state = ReadState(testing::ReadFile(desk.m_state));
  EXPECT_EQ(state.state.documents.size(), 20U);
  EXPECT_EQ(state.state.documents.count("/keep/0"), 1U);
  EXPECT_EQ(state.state.documents.count("/lost/1"), 0U);
}

TEST(RecentShortcuts, AForgottenDocumentsOldOpeningIsStillKnown) {
  RecentDesk desk;
  desk.m_limits = {10, 20};
  desk.PutDocuments({{"/lost/1", "2020-01-01T00:00:00Z"}});
  desk.Poll();
  fs::remove(desk.Shortcut("1.lnk"));
  desk.PutDocuments(Series(20));
  desk.Poll();
  desk.PutDocuments({{"/lost/1", "2020-01-01T00:00:00Z"}, {"/other/1", "2026-11-29T00:00:00Z"}});
  desk.Start();
  desk.Poll();
  const auto shortcuts = desk.Shortcuts();
  EXPECT_EQ(shortcuts.count("1.lnk"), 0U) << "neither brought back nor given to another document";
  EXPECT_EQ(Target(desk, "1 (3).lnk"), "Z:\\other\\1");
}

}  // namespace
}  // namespace dayvane::recent
