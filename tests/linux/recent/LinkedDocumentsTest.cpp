// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/recent/RecentFolder.h"
#include "tests/linux/recent/RecentDesk.h"

/// Documents that are opened through a symbolic link: the list has the name that was opened, KDE where it leads.
namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using testing::RecentDesk;

class LinkedDocuments : public ::testing::Test {
 protected:
  LinkedDocuments() {
    m_desk.m_rules.drives = [this] { return m_drives; };
    m_desk.m_sources["KDE"];
    m_desk.m_folder.Write("disk/Report.odt", "");
    m_desk.m_folder.Write("other/Report.odt", "");
    fs::create_directory_symlink(m_home + "/disk", m_home + "/Papers");
    m_desk.PutDocuments({});
    m_desk.Poll();
  }

  void ListTells(const std::string& moment) { m_desk.PutDocuments({{m_link, moment}}); }
  void KdeTells(const std::string& moment) { m_desk.Tell("KDE", m_target, moment); }
  void PollSome() {
    for (int poll = 0; poll < 3; ++poll) m_desk.Poll();
  }

  RecentDesk m_desk;
  const std::string m_home = fs::canonical(m_desk.m_folder.Native());
  const std::string m_link = m_home + "/Papers/Report.odt";
  const std::string m_target = m_home + "/disk/Report.odt";
  std::vector<MountedDrive> m_drives{{"/", "ext4"}};
};

TEST_F(LinkedDocuments, TheListsNameIsKeptWhereBothTellAtOnce) {
  ListTells("2026-11-20T10:00:02Z");
  KdeTells("2026-11-20T10:00:01Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20"));
}

TEST_F(LinkedDocuments, TheListsNameIsKeptWhereItTellsFirst) {
  ListTells("2026-11-20T10:00:02Z");
  PollSome();
  KdeTells("2026-11-20T10:00:01Z");
  PollSome();
  KdeTells("2026-11-21T10:00:01Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_link + " 2026-11-21"));
}

TEST_F(LinkedDocuments, WhatKdeToldOfFirstStaysTheSameDocumentFromSessionToSession) {
  KdeTells("2026-11-20T10:00:01Z");
  PollSome();
  for (const char* moment : {"2026-11-20T10:00:02Z", "2026-11-21T10:00:02Z"}) {
    ListTells(moment);
    m_desk.Start();
    PollSome();
  }
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_target + " 2026-11-20", m_target + " 2026-11-21"));
  EXPECT_EQ(m_desk.Shortcuts().size(), 1U);
}

TEST_F(LinkedDocuments, OneThatIsKnownByTheLinkStaysSoInTheNextSession) {
  ListTells("2026-11-20T10:00:02Z");
  PollSome();
  KdeTells("2026-11-21T10:00:01Z");
  m_desk.Start();
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_link + " 2026-11-21"));
}

TEST_F(LinkedDocuments, ALinkThatLeadsElsewhereByNowIsAnotherDocument) {
  ListTells("2026-11-20T10:00:02Z");
  PollSome();
  fs::remove(m_home + "/Papers");
  fs::create_directory_symlink(m_home + "/other", m_home + "/Papers");
  KdeTells("2026-11-21T10:00:01Z");
  PollSome();
  ListTells("2026-11-22T10:00:02Z");
  m_desk.Tell("KDE", m_home + "/other/Report.odt", "2026-11-22T10:00:01Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_link + " 2026-11-22", m_target + " 2026-11-21"));
}

TEST_F(LinkedDocuments, ALinkToTheDocumentItselfMayHaveAnotherName) {
  fs::create_symlink(m_target, m_home + "/Current.odt");
  m_desk.PutDocuments({{m_home + "/Current.odt", "2026-11-20T10:00:02Z"}});
  PollSome();
  KdeTells("2026-11-20T10:00:01Z");
  PollSome();
  m_desk.PutDocuments({{m_home + "/Current.odt", "2026-11-21T10:00:02Z"}});
  KdeTells("2026-11-21T10:00:03Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_home + "/Current.odt 2026-11-20", m_home + "/Current.odt 2026-11-21"));
}

TEST_F(LinkedDocuments, WhatTheListHasUnderBothNamesKeepsBoth) {
  m_desk.PutDocuments({{m_link, "2026-11-20T10:00:02Z"}, {m_target, "2026-11-20T09:00:00Z"}});
  PollSome();
  KdeTells("2026-11-21T10:00:01Z");
  PollSome();
  ListTells("2026-11-22T10:00:02Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_link + " 2026-11-22", m_target + " 2026-11-20",
                                          m_target + " 2026-11-21"));
}

TEST_F(LinkedDocuments, OneThatIsSavedThroughALinkIsOneToo) {
  fs::remove(m_target);
  ListTells("2026-11-20T10:00:02Z");
  m_desk.Poll();
  m_desk.m_folder.Write("disk/Report.odt", "Dear Ana");
  m_desk.PutDocuments({{m_home + "/other/Report.odt", "2026-11-20T10:00:02Z"}});  // the entry is lost meanwhile
  KdeTells("2026-11-20T10:00:03Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_home + "/other/Report.odt 2026-11-20"));
}

TEST_F(LinkedDocuments, NoLinkIsFollowedOntoADriveThatMayBeAsleep) {
  m_drives.push_back({m_home + "/disk", "nfs"});
  ListTells("2026-11-20T10:00:02Z");
  KdeTells("2026-11-20T10:00:01Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20", m_target + " 2026-11-20"));
}

TEST_F(LinkedDocuments, AnEditorClosedAfterMidnightMakesNoSecondDay) {
  ListTells("2026-11-20T22:00:00Z");
  PollSome();
  m_desk.m_sources["KDE"].began = testing::At("2026-11-20T22:00:00Z");
  m_desk.m_sources["KDE"].usedPath = m_target;
  ListTells("2026-11-21T00:10:00Z");
  PollSome();
  EXPECT_THAT(m_desk.Filed(), ElementsAre(m_link + " 2026-11-20"));
}

}  // namespace
}  // namespace dayvane::recent
