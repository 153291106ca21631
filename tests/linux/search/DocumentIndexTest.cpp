// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "linux/LinuxFileSystem.h"
#include "linux/search/DocumentIndex.h"
#include "repository/CRepository.h"
#include "tests/support/TestDesktop.h"

namespace dayvane::search {
namespace {

namespace fs = std::filesystem;
using dayvane::testing::TestDesktop;
using dayvane::testing::WriteShortcut;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A record of some days, searched with a clock that stands.
class DocumentIndexTest : public ::testing::Test {
 protected:
  void File(const std::string& day, const std::string& name, const std::string& program = {}) {
    platform::ShellLink link;
    link.target = program.empty() ? "Z:\\home\\ana\\" + name : program;
    link.workingDirectory = program;
    fs::create_directories(Native(day));
    WriteShortcut(Native(day) + "/" + name + ".lnk", link, "2026-11-20 10:00:00");
  }
  std::string Native(const std::string& day) const { return m_desktop.NativeFolder() + "/Daily/" + day; }

  /// "Report.odt 2026-11-20" of each that is found.
  std::vector<std::string> Found(const std::vector<std::string>& words, std::size_t most = 20) {
    std::vector<std::string> texts;
    for (const Document& document : m_index.Find(words, most))
      texts.push_back(document.name + Format(document.day, " yyyy-mm-dd", m_desktop.dates));
    return texts;
  }

  TestDesktop m_desktop;
  Application m_application{m_desktop.desktop, m_desktop.Folder()};
  CRepository m_repository{m_application};
  std::chrono::steady_clock::time_point m_now;
  DocumentIndex m_index{m_application, m_repository.DailyPath(), [this] { return m_now; }};
};

TEST_F(DocumentIndexTest, ADocumentIsFoundByAPartOfItsNameInAnyLetterCase) {
  File("2026/November/20", "Überblick 2026.odt");

  EXPECT_THAT(Found({"ÜBERB"}), ElementsAre("Überblick 2026.odt 2026-11-20"));
  EXPECT_THAT(Found({"letter"}), IsEmpty());
}

TEST_F(DocumentIndexTest, AllWordsMustBeInTheName) {
  File("2026/November/20", "Report spring.odt");
  File("2026/November/20", "Report autumn.odt");

  EXPECT_THAT(Found({"autumn", "report"}), ElementsAre("Report autumn.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, WithoutAWordNothingIsFound) {
  File("2026/November/20", "Report.odt");

  EXPECT_THAT(Found({}), IsEmpty());
  EXPECT_THAT(Found({""}), IsEmpty());
}

TEST_F(DocumentIndexTest, TheNewestDayComesFirstAndEachDocumentOnce) {
  File("2025/December/31", "Report old.odt");
  File("2026/February/03", "Report A.odt");
  File("2026/November/20", "Report B.odt");
  File("2026/January/30", "Report B.odt");

  EXPECT_THAT(Found({"report"}),
              ElementsAre("Report B.odt 2026-11-20", "Report A.odt 2026-02-03", "Report old.odt 2025-12-31"));
}

TEST_F(DocumentIndexTest, DocumentsOfOneNameInTwoFoldersAreBothFoundByThatName) {
  File("2026/November/20", "Report.odt");
  File("2026/November/20", "Report.odt (2)");
  File("2026/November/19", "Report (3).odt");
  File("2026/November/18", "Report (4)");

  EXPECT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20", "Report.odt 2026-11-20",
                                             "Report (3).odt 2026-11-19", "Report (4) 2026-11-18"));
}

TEST_F(DocumentIndexTest, NoMoreAreFoundThanWereAskedFor) {
  for (int number = 0; number < 9; ++number) File("2026/November/20", "Report " + std::to_string(number));

  EXPECT_EQ(Found({"report"}, 5).size(), 5U);
}

TEST_F(DocumentIndexTest, TheProgramsBesideTheDocumentsAreNotFound) {
  File("2026/November/20", "Writer", "Z:\\usr\\bin\\writer");
  File("2026/November/20", "Writer.odt");

  EXPECT_THAT(Found({"writer"}), ElementsAre("Writer.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, WhatIsFiledIsFoundAsSoonAsTheProgramSaysSo) {
  File("2026/November/20", "Report.odt");
  ASSERT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20"));

  File("2026/November/20", "Report two.odt");
  File("2026/November/21", "Report.odt");
  m_index.Outdate();

  EXPECT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-21", "Report two.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, WhatWasAddedByHandIsFoundWithinSeconds) {
  File("2026/November/20", "Report.odt");
  ASSERT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20"));

  File("2026/November/20", "Report two.odt");
  EXPECT_THAT(Found({"two"}), IsEmpty());
  m_now += std::chrono::seconds(5);

  EXPECT_THAT(Found({"two"}), ElementsAre("Report two.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, OfADayThatTheUserDeletedByHandNothingIsFoundAndWhatOlderDaysHaveIs) {
  File("2026/November/20", "Report.odt");
  File("2026/November/21", "Report.odt");
  ASSERT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-21"));

  fs::remove_all(Native("2026/November/21"));

  EXPECT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, ALinkThatWasRemovedIsNotFound) {
  File("2026/November/20", "Report.odt");
  File("2026/November/20", "Other.odt");
  ASSERT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20"));

  fs::remove(Native("2026/November/20/Report.odt.lnk"));

  EXPECT_THAT(Found({"report"}), IsEmpty());
  EXPECT_THAT(Found({"other"}), ElementsAre("Other.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, AnEmptyOrDamagedRecordIsSearchedInPeace) {
  EXPECT_THAT(Found({"report"}), IsEmpty());
  fs::create_directories(Native("2026/Nonsense/99"));
  fs::create_directories(Native("Notes"));
  m_desktop.folder.Write("program/Daily/2026/November/20/Report.odt.lnk", "no link");
  m_desktop.folder.Write("program/Daily/2026/November/20/Report.txt", "no link");
  m_desktop.folder.Write("program/Daily/2026/Report.odt.lnk", "a link in no day");
  fs::create_symlink("/", Native("2026/November/21"));
  m_index.Outdate();

  EXPECT_THAT(Found({"report"}), IsEmpty());
}

TEST_F(DocumentIndexTest, ARecordThatLiesElsewhereIsSearchedThere) {
  const fs::path elsewhere = fs::path(m_desktop.NativeFolder()).parent_path() / "elsewhere";
  fs::rename(Native(""), elsewhere);
  fs::create_directory_symlink(elsewhere, m_desktop.NativeFolder() + "/Daily");
  File("2026/November/20", "Report.odt");

  EXPECT_THAT(Found({"report"}), ElementsAre("Report.odt 2026-11-20"));
}

TEST_F(DocumentIndexTest, AnIdentifierStaysThatOfItsDocument) {
  File("2026/November/20", "Report.odt");
  const std::string id = m_index.Find({"report"}, 1).front().id;
  EXPECT_EQ(id, m_repository.DailyPath() + "\\2026\\November\\20\\Report.odt.lnk");

  const auto document = m_index.Describe(id);

  ASSERT_TRUE(document);
  EXPECT_EQ(document->name, "Report.odt");
  EXPECT_EQ(document->day, Date::Of(2026, 11, 20));
}

TEST_F(DocumentIndexTest, WhatIsNoLinkOfADayIsNoIdentifier) {
  const std::string daily = m_repository.DailyPath();
  for (const std::string& id :
       {std::string(), daily, daily + "\\2026\\November\\20", daily + "\\2026\\November\\20\\Report.odt",
        daily + "\\2026\\November\\20\\.lnk", daily + "\\2026\\November\\20\\.hidden.lnk",
        daily + "\\2026\\November\\..\\Report.odt.lnk", daily + "\\2026\\November\\20\\..\\..\\Report.odt.lnk",
        daily + "\\2026\\November\\20\\a/../b.lnk", daily + "\\2026\\Nonsense\\20\\Report.odt.lnk",
        std::string("Z:\\home\\ana\\Daily\\2026\\November\\20\\Report.odt.lnk"),
        daily + "x\\2026\\November\\20\\Report.odt.lnk", std::string(100000, '\\')})
    EXPECT_FALSE(m_index.Describe(id)) << id.substr(0, 200);
}

}  // namespace
}  // namespace dayvane::search
