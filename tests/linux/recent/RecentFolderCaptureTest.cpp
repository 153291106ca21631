// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// No opening is missed, although the folder shows only the last one of a document.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::kReport;
using ::testing::Pair;
using testing::RecentDesk;

TEST(RecentFolderCapture, AnOpeningOnAnotherDayWaitsUntilTheShortcutIsCaptured) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  RecentFolder& folder = desk.Start();
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-21T09:00:00Z"}});
  folder.Refresh();
  folder.Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T08:00:00.000000000Z")));
  folder.Captured();
  folder.Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-21T09:00:00.000000000Z")));
}

TEST(RecentFolderCapture, AnOpeningOnTheSameDayDoesNotWait) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-20T09:00:00Z"}});
  folder.Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T09:00:00.000000000Z")));
}

TEST(RecentFolderCapture, TheDayIsThatOfTheUsersCalendar) {
  RecentDesk desk;
  const testing::LocalZone zone("Europe/Berlin");
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T22:30:00Z"}});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-20T23:30:00Z"}});
  folder.Refresh();
  desk.Poll();
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
}

TEST(RecentFolderCapture, EveryDayCountsThatPassedWhileNothingWasCaptured) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  for (const char* opened :
       {"2026-11-20T08:00:00Z", "2026-11-21T08:00:00Z", "2026-11-21T18:00:00Z", "2026-11-23T08:00:00Z"}) {
    desk.PutDocuments({{kReport, opened}});
    folder.Refresh();
  }
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21",
                                        "/home/ana/Report.odt 2026-11-23"));
}

TEST(RecentFolderCapture, WhatWaitsIsKeptFromOneSessionToTheNext) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-21T08:00:00Z"}});
  folder.Refresh();
  fs::remove(desk.m_list);
  desk.Start();
  desk.Poll();
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
}

TEST(RecentFolderCapture, WhatAnEarlierSessionCapturedNeedsNotWait) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  desk.PutDocuments({{kReport, "2026-11-21T08:00:00Z"}});
  desk.Start().Refresh();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-21T08:00:00.000000000Z")));
}

TEST(RecentFolderCapture, ALinkPutBackTodayIsNotOverwrittenUncaptured) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  testing::SetWritten(desk.Shortcut("Report.odt.lnk"), "2026-11-28 09:00:00");
  desk.PutDocuments({{kReport, "2026-11-29T08:00:00Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-28",
                                        "/home/ana/Report.odt 2026-11-29"));
}

TEST(RecentFolderCapture, AnOlderOpeningOfThatDayDoesNotSetALinkPutBackBackInTime) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  testing::SetWritten(desk.Shortcut("Report.odt.lnk"), "2026-11-28 09:00:05");
  desk.PutDocuments({{kReport, "2026-11-28T09:00:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-28T09:00:05.000000000Z")));
}

TEST(RecentFolderCapture, ALookDuringACaptureChangesNothingInTheFolder) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-20T09:00:00Z"}, {"/home/ana/new.txt", "2026-11-20T09:00:00Z"}});
  folder.RememberOpenings();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T08:00:00.000000000Z")));
  folder.Captured();
  desk.PutDocuments({{kReport, "2026-11-21T09:00:00Z"}});
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21",
                                        "/home/ana/new.txt 2026-11-20"));
}

TEST(RecentFolderCapture, WhatOnlyALookSawIsKeptFromOneSessionToTheNext) {
  RecentDesk desk;
  desk.PutDocuments({});
  desk.Start().Refresh();
  RecentFolder& folder = desk.Start();
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-20T09:00:00Z"}});
  folder.RememberOpenings();
  fs::remove(desk.m_list);
  desk.Start();
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(RecentFolderCapture, AnEmptiedListEmptiesTheFolderOnlyWhenItIsCaptured) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}, {"/home/ana/x.txt", "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({});
  folder.Refresh();
  EXPECT_EQ(desk.Shortcuts().size(), 2U);
  folder.Captured();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
  EXPECT_EQ(desk.m_events.size(), 1U);
}

TEST(RecentFolderCapture, ClearedDocumentsComeBackOnlyWhenTheyAreOpenedAgain) {
  RecentDesk desk;
  const std::map<std::string, std::string> before = {{kReport, "2026-11-20T08:00:00Z"},
                                                     {"/home/ana/x.txt", "2026-11-20T08:00:00Z"}};
  desk.PutDocuments(before);
  desk.Poll();
  desk.PutDocuments({});
  desk.Poll();
  desk.PutDocuments(before);
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
  desk.PutDocuments({{kReport, "2026-11-20T08:00:01Z"}, {"/home/ana/x.txt", "2026-11-20T08:00:00Z"}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T08:00:01.000000000Z")));
}

TEST(RecentFolderCapture, AnOpeningAfterTheClearingStays) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}, {"/home/ana/x.txt", "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-20T09:00:00Z"}});
  folder.Refresh();
  folder.Captured();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("Report.odt.lnk", "2026-11-20T09:00:00.000000000Z")));
}

TEST(RecentFolderCapture, TheWishToClearIsKeptFromOneSessionToTheNext) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  desk.PutDocuments({});
  desk.Start().Refresh();
  desk.PutDocuments({{"/home/ana/x.txt", "2026-11-20T08:00:00Z"}});
  desk.Start();
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(Pair("x.txt.lnk", ::testing::_)));
}

TEST(RecentFolderCapture, WhatWaitedWhenTheListWasEmptiedIsFiledFirst) {
  RecentDesk desk;
  RecentFolder& folder = desk.Start();
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({{kReport, "2026-11-21T08:00:00Z"}});
  folder.Refresh();
  desk.PutDocuments({});
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/Report.odt 2026-11-21"));
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
}

TEST(RecentFolderCapture, AListWithoutEntriesThatIsNotSoundClearsNothing) {
  for (const char* text : {"", "<?xml version=\"1.0\"?>", "<xbel>", "<xbel><bookm", "<html/>", "<xbel></xbel>rest"}) {
    RecentDesk desk;
    desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
    desk.Poll();
    desk.PutList(text);
    for (int poll = 0; poll < 3; ++poll) desk.Poll();
    EXPECT_EQ(desk.Shortcuts().size(), 1U) << text;
  }
}

TEST(RecentFolderCapture, WhileTheListStaysEmptyALinkPutBackStays) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  const std::string link = testing::ReadFile(desk.Shortcut("Report.odt.lnk"));
  desk.PutDocuments({});
  desk.Poll();
  desk.m_folder.Write("Recent/Report.odt.lnk", link);
  desk.Poll();
  desk.PutDocuments({});
  desk.Start();
  desk.Poll();
  EXPECT_EQ(desk.Shortcuts().size(), 1U);
}

TEST(RecentFolderCapture, ALinkPutBackBetweenClearingAndCaptureStays) {
  RecentDesk desk;
  desk.PutDocuments({{kReport, "2026-11-20T08:00:00Z"}});
  desk.Poll();
  desk.PutDocuments({});
  RecentFolder& folder = desk.Start();
  folder.Refresh();
  testing::SetWritten(desk.Shortcut("Report.odt.lnk"), "2026-11-28 09:00:00");
  folder.Captured();
  EXPECT_EQ(desk.Shortcuts().size(), 1U);
}

}  // namespace
}  // namespace dayvane::recent
