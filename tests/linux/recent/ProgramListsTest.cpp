// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>

#include "base/Error.h"
#include "linux/recent/ProgramLists.h"
#include "tests/linux/recent/RecentDesk.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr const char* kNoonOfList = "2026-11-20T12:00:00Z";
constexpr const char* kFlatpakList = ".var/app/org.gnome.Evince/data/recently-used.xbel";
constexpr const char* kEditorList = "share/org.gnome.TextEditor/recently-used.xbel";

/// A list whose documents were opened at one moment, as a program writes it for itself: without types.
std::string ListOf(const std::vector<std::string>& documents, const std::string& moment = kNoonOfList) {
  std::string list = "<?xml version=\"1.0\"?>\n<xbel version=\"1.0\">\n";
  for (const std::string& document : documents)
    list += "<bookmark href=\"file://" + document + "\" visited=\"" + moment + "\"/>\n";
  return list + "</xbel>";
}

/// The home of a user whose programs keep lists of their own.
class ProgramListsTest : public ::testing::Test {
 protected:
  void Put(const std::string& list, const std::string& text) {
    const std::string finished = m_home.Write("finished", text);
    fs::create_directories(fs::path(m_home / list).parent_path());
    fs::rename(finished, m_home / list);
  }

  /// Paths of all documents that one look at those sources that are due tells of.
  std::vector<std::string> Look() {
    std::vector<std::string> paths;
    for (const auto& source : m_sources)
      if (source->IsDue())
        for (const Opening& opening : source->Read("").openings) paths.push_back(opening.path);
    return paths;
  }

  testing::TemporaryFolder m_home;
  std::vector<std::unique_ptr<Source>> m_sources = KnownProgramLists(m_home.Native(), m_home / "share");
};

TEST_F(ProgramListsTest, TheListsOfTheTextEditorOfFlatpaksAndOfSnapsAreRead) {
  Put(kEditorList, ListOf({"/home/ana/a"}));
  Put(kFlatpakList, ListOf({"/home/ana/b"}));
  Put(".var/app/org.gnome.TextEditor/data/org.gnome.TextEditor/recently-used.xbel", ListOf({"/home/ana/c"}));
  Put("snap/gimp/77/.local/share/recently-used.xbel", ListOf({"/home/ana/d"}));
  fs::create_directory_symlink("77", m_home / "snap/gimp/current");
  EXPECT_THAT(Look(), UnorderedElementsAre("/home/ana/a", "/home/ana/b", "/home/ana/c", "/home/ana/d"));
  EXPECT_THAT(Look(), IsEmpty()) << "unchanged lists are not read again";
}

TEST_F(ProgramListsTest, AHomeWithoutSuchProgramsHasNothingToTell) {
  EXPECT_THAT(Look(), IsEmpty());
  fs::create_directories(m_home / ".var/app/org.gnome.Evince/data");
  EXPECT_THAT(Look(), IsEmpty());
}

TEST_F(ProgramListsTest, AListThatAProgramMakesLaterIsFound) {
  fs::create_directories(m_home / ".var/app/org.gnome.Evince/data");
  Look();
  Put(kFlatpakList, ListOf({"/home/ana/b"}));
  EXPECT_THAT(Look(), ElementsAre("/home/ana/b"));
}

TEST_F(ProgramListsTest, AProgramThatIsInstalledLaterIsFound) {
  Look();
  Put(kFlatpakList, ListOf({"/home/ana/b"}));
  EXPECT_THAT(Look(), ElementsAre("/home/ana/b"));
  Put(".var/app/org.gnome.Other/data/recently-used.xbel", ListOf({"/home/ana/c"}));
  EXPECT_THAT(Look(), ElementsAre("/home/ana/c"));
}

TEST_F(ProgramListsTest, AListThatHasChangedIsReadAgainAndAlone) {
  Put(kEditorList, ListOf({"/home/ana/a"}));
  Put(kFlatpakList, ListOf({"/home/ana/b"}));
  Look();
  Put(kFlatpakList, ListOf({"/home/ana/b", "/home/ana/new"}));
  EXPECT_THAT(Look(), ElementsAre("/home/ana/b", "/home/ana/new"));
}

TEST_F(ProgramListsTest, AnEmptiedOrLostListTellsOfNothing) {
  Put(kEditorList, ListOf({"/home/ana/a"}));
  Look();
  Put(kEditorList, ListOf({}));
  EXPECT_THAT(Look(), IsEmpty());
  fs::remove(m_home / kEditorList);
  EXPECT_THAT(Look(), IsEmpty());
}

TEST_F(ProgramListsTest, AnOpeningIsTheMomentAtWhichTheProgramWasAskedForIt) {
  Put(kEditorList,
      "<xbel><bookmark href=\"file:///home/ana/a\" visited=\"2026-11-20T12:00:00Z\"><application name=\"Editor\" "
      "modified=\"2026-11-20T12:00:02.5Z\"/></bookmark></xbel>");
  ASSERT_TRUE(m_sources[0]->IsDue());
  const auto openings = m_sources[0]->Read("").openings;
  ASSERT_EQ(openings.size(), 1U);
  EXPECT_EQ(openings[0].moment, testing::At(kNoonOfList));
  EXPECT_EQ(openings[0].program, "Editor");
}

TEST_F(ProgramListsTest, AnEarlierUseIsNotTheLastOpening) {
  Put(kEditorList,
      "<xbel><bookmark href=\"file:///home/ana/a\" visited=\"2026-11-01T12:00:00Z\"><application "
      "modified=\"2026-11-20T12:00:00Z\"/></bookmark></xbel>");
  EXPECT_TRUE(m_sources[0]->IsDue());
  EXPECT_EQ(m_sources[0]->Read("").openings.at(0).moment, testing::At(kNoonOfList));
}

TEST_F(ProgramListsTest, OneListThatCannotBeReadKeepsNoOtherFromIt) {
  fs::create_directories(m_home / kFlatpakList);  // a folder in its place
  Put(".var/app/org.gnome.Other/data/recently-used.xbel", ListOf({"/home/ana/c"}));
  EXPECT_THAT(Look(), ElementsAre("/home/ana/c"));
  ASSERT_TRUE(m_sources[1]->IsDue());
  EXPECT_THROW(m_sources[1]->Read(""), Error) << "then the failure is told";
}

}  // namespace
}  // namespace dayvane::recent
