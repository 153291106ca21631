// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "links/ShellLinkFormat.h"
#include "linux/files/NativePath.h"
#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;
using testing::RecentDesk;

constexpr const char* kExactMorning = "2026-11-20T08:00:00.110427Z";
constexpr const char* kExactNoon = "2026-11-20T12:00:00.5Z";

TEST(RecentFolder, AShortcutIsWrittenAtTheMomentOfTheOpening) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Start().Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T08:00:00.110427000Z")));
  EXPECT_THAT(desk.m_events, IsEmpty());
}

TEST(RecentFolder, TheLinkLeadsToTheDocument) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/top", kExactMorning}});
  desk.Start().Refresh();
  EXPECT_EQ(testing::ReadFile(desk.Shortcut("Report.odt.lnk")), "Z:\\home\\ana\\Report.odt\t\t1\twhole");
  EXPECT_EQ(testing::ReadFile(desk.Shortcut("top.lnk")), "Z:\\top\t\t1\twhole");
}

TEST(RecentFolder, TheShellReadsItsLinksBack) {
  RecentDesk desk;
  RecentFolder folder([&] { return desk.m_now; }, {desk.m_list, desk.m_recent, desk.m_state}, links::WriteShellLink,
                      [](const std::string&) {});
  desk.PutDocuments({{"/home/ana/\xD0\x9E\xD1\x82 \"1\".odt", kExactMorning}});
  folder.Refresh();
  const auto link = links::ParseShellLink(testing::ReadFile(desk.Shortcut("\xD0\x9E\xD1\x82 \"1\".odt.lnk")));
  ASSERT_TRUE(link.has_value());
  EXPECT_EQ(files::ToNative(link->target), "/home/ana/\xD0\x9E\xD1\x82 \"1\".odt");
  EXPECT_EQ(link->workingDirectory, "");
  EXPECT_EQ(link->showCommand, 1);
}

TEST(RecentFolder, BeforeTheFirstRefreshNothingHappens) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  const std::string before = desk.Traces();
  RecentFolder& folder = desk.Start();
  folder.RememberOpenings();
  folder.Captured();
  EXPECT_EQ(desk.Traces(), before);
}

TEST(RecentFolder, TheFolderIsMadeWithThoseAboveItForTheUserAlone) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  RecentFolder folder([&] { return desk.m_now; },
                      {desk.m_list, desk.m_folder / "new/Recent", desk.m_folder / "also/new/state"},
                      [](const platform::ShellLink& link) { return link.target; }, [](const std::string&) {});
  folder.Refresh();
  EXPECT_TRUE(fs::exists(desk.m_folder / "new/Recent/Report.odt.lnk"));
  EXPECT_TRUE(fs::exists(desk.m_folder / "also/new/state"));
  EXPECT_EQ(fs::status(desk.m_folder / "new/Recent").permissions(), fs::perms::owner_all);
}

TEST(RecentFolder, WhileNothingChangesNothingIsWritten) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactNoon}});
  desk.Poll();
  const std::string before = desk.Traces();
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Traces(), before);
}

TEST(RecentFolder, AListWrittenAnewWithTheSameOpeningsWritesNothing) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  const auto changes = desk.m_disk.changes;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  EXPECT_EQ(desk.m_disk.changes, changes);
}

TEST(RecentFolder, AnUnchangedListIsNotReadAgain) {
  RecentDesk desk;
  int clockReadings = 0;
  RecentFolder folder([&] { return ++clockReadings, desk.m_now; }, {desk.m_list, desk.m_recent, desk.m_state},
                      [](const platform::ShellLink& link) { return link.target; }, [](const std::string&) {});
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  for (int poll = 0; poll < 5; ++poll) folder.Refresh();
  EXPECT_EQ(clockReadings, 1) << "openings are judged once for each reading of the list";
}

TEST(RecentFolder, ADocumentOpenedAgainMovesItsShortcut) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  desk.PutDocuments({{"/home/ana/Report.odt", kExactNoon}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T12:00:00.500000000Z")));
}

TEST(RecentFolder, AMissingEntryRemovesNothing) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  desk.PutDocuments({{"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  fs::remove(desk.m_list);
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
}

TEST(RecentFolder, ARemovedLinkStaysRemovedUntilItsDocumentIsOpenedAgain) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  desk.Start();
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("x.txt.lnk", ::testing::_)));
  desk.PutDocuments({{"/home/ana/Report.odt", kExactNoon}});
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().count("Report.odt.lnk"), 1U);
}

TEST(RecentFolder, AnEntryThatIsLostAndComesBackIsNoOpening) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  desk.PutDocuments({{"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().count("Report.odt.lnk"), 0U);
}

TEST(RecentFolder, ALinkThatTheProgramPutsBackIsLeftAlone) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  const std::string link = testing::ReadFile(desk.Shortcut("Report.odt.lnk"));
  fs::remove(desk.Shortcut("Report.odt.lnk"));
  desk.m_folder.Write("Recent/Report.odt.lnk", link);
  testing::SetWritten(desk.Shortcut("Report.odt.lnk"), "2026-11-28 09:00:00");
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}, {"/home/ana/x.txt", kExactMorning}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(),
              ElementsAre(Pair("Report.odt.lnk", "2026-11-28T09:00:00.000000000Z"), Pair("x.txt.lnk", ::testing::_)));
}

TEST(RecentFolder, TheOpeningBehindALinkPutBackMovesTheSameShortcut) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/Report.odt", kExactMorning}});
  desk.Poll();
  testing::SetWritten(desk.Shortcut("Report.odt.lnk"), "2026-11-28 09:00:00");
  desk.PutDocuments({{"/home/ana/Report.odt", "2026-11-28T09:00:02.25Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-28T09:00:02.250000000Z")));
}

TEST(RecentFolder, AnUnknownTimeIsTheMomentTheEntryWasFirstSeen) {
  RecentDesk desk;
  desk.PutBookmarks("<bookmark href=\"file:///home/ana/x.txt\"/>");
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("x.txt.lnk", "2026-12-01T12:00:00.000000000Z")));
  const std::string before = desk.Traces();
  desk.m_now = testing::At("2026-12-05T12:00:00Z");
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Traces(), before) << "not opened again by being seen again";
}

TEST(RecentFolder, ATimeInTheFutureIsTheMomentItWasFirstSeenForEver) {
  RecentDesk desk;
  desk.PutDocuments({{"/home/ana/x.txt", "2027-01-01T00:00:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("x.txt.lnk", "2026-12-01T12:00:00.000000000Z")));
  const std::string before = desk.Traces();
  desk.m_now = testing::At("2027-02-01T00:00:00Z");
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Traces(), before);
}

TEST(RecentFolder, ADocumentSpelledByGtkAndByKdeHasOneShortcut) {
  RecentDesk desk;
  desk.PutBookmarks(RecentDesk::Bookmark("file:///home/a%3Bb%5Bc%5D.txt", kExactNoon) +
                    RecentDesk::Bookmark("file:///home/a;b[c].txt", kExactMorning));
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("a;b[c].txt.lnk", "2026-11-20T12:00:00.500000000Z")));
}

TEST(RecentFolder, WhatIsNobodysBusinessOrNoDocumentStaysOut) {
  RecentDesk desk;
  desk.PutBookmarks(
      "<bookmark href=\"file:///secret\"><info><metadata><bookmark:private/></metadata></info></bookmark>"
      "<bookmark href=\"file:///home/ana/\"><info><metadata><mime:mime-type "
      "type=\"inode/directory\"/></metadata></info>"
      "</bookmark><bookmark href=\"smb://server/x\"/><bookmark href=\"file://server/x\"/>"
      "<bookmark href=\"file:///media/usb/.Trash-1000/files/x\"/><bookmark href=\"file:///x%zz\"/><bookmark/>"
      "<bookmark href=\"file://" +
      desk.m_folder / "share/Trash/files/x\"/>");
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
  EXPECT_THAT(desk.m_events, IsEmpty());
}

TEST(RecentFolder, AnyNameThatLinuxAllowsWorks) {
  RecentDesk desk;
  const std::vector<std::string> names = {
      " a b ", "100%25", "a;b[c]", "back\\slash", "quo\"te", "line\nbreak", "\xC3\xA9\xE6\x96\x87",
      "?x=1",  "#1",     "~",      "%zz",         "\x01"};
  std::map<std::string, std::string> documents;
  for (const std::string& name : names) documents["/home/ana/" + name] = kExactMorning;
  desk.PutDocuments(documents);
  desk.Poll();
  for (const std::string& name : names) {
    EXPECT_EQ(desk.Shortcuts().count(name + ".lnk"), 1U) << name;
    EXPECT_EQ(desk.Filed().count("/home/ana/" + name + " 2026-11-20"), 1U) << name;
  }
  EXPECT_THAT(desk.m_events, IsEmpty());
}

TEST(RecentFolder, ANameThatCannotBeSpelledIsLeftOutAndReportedOnce) {
  RecentDesk desk;
  const std::string bookmarks = RecentDesk::Bookmark("file:///a%FF%FEb", kExactMorning) +
                                RecentDesk::Bookmark("file:///c%EF%80%A2", kExactMorning);
  desk.PutBookmarks(bookmarks);
  desk.Poll();
  desk.PutBookmarks(bookmarks + "\n");
  desk.Poll();
  desk.Start();
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
  EXPECT_THAT(desk.m_events, ElementsAre(HasSubstr("/a"), HasSubstr("/c")));
}

TEST(RecentFolder, ADocumentWhoseLinkCannotBeWrittenIsLeftOutAndReportedOnce) {
  RecentDesk desk;
  std::vector<std::string> events;
  RecentFolder folder([&] { return desk.m_now; }, {desk.m_list, desk.m_recent, desk.m_state},
                      [](const platform::ShellLink& link) -> std::string {
                        if (link.target.ends_with("bad")) throw Error(kInvalidProcedureCall, "Too long");
                        return link.target;
                      },
                      [&](const std::string& event) { events.push_back(event); });
  desk.PutDocuments({{"/home/bad", kExactMorning}, {"/home/good", kExactMorning}});
  for (int poll = 0; poll < 3; ++poll) folder.Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("good.lnk", ::testing::_)));
  EXPECT_THAT(events, ElementsAre(HasSubstr("/home/bad")));
}

}  // namespace
}  // namespace dayvane::recent
