// SPDX-License-Identifier: MIT
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/Error.h"
#include "linux/recent/LibreOfficePicks.h"
#include "tests/linux/disk/UnprivilegedUser.h"
#include "tests/support/System.h"
#include "tests/support/TemporaryFolder.h"

namespace dayvane::recent {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int64_t kSaved = 1795251600;  // 2026-11-21 09:00 UTC

std::string SettingsWith(const std::vector<std::string>& addresses) {
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<oor:items>\n";
  for (std::size_t i = 0; i < addresses.size(); ++i)
    text +=
        "<item oor:path=\"/org.openoffice.Office.Histories/Histories/org.openoffice.Office.Histories:"
        "HistoryInfo['PickList']/OrderList\"><node oor:name=\"" +
        std::to_string(i) + "\" oor:op=\"replace\"><prop oor:name=\"HistoryItemRef\" oor:op=\"fuse\"><value>" +
        addresses[i] + "</value></prop></node></item>\n";
  return text + "</oor:items>\n";
}

/// A user's LibreOffice, and the program reading along.
class LibreOfficePicksTest : public ::testing::Test {
 protected:
  /// LibreOffice saves its settings, with these documents as the recent ones, at a second after kSaved.
  void Save(const std::vector<std::string>& addresses, std::int64_t second = 0, const std::string& profile = "4") {
    const std::string name = "libreoffice/" + profile + "/user/registrymodifications.xcu";
    testing::SetWritten(m_folder.Write(name, SettingsWith(addresses)), kSaved + second);
  }

  /// What a reading brings, as "PATH SECOND"; the memory is kept for the next.
  std::vector<std::string> News() {
    auto reading = m_source->Read(m_memory);
    m_memory = reading.memory;
    std::vector<std::string> news;
    for (const Opening& opening : reading.openings)
      news.push_back(opening.path + " " + std::to_string(opening.moment / kNanosecondsPerSecond - kSaved));
    return news;
  }

  void StartNewSession() { m_source = std::make_unique<LibreOfficePicks>(m_folder / "libreoffice"); }

  testing::TemporaryFolder m_folder;
  const std::string m_settings = m_folder / "libreoffice/4/user/registrymodifications.xcu";
  std::unique_ptr<LibreOfficePicks> m_source = std::make_unique<LibreOfficePicks>(m_folder / "libreoffice");
  std::string m_memory;
};

TEST_F(LibreOfficePicksTest, TheFirstReadingOnlyRemembers) {
  Save({"file:///home/ana/a.odt"});
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), IsEmpty());
  EXPECT_FALSE(m_source->IsDue());
}

TEST_F(LibreOfficePicksTest, ANewEntryWasOpenedWhenTheSettingsWereSaved) {
  Save({"file:///home/ana/a.odt"});
  News();
  Save({"file:///home/ana/My%20B%c3%bccher.ods", "file:///home/ana/a.odt"}, 60);
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), ElementsAre("/home/ana/My Bücher.ods 60"));
}

TEST_F(LibreOfficePicksTest, AnEntryThatRoseToTheTopWasOpenedAgain) {
  Save({"file:///a.odt", "file:///b.odt", "file:///c.odt"});
  News();
  Save({"file:///c.odt", "file:///a.odt", "file:///b.odt"}, 60);
  EXPECT_THAT(News(), ElementsAre("/c.odt 60"));
}

TEST_F(LibreOfficePicksTest, OtherSettingsThatAreSavedAreNoOpening) {
  Save({"file:///a.odt"});
  News();
  Save({"file:///a.odt"}, 60);
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(LibreOfficePicksTest, WhatWasOpenedWhileTheProgramWasOffIsToldByTheNextSession) {
  Save({"file:///a.odt"});
  News();
  Save({"file:///b.odt", "file:///a.odt"}, 60);
  StartNewSession();
  EXPECT_THAT(News(), ElementsAre("/b.odt 60"));
}

TEST_F(LibreOfficePicksTest, TheProgramIsNamedAndNoTypeIs) {
  Save({});
  News();
  Save({"file:///a.odt"});
  const auto openings = m_source->Read(m_memory).openings;
  ASSERT_EQ(openings.size(), 1U);
  EXPECT_EQ(openings[0].program, "LibreOffice");
  EXPECT_EQ(openings[0].mimeType, "");
  EXPECT_EQ(m_source->BeganAt(openings[0]), std::nullopt);
}

TEST_F(LibreOfficePicksTest, WhatIsNoFileOfThisMachineIsLeftOut) {
  Save({});
  News();
  Save({"https://example.org/a.odt", "private:factory/swriter", "file://elsewhere/a.odt", "file:///%zz", "a.odt"});
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(LibreOfficePicksTest, EachProfileHasItsOwnList) {
  Save({"file:///a.odt"}, 0, "4");
  Save({"file:///b.odt"}, 0, "5");
  News();
  Save({"file:///b.odt", "file:///a.odt"}, 60, "4");
  Save({"file:///a.odt", "file:///b.odt"}, 70, "5");
  EXPECT_THAT(News(), ElementsAre("/b.odt 60", "/a.odt 70"));
}

TEST_F(LibreOfficePicksTest, WithoutLibreOfficeThereIsNothingAndNoComplaint) {
  EXPECT_FALSE(m_source->IsDue());
  EXPECT_THAT(News(), IsEmpty());
  EXPECT_FALSE(m_source->IsDue());
}

TEST_F(LibreOfficePicksTest, TheFirstDocumentOfANewInstallationIsFound) {
  EXPECT_FALSE(m_source->IsDue());
  Save({"file:///a.odt"});
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), ElementsAre("/a.odt 0"));
}

TEST_F(LibreOfficePicksTest, AProfileFolderThatFillsLaterIsFound) {
  fs::create_directories(m_folder / "libreoffice/4");
  News();
  EXPECT_FALSE(m_source->IsDue());
  Save({"file:///a.odt"});
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), ElementsAre("/a.odt 0"));
}

TEST_F(LibreOfficePicksTest, OfAProfileCopiedFromElsewhereTheNewestEntryAloneIsTold) {
  EXPECT_FALSE(m_source->IsDue());
  Save({"file:///a.odt", "file:///b.odt", "file:///c.odt"});
  EXPECT_THAT(News(), ElementsAre("/a.odt 0"));
}

TEST_F(LibreOfficePicksTest, AProfileThatComesBackHasItsMemory) {
  Save({"file:///a.odt", "file:///b.odt"});
  News();
  fs::rename(m_folder / "libreoffice", m_folder / "away");
  EXPECT_THAT(News(), IsEmpty());
  fs::rename(m_folder / "away", m_folder / "libreoffice");
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(LibreOfficePicksTest, AFolderThatComesAfterTheStartHasItsMemoryToo) {
  Save({"file:///a.odt"});
  News();
  fs::rename(m_folder / "libreoffice", m_folder / "disk");
  StartNewSession();
  EXPECT_FALSE(m_source->IsDue());
  fs::rename(m_folder / "disk", m_folder / "libreoffice");
  EXPECT_TRUE(m_source->IsDue());
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(LibreOfficePicksTest, OfVeryManyProfilesTheFirstAreRead) {
  for (int profile = 1; profile <= 9; ++profile) Save({"file:///a.odt"}, 0, std::to_string(profile));
  News();
  for (int profile = 1; profile <= 9; ++profile)
    Save({"file:///b.odt", "file:///a.odt"}, profile, std::to_string(profile));
  const auto news = News();
  EXPECT_EQ(news.size(), 8U);
  EXPECT_EQ(news.back(), "/b.odt 8");
}

TEST_F(LibreOfficePicksTest, HalfWrittenSettingsAreTriedAgain) {
  Save({"file:///a.odt"});
  News();
  Save({"file:///b.odt", "file:///a.odt"});
  const std::string whole = testing::ReadFile(m_settings);
  m_folder.Write("libreoffice/4/user/registrymodifications.xcu", whole.substr(0, whole.size() - 20));
  EXPECT_THROW(m_source->Read(m_memory), Error);
  EXPECT_TRUE(m_source->IsDue());
  testing::SetWritten(m_folder.Write("libreoffice/4/user/registrymodifications.xcu", whole), kSaved + 60);
  EXPECT_THAT(News(), ElementsAre("/b.odt 60"));
}

TEST_F(LibreOfficePicksTest, SettingsThatAreTooLargeAreNotRead) {
  Save({});
  fs::resize_file(m_settings, 1ULL << 40U);
  EXPECT_THROW(m_source->Read(m_memory), Error);
}

TEST_F(LibreOfficePicksTest, AFolderOrAPipeInTheirPlaceAreNoSettings) {
  fs::create_directories(m_settings);
  fs::create_directories(m_folder / "libreoffice/5/user");
  ASSERT_EQ(mkfifo((m_folder / "libreoffice/5/user/registrymodifications.xcu").c_str(), 0600), 0);
  EXPECT_THAT(News(), IsEmpty());
}

TEST_F(LibreOfficePicksTest, AFolderThatIsKeptElsewhereIsFollowedThere) {
  Save({});
  fs::create_directory_symlink(m_folder / "libreoffice", m_folder / "link");
  m_source = std::make_unique<LibreOfficePicks>(m_folder / "link");
  News();
  Save({"file:///a.odt"}, 60);
  EXPECT_THAT(News(), ElementsAre("/a.odt 60"));
}

TEST_F(LibreOfficePicksTest, SettingsWithoutPermissionAreTriedAgain) {
  Save({});
  fs::permissions(m_folder.Native(), fs::perms::all);
  fs::permissions(m_settings, fs::perms::none);
  const testing::UnprivilegedUser user;
  EXPECT_THROW(m_source->Read(m_memory), Error);
  EXPECT_TRUE(m_source->IsDue());
}

TEST_F(LibreOfficePicksTest, AMemoryOfAnotherFormIsNone) {
  Save({"file:///a.odt"});
  for (const char* memory : {"x", "1", "1:2:3", "1:x", ":", "-1:2", "- -"}) {
    const auto reading = m_source->Read(memory);
    EXPECT_THAT(reading.openings, IsEmpty()) << memory;
    EXPECT_EQ(reading.memory, m_source->Read("").memory) << memory;
  }
}

TEST_F(LibreOfficePicksTest, TheMemoryIsOneLine) {
  Save({"file:///a%0Ab.odt"}, 0, "4");
  Save({}, 0, "a b\nc");
  News();
  EXPECT_EQ(m_memory.find('\n'), std::string::npos);
  EXPECT_THAT(News(), IsEmpty());
}

}  // namespace
}  // namespace dayvane::recent
