// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/RecentFolder.h"
#include "linux/recent/RecentState.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/linux/recent/RecentDesk.h"

/// Lists, states and disks in trouble: told once, and nothing is lost.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kMorning;
using testing::kNoon;
using testing::kReport;
using ::testing::Pair;
using testing::RecentDesk;

constexpr fs::perms kReadOnly =
    fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read | fs::perms::others_exec;

TEST(RecentFolderTrouble, AMissingListIsReportedEachTimeItGoesMissing) {
  RecentDesk desk;
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("is missing")));
  desk.PutDocuments({{kReport, kMorning}});
  desk.Poll();
  EXPECT_EQ(desk.m_events.size(), 1U);
  fs::remove(desk.m_list);
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_EQ(desk.m_events.size(), 2U);
}

TEST(RecentFolderTrouble, ADamagedListIsReportedOnceAndItsWholeEntriesCount) {
  RecentDesk desk;
  for (const char* damage : {"<bookmark href=\"", "<<", "</oops>"}) {
    desk.PutBookmarks(RecentDesk::Bookmark("file:///1", kMorning) + damage +
                      RecentDesk::Bookmark("file:///2", kMorning));
    for (int poll = 0; poll < 3; ++poll) desk.Poll();
  }
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("is damaged")));
}

TEST(RecentFolderTrouble, AListOfNothingReadableIsReportedOnce) {
  RecentDesk desk;
  fs::create_directory(desk.m_list);
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("cannot be read")));
}

TEST(RecentFolderTrouble, AFloodIsReportedAndFiled) {
  RecentDesk desk;
  std::map<std::string, std::string> documents;
  for (int i = 0; i < 101; ++i) documents["/d/" + std::to_string(i)] = kMorning;
  desk.PutDocuments(documents);
  desk.Poll();
  EXPECT_EQ(desk.Filed().size(), 101U);
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("101 new documents")));
}

TEST(RecentFolderTrouble, AHundredNewDocumentsAreNoFlood) {
  RecentDesk desk;
  std::map<std::string, std::string> documents;
  for (int i = 0; i < 100; ++i) documents["/d/" + std::to_string(i)] = kMorning;
  desk.PutDocuments(documents);
  desk.Poll();
  EXPECT_THAT(desk.m_events, IsEmpty());
}

TEST(RecentFolderTrouble, AFullDiskLosesNoOpeningEvenIfTheEntryVanishesMeanwhile) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, kMorning}});
  desk.m_disk.isFull = true;
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("No space left on device")));
  desk.PutDocuments({{"/home/ana/x.txt", kNoon}});
  desk.m_disk.isFull = false;
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/x.txt 2026-11-20"));
}

TEST(RecentFolderTrouble, ADiskThatIsFullAgainIsReportedAgain) {
  RecentDesk desk;
  for (const char* opened : {kMorning, kNoon}) {
    desk.PutDocuments({{kReport, opened}});
    desk.m_disk.isFull = true;
    desk.Poll();
    desk.m_disk.isFull = false;
    desk.Poll();
  }
  EXPECT_EQ(desk.m_events.size(), 2U);
}

TEST(RecentFolderTrouble, OneShortcutThatCannotBeWrittenDoesNotKeepTheOthersFromIt) {
  RecentDesk desk;
  desk.m_disk.refusedName = "a.lnk";
  desk.PutDocuments({{"/d/a", kMorning}, {"/d/b", kMorning}});
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("b.lnk", ::testing::_)));
  EXPECT_EQ(desk.m_events.size(), 1U);
  desk.m_disk.refusedName.clear();
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
}

TEST(RecentFolderTrouble, AFolderThatCannotBeMadeIsReportedOnceAndMadeLater) {
  RecentDesk desk;
  const std::string blocked = desk.m_folder.Write("blocked", "a file where a folder should be");
  std::vector<std::string> events;
  RecentFolder folder([&] { return desk.m_now; }, {desk.m_list, blocked + "/Recent", desk.m_state},
                      [](const platform::ShellLink& link) { return link.target; },
                      [&](const std::string& event) { events.push_back(event); });
  desk.PutDocuments({{kReport, kMorning}});
  for (int poll = 0; poll < 3; ++poll) folder.Refresh();
  EXPECT_EQ(events.size(), 1U);
  fs::remove(blocked);
  folder.Refresh();
  EXPECT_TRUE(fs::exists(blocked + "/Recent/Report.odt.lnk"));
}

TEST(RecentFolderTrouble, AFolderWithoutWritePermissionIsReportedOnceAndWrittenLater) {
  RecentDesk desk;
  desk.PutDocuments({});
  desk.Poll();
  desk.m_events.clear();
  desk.PutDocuments({{kReport, kMorning}});
  for (const std::string& path : {desk.m_folder.Native(), desk.m_folder / "share", desk.m_folder / "state"})
    fs::permissions(path, fs::perms::all);
  fs::permissions(desk.m_recent, kReadOnly);
  {
    const testing::UnprivilegedUser user;
    for (int poll = 0; poll < 3; ++poll) desk.Poll();
  }
  fs::permissions(desk.m_recent, fs::perms::all);
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("cannot be kept up to date")));
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 1U);
}

TEST(RecentFolderTrouble, ALostStateIsReportedOnceAndMadeAnewFromListAndFolder) {
  RecentDesk desk;
  desk.PutDocuments({{"/a/Report.odt", kMorning}, {"/b/Report.odt", kMorning}, {"/b/x.txt", kMorning}});
  desk.Poll();
  const auto before = desk.Shortcuts();
  fs::remove(desk.m_state);
  desk.PutDocuments({{"/b/Report.odt", kMorning}, {"/b/x.txt", kNoon}, {"/c/Report.odt", kNoon}});
  for (int session = 0; session < 2; ++session) {
    desk.Start();
    desk.Poll();
  }
  auto after = desk.Shortcuts();
  EXPECT_EQ(after["x.txt.lnk"], "2026-11-20T12:00:00.000000000Z");
  EXPECT_EQ(after["Report.odt (3).lnk"], "2026-11-20T12:00:00.000000000Z");
  EXPECT_EQ(after["Report.odt (2).lnk"], before.at("Report.odt (2).lnk"));
  EXPECT_EQ(after.size(), 4U);
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("state is missing")));
}

TEST(RecentFolderTrouble, WithoutStateAnUnknownTimeIsThatOfTheShortcut) {
  RecentDesk desk;
  desk.PutBookmarks("<bookmark href=\"file:///x\"/>");
  desk.Poll();
  const auto before = desk.Shortcuts();
  fs::remove(desk.m_state);
  desk.m_now = testing::At("2026-12-09T12:00:00Z");
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts(), before);
}

TEST(RecentFolderTrouble, AStateCutAnywhereDoublesAndLosesNothing) {
  RecentDesk desk;
  const std::map<std::string, std::string> documents = {
      {"/a/Report.odt", kMorning}, {"/b/Report.odt", kNoon}, {"/b/x.txt", kMorning}};
  desk.PutDocuments(documents);
  desk.Poll();
  const auto shortcuts = desk.Shortcuts();
  const std::string state = testing::ReadFile(desk.m_state);
  for (std::size_t length = 0; length < state.size(); ++length) {
    desk.m_events.clear();
    desk.m_folder.Write("state/recent.txt", state.substr(0, length));
    desk.Start();
    desk.Poll();
    ASSERT_EQ(desk.Shortcuts(), shortcuts) << length;
    ASSERT_THAT(desk.m_events, ElementsAre(HasSubstr("state is damaged"))) << length;
    desk.m_events.clear();
    desk.Start();
    desk.Poll();
    ASSERT_THAT(desk.m_events, IsEmpty()) << length << ": the state is sound again";
  }
}

TEST(RecentFolderTrouble, AStateThatCannotBeReadForAMomentIsNotMadeAnew) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, kMorning}, {"/home/ana/old/Report.odt", kMorning}});
  desk.Poll();
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  const auto shortcuts = desk.Shortcuts();
  const std::string aside = desk.m_state + ".aside";
  fs::rename(desk.m_state, aside);
  fs::create_directory(desk.m_state);
  desk.Start();
  desk.Poll();
  fs::remove(desk.m_state);
  fs::rename(aside, desk.m_state);
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts(), shortcuts) << "what the user removed stays removed";
  EXPECT_THAT(desk.m_events, IsEmpty());
}

TEST(RecentFolderTrouble, AStateThatCannotBeReadIsReportedAndMadeAnew) {
  RecentDesk desk;
  fs::create_directories(desk.m_state);
  desk.PutDocuments({{kReport, kMorning}});
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 1U);
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("state cannot be read"), HasSubstr("cannot be kept up to date")));
}

}  // namespace
}  // namespace dayvane::recent
