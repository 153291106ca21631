// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// What is told of and yet must not be recorded, or not yet.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::kMorning;
using testing::kNoon;
using testing::kReport;
using ::testing::Not;
using testing::RecentDesk;

/// Rules of a machine that is one local drive.
Rules WithLocalDrive() {
  Rules rules;
  rules.drives = [] { return std::vector<MountedDrive>{{"/", "ext4"}}; };
  return rules;
}

Rules WithoutSecrets() {
  Rules rules;
  rules.isExcluded = [](const Opening& opening) {
    return opening.path.find("secret") != std::string::npos || opening.program == "Secretary";
  };
  return rules;
}

TEST(RecentFolderRules, WhatProgramsKeepForThemselvesIsNotRecorded) {
  RecentDesk desk;
  desk.m_rules.home = "/home/ana";
  desk.m_rules.ownFolders = {"/home/ana/.cache", "/tmp", "/run/user/1000"};
  desk.PutDocuments({{"/home/ana/.cache/.fr-1234/inside.txt", kMorning},
                     {"/tmp/download.pdf", kMorning},
                     {"/run/user/1000/gvfs/x", kMorning},
                     {"/tmpfiles/Plan.odt", kMorning},
                     {kReport, kMorning}});
  desk.Tell("KDE", "/tmp/other.pdf", kMorning);
  desk.Tell("KDE", "/home/ana/.local/share/Trash/files/x", kMorning);
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/tmpfiles/Plan.odt 2026-11-20"));
}

TEST(RecentFolderRules, TheDocumentsOfAGuestWhoseHomeIsTemporaryAreRecorded) {
  RecentDesk desk;
  desk.m_rules.home = "/tmp/guest-7";
  desk.m_rules.ownFolders = {"/tmp/guest-7/.cache", "/tmp"};
  desk.PutDocuments({{"/tmp/guest-7/Report.odt", kMorning},
                     {"/tmp/guest-7/.cache/thumbnail.png", kMorning},
                     {"/tmp/other.txt", kMorning}});
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/tmp/guest-7/Report.odt 2026-11-20"));
}

TEST(RecentFolderRules, OfAnExcludedDocumentNothingIsOnTheDisk) {
  RecentDesk desk;
  desk.m_rules = WithoutSecrets();
  desk.PutDocuments({{"/home/ana/secret.odt", kMorning}, {kReport, kMorning}});
  desk.Tell("KDE", "/home/ana/secret too.odt", kMorning);
  desk.Tell("KDE", "/home/ana/letter.odt", kMorning, "Secretary");
  for (int poll = 0; poll < 2; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
  const std::string state = testing::ReadFile(desk.m_state);
  EXPECT_THAT(state, HasSubstr("Report.odt"));
  EXPECT_THAT(state, Not(HasSubstr("secret")));
  EXPECT_THAT(state, Not(HasSubstr("letter")));
}

TEST(RecentFolderRules, WhileNobodyKnowsWhatIsExcludedOpeningsWaitWhereTheyAreTold) {
  RecentDesk desk;
  bool areKnown = false;
  desk.m_rules.areWishesKnown = [&areKnown] { return areKnown; };
  desk.PutDocuments({{kReport, kMorning}});
  desk.Tell("KDE", "/home/ana/letter.odt", kMorning);
  desk.Poll();
  desk.Start().RememberOpenings();
  desk.Poll();
  EXPECT_EQ(desk.m_sources["KDE"].readings, 0);
  EXPECT_THAT(desk.Filed(), IsEmpty());
  EXPECT_FALSE(fs::exists(desk.m_state)) << "nothing is remembered of them either";
  areKnown = true;
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20", "/home/ana/letter.odt 2026-11-20"));
}

TEST(RecentFolderRules, WhatOneProgramOpensInSecretAnotherMayOpenOpenly) {
  RecentDesk desk;
  desk.m_rules = WithoutSecrets();
  desk.PutBookmarks(
      "<bookmark href=\"file:///home/ana/a\"><application name=\"Secretary\" modified=\"2026-11-21T08:00:00Z\"/>"
      "<application name=\"Editor\" modified=\"2026-11-20T08:00:00Z\"/></bookmark>"
      "<bookmark href=\"file:///home/ana/b\"><application name=\"Secretary\" modified=\"2026-11-21T08:00:00Z\"/>"
      "</bookmark>");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/a 2026-11-20"));
}

TEST(RecentFolderRules, AnExcludedDocumentWithoutAnyTimeIsNotRecordedEither) {
  RecentDesk desk;
  desk.m_rules = WithoutSecrets();
  desk.PutBookmarks("<bookmark href=\"file:///home/ana/secret.odt\"/><bookmark href=\"file:///home/ana/a\"/>");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/a 2026-12-01"));
}

TEST(RecentFolderRules, AProgramsFolderThatIsNotSetIsNoFolder) {
  RecentDesk desk;
  desk.m_rules.ownFolders = {""};
  desk.PutDocuments({{kReport, kMorning}});
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/home/ana/Report.odt 2026-11-20"));
}

TEST(RecentFolderRules, OfADocumentThatWaitsTheLastTimeOfTheListCounts) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  const std::string letter = desk.m_folder / "Letter.odt";
  for (const char* moment : {kMorning, "2026-11-21T08:00:00Z"}) {
    desk.PutDocuments({{letter, moment}});
    desk.Poll();
  }
  desk.m_folder.Write("Letter.odt", "Dear Ana");
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre(letter + " 2026-11-21")) << "the first time it could not be saved";
}

TEST(RecentFolderRules, WhatIsMoreThanAPersonSavesDoesNotWait) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  for (int number = 0; number < 2001; ++number)
    desk.Tell("KDE", desk.m_folder / (std::to_string(number) + ".odt"), kMorning);
  desk.Poll();
  EXPECT_EQ(desk.Filed().size(), 1U);
}

TEST(RecentFolderRules, ADocumentThatIsToBeSavedIsFiledOnceItIsThere) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  const std::string letter = desk.m_folder / "Letter.odt";
  desk.PutDocuments({{letter, kMorning}});
  for (int poll = 0; poll < 3; ++poll) desk.Poll();
  EXPECT_THAT(desk.Filed(), IsEmpty());
  EXPECT_FALSE(fs::exists(desk.m_state)) << "nothing of it is remembered";
  desk.PutDocuments({{"/no folder/x", kMorning}});  // another program writes the list, and loses the entry
  desk.Poll();
  desk.m_folder.Write("Letter.odt", "Dear Ana");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/no folder/x 2026-11-20", letter + " 2026-11-20"));
}

TEST(RecentFolderRules, ADocumentThatNeverComesToBeIsNeverFiled) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  desk.PutDocuments({{desk.m_folder / "Letter.odt", kMorning}});
  for (int session = 0; session < 2; ++session) {
    desk.Start();
    for (int poll = 0; poll < 2; ++poll) desk.Poll();
  }
  EXPECT_THAT(desk.Filed(), IsEmpty());
  EXPECT_THAT(desk.Shortcuts(), IsEmpty());
}

TEST(RecentFolderRules, ADocumentWhoseDriveMayBeAwayIsFiledAsItIsTold) {
  RecentDesk desk;
  fs::create_directory(desk.m_folder / "server");
  desk.m_rules.drives = [&] { return std::vector<MountedDrive>{{"/", "ext4"}, {desk.m_folder / "server", "cifs"}}; };
  desk.PutDocuments({{desk.m_folder / "server/a.odt", kMorning}, {desk.m_folder / "stick/b.odt", kMorning}});
  desk.Poll();
  EXPECT_EQ(desk.Filed().size(), 2U);
}

TEST(RecentFolderRules, AKnownDocumentThatIsGoneStillHasItsOpenings) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  const std::string letter = desk.m_folder.Write("Letter.odt", "");
  desk.PutDocuments({{letter, kMorning}});
  desk.Poll();
  fs::remove(letter);
  desk.PutDocuments({{letter, kNoon}});
  desk.Poll();
  EXPECT_THAT(desk.Shortcuts(), ElementsAre(::testing::Pair("Letter.odt.lnk", "2026-11-20T12:00:00.000000000Z")));
}

TEST(RecentFolderRules, WhatWaitsOfASourceIsToldAgainInTheNextSession) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  desk.Tell("KDE", desk.m_folder / "Letter.odt", kMorning);
  desk.Tell("KDE", "/no folder/x", kMorning);
  desk.Poll();
  EXPECT_THAT(desk.Filed(), ElementsAre("/no folder/x 2026-11-20"));
  desk.Start();
  desk.Poll();
  desk.m_folder.Write("Letter.odt", "Dear Ana");
  desk.Poll();
  EXPECT_EQ(desk.Filed().size(), 2U);
  desk.Start();
  desk.Poll();
  EXPECT_THAT(testing::ReadFile(desk.m_state), HasSubstr("source\tKDE\t2\n")) << "now nothing is told twice";
}

TEST(RecentFolderRules, WhoEmptiesTheListDoesNotWaitForWhatWasInIt) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  desk.PutDocuments({{desk.m_folder / "Letter.odt", kMorning}});
  desk.Poll();
  desk.PutDocuments({});
  desk.Poll();
  desk.m_folder.Write("Letter.odt", "Dear Ana");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), IsEmpty());
}

TEST(RecentFolderRules, WhatIsExcludedWhileItWaitsIsNotFiled) {
  RecentDesk desk;
  desk.m_rules = WithLocalDrive();
  bool isExcluded = false;
  desk.m_rules.isExcluded = [&](const Opening&) { return isExcluded; };
  desk.PutDocuments({{desk.m_folder / "Letter.odt", kMorning}});
  desk.Tell("KDE", desk.m_folder / "Letter.odt", kMorning);
  desk.Poll();
  isExcluded = true;
  desk.m_folder.Write("Letter.odt", "Dear Ana");
  desk.Poll();
  EXPECT_THAT(desk.Filed(), IsEmpty());
}

}  // namespace
}  // namespace dayvane::recent
